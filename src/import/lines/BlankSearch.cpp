// SPDX-License-Identifier: MIT
#include "import/lines/BlankSearch.h"

#include "import/labels/LineText.h"
#include "import/lines/LineWords.h"
#include "import/lines/ScoreText.h"
#include "platform/WordContent.h"
#include "text/ScriptDigits.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBlank = u"___";
constexpr std::u16string_view kBlankSetOff = u" ___ ";

bool IsChinese(char16_t unit) {
  return unit >= 0x2E80 && unit < 0xFF60;
}

/// The blanks of one line.
class BlankSearch {
 public:
  BlankSearch(const PaperText& text, TextSpan line, bool isFirst)
      : paper_(text), text_(text.characters), line_(line), isFirst_(isFirst) {
    content_ = Trimmed(text_, line);
    start_ = AfterRun(content_.begin, u"_ ");
    hasTickBoxes_ = HasTwoOf(u"( )") || HasTwoOf(u"[ ]");
  }

  void AddTo(std::vector<FoundBlank>& found) const {
    for (std::size_t at = line_.begin; at < line_.end;) {
      const std::size_t end = EndOfBlank(at);
      const bool isWholeLine = !isFirst_ && at <= content_.begin && end >= content_.end;
      if (end > at && !isWholeLine) found.push_back({{at, end}, kBlank});
      at = std::max({end, EndOfRun(at), at + 1});
    }
    AddWideGaps(found);
  }

 private:
  /// The end of a blank at this place; the place itself if there is none.
  std::size_t EndOfBlank(std::size_t at) const {
    for (const auto form :
         {&BlankSearch::Brackets, &BlankSearch::ShortLine, &BlankSearch::SpacedLine, &BlankSearch::WideLine,
          &BlankSearch::Dots, &BlankSearch::Boxes, &BlankSearch::Underlined}) {
      if (const std::size_t end = (this->*form)(at); end > at) return end;
    }
    return at;
  }

  /// What a form has looked at as a whole, so that it does not look at its rest again.
  std::size_t EndOfRun(std::size_t at) const {
    constexpr std::u16string_view kRunUnits = u"_\u25A1";
    if (IsBlank(text_[at])) return AfterBlanks(at);
    if (IsDot(text_[at])) return AfterDots(at);
    return kRunUnits.find(text_[at]) == kRunUnits.npos ? at : AfterRun(at, text_.substr(at, 1));
  }

  char16_t At(std::size_t at) const { return at >= line_.begin && at < line_.end ? text_[at] : u'\0'; }
  char16_t Before(std::size_t at) const { return at > line_.begin ? text_[at - 1] : u'\0'; }

  /// Where boxes to tick stand; the first line of a question has its number there.
  bool IsAtStart(std::size_t at) const { return at <= start_ && !isFirst_; }

  std::size_t AfterRun(std::size_t at, std::u16string_view units) const {
    while (at < line_.end && units.find(text_[at]) != units.npos) ++at;
    return at;
  }

  static bool IsAlphabetic(char16_t unit) {
    return unit != 0 && !IsChinese(unit) && (IsLetter(unit) || DigitValueOf(unit) >= 0);
  }

  std::size_t Brackets(std::size_t at) const {
    constexpr std::u16string_view kOpens = u"([（［【〔";
    constexpr std::u16string_view kCloses = u")]）］】〕";
    constexpr std::size_t kNarrow = 2;
    const std::size_t kind = kOpens.find(text_[at]);
    if (kind == kOpens.npos) return at;
    const std::size_t close = AfterRun(at + 1, kBlanks);
    // People mix ( and ）.
    const std::size_t closeKind = close < line_.end ? kCloses.find(text_[close]) : kCloses.npos;
    if (closeKind == kCloses.npos || closeKind % 2 != kind % 2) return at;
    const std::size_t size = close - at - 1;
    if (size == 0 && kind < kNarrow) return at;
    if (IsAtStart(at)) return at;
    if (size == 1 && kind < kNarrow && (IsAlphabetic(Before(at)) || IsTickBox(close + 1))) return at;
    return close + 1;
  }

  bool HasTwoOf(std::u16string_view box) const {
    const std::u16string_view line = line_.Of(text_);
    const std::size_t first = line.find(box);
    return first != line.npos && line.find(box, first + 1) != line.npos;
  }

  /// "( ) yes ( ) no": more than one, each before a word.
  bool IsTickBox(std::size_t after) const {
    return hasTickBoxes_ && IsLetter(At(SkipBlanks(text_, after, line_.end)));
  }

  /// "_" and "__", which are no blanks to the reading of papers.
  std::size_t ShortLine(std::size_t at) const {
    if (text_[at] != u'_' || Before(at) == u'_') return at;
    const std::size_t end = AfterRun(at, u"_");
    const bool isPartOfName = IsAlphabetic(Before(at)) || IsAlphabetic(At(end));
    if (end - at > 2 || isPartOfName || SpacedLine(at) > at) return at;
    const bool isOneOfSeveral = At(end) == u' ' && At(end + 1) == u'_';
    return isOneOfSeveral || (Before(at) == u' ' && at >= 2 && At(at - 2) == u'_') ? at : end;
  }

  /// "_ _ _ _", but not the letters of a word to guess: "h _ _ s e".
  std::size_t SpacedLine(std::size_t at) const {
    constexpr std::size_t kFewest = 3;
    if (text_[at] != u'_' || Before(at) == u'_') return at;
    if (Before(at) == u' ' && at >= 2 && At(at - 2) == u'_') return at;
    std::size_t end = at + 1;
    std::size_t count = 1;
    for (; At(end) == u' ' && At(end + 1) == u'_' && At(end + 2) != u'_'; end += 2) ++count;
    const bool isAfterLetter = Before(at) == u' ' && IsAlphabetic(Before(at - 1)) && Before(at - 2) == u' ';
    const char16_t next = At(end + 1);
    const bool isBeforeLetter = At(end) == u' ' && IsAlphabetic(next) && !IsAlphabetic(At(end + 2));
    const bool touchesLetter = IsAlphabetic(Before(at)) || IsAlphabetic(At(end));
    return count < kFewest || isAfterLetter || isBeforeLetter || touchesLetter ? at : end;
  }

  std::size_t WideLine(std::size_t at) const { return AfterRun(at, u"\uFF3F\uFE4D\uFE4E\uFE4F"); }

  static bool IsDot(char16_t unit) { return unit == u'.' || unit == u'…' || unit == u'·'; }

  /// Behind dots, or behind single dots with blanks between them.
  std::size_t AfterDots(std::size_t at) const {
    std::size_t end = AfterRun(at, u".…·");
    if (end - at > 1) return end;
    while (At(end) == u' ' && IsDot(At(end + 1)) && !IsDot(At(end + 2))) end += 2;
    return end;
  }

  std::size_t Dots(std::size_t at) const {
    constexpr std::size_t kFewest = 5;  // four are the end of a sentence that is left out
    constexpr std::size_t kOfEllipsis = 3;
    if (!IsDot(text_[at])) return at;
    const std::size_t end = AfterDots(at);
    std::size_t weight = 0;
    for (std::size_t i = at; i < end; ++i) {
      if (IsDot(text_[i])) weight += text_[i] == u'…' ? kOfEllipsis : 1;
    }
    const bool isProse = end - at == 2 && (IsChinese(Before(at)) || IsChinese(At(end)));
    if (weight < kFewest || isProse) return at;
    const std::size_t rest = SkipBlanks(text_, end, content_.end);
    return rest < content_.end && IsScoreText(TextSpan{rest, content_.end}.Of(text_)) ? at : end;
  }

  std::size_t Boxes(std::size_t at) const {
    const std::size_t end = AfterRun(at, u"\u25A1");
    if (end - at > 1) return end;
    const char16_t next = At(SkipBlanks(text_, end, line_.end));
    const bool isToTick = IsLetter(next) && !IsChinese(next);
    return IsAtStart(at) || isToTick || IsChinese(next) ? at : end;
  }

  bool IsUnderlined(std::size_t at) const {
    return at >= line_.begin && at < line_.end && (paper_.emphasis[at] & emphasis::kUnderlined) != 0;
  }

  /// Behind blanks that are all underlined, or none.
  std::size_t AfterBlanks(std::size_t at) const {
    std::size_t end = at + 1;
    while (end < line_.end && IsBlank(text_[end]) && IsUnderlined(end) == IsUnderlined(at)) ++end;
    return end;
  }

  /// Blanks that only their line makes visible, not those between underlined words.
  std::size_t Underlined(std::size_t at) const {
    if (!IsBlank(text_[at]) || !IsUnderlined(at) || (at > 0 && IsUnderlined(at - 1))) return at;
    const std::size_t end = AfterBlanks(at);
    const bool isWide = end - at > 1 || text_[at] == u'\t';
    return isWide && !IsUnderlined(end) ? end : at;
  }

  /// "Water boils at      degrees." Words that are set apart in columns are no sentence.
  void AddWideGaps(std::vector<FoundBlank>& found) const {
    constexpr std::size_t kMostGaps = 2;
    constexpr std::u16string_view kSentenceEnds = u".?!。？！।؟";
    const std::u16string_view content = content_.Of(text_);
    if (content.empty() || content.find(u'\t') != content.npos) return;
    if (kSentenceEnds.find(content.back()) == kSentenceEnds.npos) return;
    std::vector<FoundBlank> gaps;
    for (std::size_t at = content_.begin; at < content_.end;) {
      const std::size_t end = AfterRun(at, u" \u00A0\u3000");
      const bool isWide = end - at >= 3 || (end - at == 2 && text_[at] == u'\u3000');
      if (isWide && kSentenceEnds.find(Before(at)) == kSentenceEnds.npos)
        gaps.push_back({{at, end}, kBlankSetOff});
      at = std::max(end, at + 1);
    }
    const auto isTaken = [&found](const FoundBlank& gap) {
      return std::ranges::any_of(found, [&gap](const auto& one) { return one.span.Overlaps(gap.span); });
    };
    if (gaps.empty() || gaps.size() > kMostGaps || !IsSentence(content)) return;
    if (std::ranges::none_of(gaps, isTaken)) found.insert(found.end(), gaps.begin(), gaps.end());
  }

  static bool IsSentence(std::u16string_view content) {
    constexpr std::size_t kFewestWords = 3;
    constexpr std::ptrdiff_t kFewestSigns = 5;
    return LineWords(content).Words().size() >= kFewestWords ||
           std::ranges::count_if(content, IsChinese) >= kFewestSigns;
  }

  const PaperText& paper_;
  std::u16string_view text_;
  TextSpan line_;
  TextSpan content_;       ///< without blanks at its ends
  bool isFirst_;           ///< it begins behind the number
  std::size_t start_ = 0;  ///< of what is neither blank nor "___"
  bool hasTickBoxes_ = false;
};

}  // namespace

std::vector<FoundBlank> BlanksIn(const PaperText& text, TextSpan body) {
  std::vector<FoundBlank> found;
  for (const TextSpan& line : LinesOf(text.characters, body))
    BlankSearch(text, line, line.begin == body.begin).AddTo(found);
  return found;
}

}  // namespace quorvantis
