// SPDX-License-Identifier: MIT
#include "exchange/form/NamedPlaces.h"

#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <string>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBetween = u" \t\n\u00A0,;|/+&、，；";
constexpr std::u16string_view kAroundLetters = u".)(:";
constexpr std::u16string_view kWordsBetween[] = {u"and", u"und", u"et", u"y", u"و", u"和"};

bool IsLetter(char16_t unit) {
  const char16_t upper = AsciiUpper(unit);
  return upper >= u'A' && upper <= u'Z';
}

/// Reads one list of places.
class PlaceList {
 public:
  explicit PlaceList(const std::vector<std::size_t>& letters) : letters_(letters) {}

  NamedPlaces Read(std::u16string_view text) {
    const std::vector<std::u16string_view> tokens = Tokens(text);
    if (tokens.size() == 1 && TakeRun(tokens[0])) return std::move(places_);
    for (std::size_t i = 0; i < tokens.size() && !places_.hasWords; ++i) {
      const bool isBetween =
          i > 0 && i + 1 < tokens.size() && tokens[i + 1].size() == 1 && IsBetween(tokens[i]);
      if (!isBetween && !TakeOne(tokens[i])) places_.hasWords = true;
    }
    return std::move(places_);
  }

 private:
  static std::vector<std::u16string_view> Tokens(std::u16string_view text) {
    std::vector<std::u16string_view> tokens;
    for (std::size_t at = text.find_first_not_of(kBetween); at != text.npos;
         at = text.find_first_not_of(kBetween, at)) {
      const std::size_t end = std::min(text.find_first_of(kBetween, at), text.size());
      std::u16string_view token = text.substr(at, end - at);
      while (!token.empty() && kAroundLetters.find(token.front()) != token.npos) token.remove_prefix(1);
      while (!token.empty() && kAroundLetters.find(token.back()) != token.npos) token.remove_suffix(1);
      if (!token.empty()) tokens.push_back(token);
      at = end;
    }
    return tokens;
  }

  static bool IsBetween(std::u16string_view token) {
    return std::any_of(std::begin(kWordsBetween), std::end(kWordsBetween),
                       [lower = AsciiLower(token)](std::u16string_view word) { return lower == word; });
  }

  /// Letters without anything between them; a word would name letters twice, of no option, or in two cases.
  bool TakeRun(std::u16string_view token) {
    if (token.size() < 2 || !std::ranges::all_of(token, IsLetter)) return false;
    const std::u16string upper = AsciiUpper(token);
    if (upper != token && AsciiLower(token) != token) return false;
    if (std::ranges::adjacent_find(upper, std::greater_equal()) != upper.end()) return false;
    const bool areOptions = std::ranges::all_of(
        upper, [this](char16_t unit) { return PlaceOf(static_cast<std::size_t>(unit - u'A')).has_value(); });
    for (std::size_t i = 0; areOptions && i < upper.size(); ++i)
      TakeOne(std::u16string_view(upper).substr(i, 1));
    return areOptions;
  }

  /// False if it is neither a letter nor a number.
  bool TakeOne(std::u16string_view token) {
    const bool isNumber = token.size() <= 2 && std::ranges::all_of(token, IsDigit);
    if (!isNumber && (token.size() != 1 || !IsLetter(token[0]))) return false;
    const auto place =
        isNumber ? PlaceOfNumber(token) : PlaceOf(static_cast<std::size_t>(AsciiUpper(token[0]) - u'A'));
    if (!place) {
      places_.namesOthers = true;
    } else if (std::ranges::find(places_.options, *place) == places_.options.end()) {
      places_.options.push_back(*place);
    }
    return true;
  }

  std::optional<std::size_t> PlaceOfNumber(std::u16string_view token) const {
    const int number = ParseInteger(token);
    const bool isThere = number >= 1 && static_cast<std::size_t>(number) <= letters_.size();
    return isThere ? std::optional(static_cast<std::size_t>(number - 1)) : std::nullopt;
  }

  std::optional<std::size_t> PlaceOf(std::size_t letter) const {
    const auto found = std::ranges::find(letters_, letter);
    return found != letters_.end() ? std::optional(static_cast<std::size_t>(found - letters_.begin()))
                                   : std::nullopt;
  }

  const std::vector<std::size_t>& letters_;
  NamedPlaces places_;
};

}  // namespace

NamedPlaces PlacesIn(std::u16string_view text, const std::vector<std::size_t>& letters) {
  return PlaceList(letters).Read(text);
}

NamedPlaces PlacesIn(std::u16string_view text, std::size_t count) {
  std::vector<std::size_t> letters(count);
  std::iota(letters.begin(), letters.end(), std::size_t{0});
  return PlacesIn(text, letters);
}

}  // namespace quorvantis
