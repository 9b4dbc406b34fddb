// SPDX-License-Identifier: MIT
#include "import/lines/PageHeads.h"

#include "import/labels/LineText.h"
#include "import/lines/LineWords.h"
#include "import/lines/NoiseLines.h"

#include <algorithm>
#include <map>
#include <string>

namespace quorvantis {
namespace {

class PageHeadSearch {
 public:
  PageHeadSearch(std::u16string_view text, const std::vector<TextSpan>& lines)
      : text_(text), lines_(lines), areHeads_(lines.size(), false) {}

  std::vector<bool> Search() {
    GroupLines();
    for (const auto& [text, group] : byTemplate_) {
      if (AreNumberedInTurn(group)) Mark(group);
    }
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (IsPageLine(Content(i))) areHeads_[i] = true;
    }
    FindNeighbours();
    for (const auto& [text, group] : byText_) {
      const auto isBeside = [this](std::size_t line) { return BeginsPage(line) || isBesideHead_[line]; };
      if (group.size() > 1 && std::ranges::all_of(group, isBeside)) Mark(group);
    }
    return std::move(areHeads_);
  }

 private:
  using Group = std::vector<std::size_t>;  ///< of lines, by their index

  std::u16string_view Content(std::size_t line) const { return Trimmed(text_, lines_[line]).Of(text_); }

  /// Only lines that could be a head: short, and no blank to write on.
  void GroupLines() {
    constexpr std::size_t kLongest = 100;
    constexpr std::size_t kShortest = 3;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const std::u16string_view content = Content(i);
      if (content.size() < kShortest || content.size() > kLongest) continue;
      const LineWords words(content);
      const bool isDashed = IsDashedNumber(words);
      if (isDashed || (words.Numbers() > 0 && NamesPage(content))) byTemplate_[words.Template()].push_back(i);
      if (!words.Words().empty()) byText_[std::u16string(content)].push_back(i);
    }
  }

  /// "- 3 -"
  static bool IsDashedNumber(const LineWords& words) {
    constexpr std::u16string_view kForms[] = {u"- 0 -", u"-0-", u"– 0 –", u"–0–", u"— 0 —", u"—0—", u"·0·"};
    return words.Numbers() == 1 && std::ranges::find(kForms, words.Template()) != std::end(kForms);
  }

  /// One of the numbers rises by one from line to line, and the others stay.
  bool AreNumberedInTurn(const Group& group) const {
    if (group.size() < 2) return false;
    const std::vector<int> first = LineWords(Content(group[0])).Values();
    std::vector<int> rising(first.size(), 0);
    for (std::size_t i = 1; i < group.size(); ++i) {
      const std::vector<int> values = LineWords(Content(group[i])).Values();
      const std::vector<int> before = LineWords(Content(group[i - 1])).Values();
      for (std::size_t number = 0; number < first.size(); ++number) {
        if (values[number] == before[number] + 1) {
          ++rising[number];
        } else if (values[number] != before[number]) {
          return false;
        }
      }
    }
    const auto all = static_cast<int>(group.size()) - 1;
    return std::ranges::count(rising, all) == 1 &&
           std::ranges::all_of(rising, [all](int count) { return count == 0 || count == all; });
  }

  void Mark(const Group& group) {
    for (const std::size_t line : group) areHeads_[line] = true;
  }

  bool BeginsPage(std::size_t line) const {
    // A step may have put the end of a line behind the page break.
    const std::size_t end = text_.substr(0, lines_[line].begin).find_last_not_of(u"\r\n");
    return end == text_.npos || text_[end] == u'\f';
  }

  /// The lines before and after heads, blank ones left aside.
  void FindNeighbours() {
    isBesideHead_.assign(lines_.size(), false);
    std::size_t before = lines_.size();
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (Content(i).empty()) continue;
      if (before < lines_.size()) {
        isBesideHead_[i] = isBesideHead_[i] || areHeads_[before];
        isBesideHead_[before] = isBesideHead_[before] || areHeads_[i];
      }
      before = i;
    }
  }

  std::u16string_view text_;
  const std::vector<TextSpan>& lines_;
  std::map<std::u16string, Group> byTemplate_;
  std::map<std::u16string, Group> byText_;
  std::vector<bool> areHeads_;
  std::vector<bool> isBesideHead_;
};

}  // namespace

std::vector<bool> FindPageHeads(std::u16string_view text, const std::vector<TextSpan>& lines) {
  return PageHeadSearch(text, lines).Search();
}

}  // namespace quorvantis
