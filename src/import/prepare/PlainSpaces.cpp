// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/labels/OptionAlphabets.h"
#include "import/labels/OptionSequence.h"
#include "import/paper/PaperRewrite.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kParagraphEndUnits = u"\r\n";

/// Nobody sees them: marks of direction, places where a word may be parted, marks of byte order.
bool IsHiddenMark(char16_t unit) {
  constexpr std::u16string_view kMarks =
      u"\u00AD\u061C\u200B\u200E\u200F\u202A\u202B\u202C\u202D\u202E\u2060\u2066\u2067\u2068\u2069\uFEFF";
  return unit > u'\u00A0' && kMarks.find(unit) != kMarks.npos;
}

/// Blanks that rules do not take for blanks. Ideographic ones are left to them.
bool IsOddSpace(char16_t unit) {
  return unit == u'\u00A0' || unit == u'\u1680' || (unit >= u'\u2000' && unit <= u'\u200A') ||
         unit == u'\u202F' || unit == u'\u205F';
}

bool IsLabelMark(std::u16string_view marks, char16_t unit) {
  return marks.find(unit) != marks.npos;
}

/// Looks at one line after the other.
class SpaceMending {
 public:
  explicit SpaceMending(const PaperText& paper) : paper_(paper), text_(paper.characters) {
    const std::size_t end = std::min(text_.find_first_of(kParagraphEndUnits), text_.size());
    lineEnd_ = text_.substr(end, 2) == u"\r\n" ? u"\r\n" : text_.substr(end, 1) == u"\n" ? u"\n" : u"\r";
  }

  std::vector<PaperEdit> Edits() {
    MendLineEnds();
    for (const TextSpan& line : LinesOf(text_, {0, text_.size()})) {
      const std::size_t end = LeadEnd(line);
      Mend({line.begin, end});
      MendOptionsWithin({end, line.end});
    }
    return std::move(edits_);
  }

 private:
  /// A page break stays, for what follows it may be the head of a page.
  void MendLineEnds() {
    constexpr std::u16string_view kOddEnds = u"\f\u2028\u2029";
    for (std::size_t at = text_.find_first_of(kOddEnds); at != text_.npos;
         at = text_.find_first_of(kOddEnds, at + 1)) {
      const bool isPageBreak = text_[at] == u'\f';
      const bool isFollowed =
          at + 1 == text_.size() || kParagraphEndUnits.find(text_[at + 1]) != kParagraphEndUnits.npos;
      if (!isPageBreak) {
        edits_.push_back({{at, at + 1}, Rewritten(paper_, {at, at + 1}, lineEnd_)});
      } else if (!isFollowed) {
        edits_.push_back({{at + 1, at + 1}, InsertedText(lineEnd_)});
      }
    }
  }

  /// Where a number or label at the beginning of a line ends, with the blanks behind it.
  std::size_t LeadEnd(TextSpan line) const {
    constexpr std::size_t kLongestLabel = 28;
    const std::size_t last = std::min(line.end, line.begin + kLongestLabel);
    std::size_t at = SkipHidden(line.begin, line.end);
    for (std::size_t mark = at; mark < last; ++mark) {
      if (IsLabelMark(kLabelCloses, text_[mark])) return SkipHidden(mark + 1, line.end);
    }
    while (at < last && text_[at] >= u'0' && text_[at] <= u'9') ++at;
    return SkipHidden(at, line.end);
  }

  std::size_t SkipHidden(std::size_t place, std::size_t end) const {
    while (place < end && (IsBlank(text_[place]) || IsHiddenMark(text_[place]))) ++place;
    return place;
  }

  void Mend(TextSpan span) {
    for (std::size_t at = span.begin; at < span.end; ++at) {
      if (IsHiddenMark(text_[at])) edits_.push_back({{at, at + 1}});
      if (IsOddSpace(text_[at])) edits_.push_back({{at, at + 1}, Rewritten(paper_, {at, at + 1}, u" ")});
    }
  }

  /// Options that stand in one line have marks around their labels, too.
  void MendOptionsWithin(TextSpan span) {
    for (std::size_t at = span.begin; at < span.end;) {
      const std::size_t begin = at;
      at = SkipHidden(at, span.end);
      const std::size_t end = at > begin ? BehindLabel(at, span.end) : at;
      if (end > at) Mend({begin, end});
      at = end;
      while (at < span.end && !IsBlank(text_[at]) && !IsHiddenMark(text_[at])) ++at;
    }
  }

  /// Behind "(A)" and the blanks after it; `place` if there is no such label.
  std::size_t BehindLabel(std::size_t place, std::size_t end) const {
    std::size_t at = place;
    if (at < end && IsLabelMark(kLabelOpens, text_[at])) at = SkipHidden(at + 1, end);
    if (at >= end || AlphabetLettersOf(text_[at]).empty()) return place;
    at = SkipHidden(at + 1, end);
    return at < end && IsLabelMark(kLabelCloses, text_[at]) ? SkipHidden(at + 1, end) : place;
  }

  const PaperText& paper_;
  std::u16string_view text_;
  std::u16string_view lineEnd_;
  std::vector<PaperEdit> edits_;
};

}  // namespace

void step::PlainSpaces(PaperText& text, const PreparationContext& /*context*/) {
  ApplyEdits(text, SpaceMending(text).Edits());
}

}  // namespace quorvantis
