// SPDX-License-Identifier: MIT
#include "text/NumberText.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quorvantis {
namespace {

constexpr bool IsBlank(char16_t unit) {
  return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

struct SignedText {
  bool negative;
  std::u16string_view digits;
};

/// Removes leading blanks and one sign.
SignedText TakeSign(std::u16string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  const bool negative = !text.empty() && text.front() == u'-';
  if (negative || (!text.empty() && text.front() == u'+')) text.remove_prefix(1);
  return {negative, text};
}

/// The longest beginning that can be part of a decimal number, as 8-bit characters.
std::string NumberCharacters(std::u16string_view text) {
  std::string characters;
  for (const char16_t unit : text) {
    const bool belongs =
        IsDigit(unit) || std::u16string_view(u".eE+-").find(unit) != std::u16string_view::npos;
    if (!belongs) break;
    characters.push_back(static_cast<char>(unit));
  }
  return characters;
}

/// Whether a decimal number that no double can hold is too small for it; too large otherwise.
bool IsTiny(std::string_view number) {
  const std::size_t exponent = number.find_first_of("eE");
  if (exponent != std::string_view::npos) return number[exponent + 1] == '-';
  return number.find('.') < number.find_first_of("123456789");
}

}  // namespace

std::int64_t ParseInteger64(std::u16string_view text) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  const auto [negative, digits] = TakeSign(text);
  std::int64_t value = 0;
  for (std::size_t i = 0; i < digits.size() && IsDigit(digits[i]); ++i) {
    const int digit = digits[i] - u'0';
    if (value > (kMax - digit) / 10) return negative ? std::numeric_limits<std::int64_t>::min() : kMax;
    value = value * 10 + digit;
  }
  return negative ? -value : value;
}

int ParseInteger(std::u16string_view text) {
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<std::int64_t>(ParseInteger64(text), Limits::min(), Limits::max()));
}

double ParseReal(std::u16string_view text) {
  const auto [negative, digits] = TakeSign(text);
  const std::string characters = NumberCharacters(digits);
  double value = 0;
  if (characters.empty() || characters[0] == '+' || characters[0] == '-') return 0;
  const auto result = std::from_chars(characters.data(), characters.data() + characters.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    const bool tiny = IsTiny(std::string_view(characters.data(), result.ptr));
    value = tiny ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

std::u16string FormatInteger(std::int64_t value) {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return {digits, end};
}

std::u16string FormatCount(std::size_t count) {
  return FormatInteger(static_cast<std::int64_t>(count));
}

std::u16string FormatHexadecimal(std::uint32_t value) {
  char digits[8];
  const auto end = std::to_chars(digits, digits + sizeof digits, value, 16).ptr;
  return {digits, end};
}

std::u16string FormatScore(double value) {
  char digits[320];  // the largest double has 309 digits before the point
  const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 2).ptr;
  return {digits, end};
}

}  // namespace quorvantis
