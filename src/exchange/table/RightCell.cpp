// SPDX-License-Identifier: MIT
#include "exchange/table/RightCell.h"

#include "exchange/form/NamedPlaces.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "model/AnswerLetters.h"
#include "model/ExamLimits.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

using Doubt = NamedOptions::Doubt;

std::u16string Comparable(std::u16string_view text) {
  return AsciiLower(ReadExamText(text).text);
}

/// The texts of options, to be found as people write them again.
class ComparableOptions {
 public:
  explicit ComparableOptions(const std::vector<std::u16string>& options) : options_(options) {
    for (const std::u16string& option : options) comparable_.push_back(Comparable(option));
  }

  /// The first option with this text, written in the same way if there is one; their count if there is none.
  std::size_t Find(std::u16string_view text) const {
    const auto same = std::ranges::find(options_, text);
    if (text.empty() || same != options_.end()) return Index(same, options_, text);
    const std::u16string wanted = Comparable(text);
    return Index(std::ranges::find(comparable_, wanted), comparable_, wanted);
  }

  /// The options in a list of texts; none if one of them is that of no option.
  std::vector<bool> OfList(std::u16string_view list) const {
    std::vector<bool> rights(options_.size());
    while (!list.empty()) {
      const std::size_t end = std::min(list.find_first_of(u",;|\n"), list.size());
      const std::size_t found = Find(Trimmed(list.substr(0, end)));
      if (found == options_.size()) return std::vector<bool>(options_.size());
      rights[found] = true;
      list.remove_prefix(std::min(end + 1, list.size()));
    }
    return rights;
  }

 private:
  template <class Found>
  std::size_t Index(Found found, const std::vector<std::u16string>& in, std::u16string_view text) const {
    return text.empty() ? options_.size() : static_cast<std::size_t>(found - in.begin());
  }

  const std::vector<std::u16string>& options_;
  std::vector<std::u16string> comparable_;
};

/// Capital letters in order, with nothing between them.
bool IsKeyAsWritten(std::u16string_view cell) {
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] < OptionLetter(0) || cell[i] >= OptionLetter(kOptionCount)) return false;
    if (i > 0 && cell[i] <= cell[i - 1]) return false;
  }
  return !cell.empty();
}

bool IsNumber(std::u16string_view text) {
  return !text.empty() && IsDigit(text[0]) && text.find_first_not_of(u"0123456789.,") == text.npos;
}

/// "1,2" beside options that are numbers is a number, too.
bool IsRatherNumber(std::u16string_view cell, const std::vector<std::u16string>& options) {
  return IsNumber(cell) && cell.size() > 1 &&
         std::ranges::any_of(options, [](const auto& text) { return IsNumber(text); });
}

std::vector<bool> RightsAt(const std::vector<std::size_t>& places, std::size_t count) {
  std::vector<bool> rights(count);
  for (const std::size_t place : places) {
    if (place < count) rights[place] = true;
  }
  return rights;
}

}  // namespace

NamedOptions NamedRights(std::u16string_view cell, const std::vector<std::u16string>& options, bool isOurs) {
  const std::size_t count = options.size();
  if (cell.empty()) return {std::vector<bool>(count)};
  const ComparableOptions texts(options);
  const NamedPlaces places = PlacesIn(cell, count);
  const std::size_t text = texts.Find(cell);
  if (places.hasWords || places.options.empty() || IsRatherNumber(cell, options)) {
    std::vector<bool> rights = text < count ? RightsAt({text}, count) : texts.OfList(cell);
    const bool isRead = std::ranges::find(rights, true) != rights.end();
    return {std::move(rights), isRead ? Doubt::None : Doubt::NotRead};
  }
  std::vector<bool> byPlace = RightsAt(places.options, count);
  const std::size_t place = places.options[0];
  const bool isOwnText = places.options.size() == 1 && (text == place || options[place] == cell);
  if (text == count || isOwnText || (isOurs && IsKeyAsWritten(cell)))
    return {std::move(byPlace), places.namesOthers ? Doubt::Partly : Doubt::None};
  return {cell.size() == 1 ? std::move(byPlace) : RightsAt({text}, count), Doubt::Ambiguous};
}

}  // namespace quorvantis
