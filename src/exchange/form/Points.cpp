// SPDX-License-Identifier: MIT
#include "exchange/form/Points.h"

#include "exchange/form/TextSource.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quorvantis {

std::string PointsText(double points) {
  std::array<char, 64> digits{};
  const float value = std::isfinite(points) ? static_cast<float>(std::clamp(points, 0.0, 1e6)) : 0.0F;
  const auto [end, error] =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  return error == std::errc() ? std::string(digits.data(), end) : std::string("0");
}

std::optional<double> PointsOf(std::u16string_view text) {
  std::u16string number(Trimmed(text));
  std::ranges::replace(number, u',', u'.');
  const bool isNumber = !number.empty() && number.size() < 20 && IsDigit(number.back()) &&
                        number.find_first_not_of(u"0123456789.") == number.npos &&
                        std::ranges::count(number, u'.') <= 1;
  return isNumber ? std::optional(ParseReal(number)) : std::nullopt;
}

int WholeBlankScore(double score, std::size_t blanks) {
  constexpr double kMost = 1e6;
  const double each = score / static_cast<double>(std::max<std::size_t>(blanks, 1));
  return std::isfinite(each) ? static_cast<int>(std::clamp(std::round(each), 1.0, kMost)) : 1;
}

}  // namespace quorvantis
