// SPDX-License-Identifier: MIT
#include "learn/reading/ShownPaper.h"

#include "import/labels/LineText.h"
#include "import/marking/ImportMarkers.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

constexpr std::u16string_view kCellBar = u" \u2502 ";
constexpr std::u16string_view kPictureEnding = u".bmp";
constexpr std::u16string_view kFormulaSign = u"\u0192";
constexpr char16_t kPictureSign = u'\u25A3';
constexpr char16_t kNotShowable = u'\uFFFD';

/// What text widgets use for purposes of their own.
constexpr bool IsShowable(char16_t unit) {
  const bool isControl = unit < u' ' && unit != u'\t';
  return !isControl && unit != u'\uFFFC' && !(unit >= u'\uFDD0' && unit <= u'\uFDEF') && unit < u'\uFFFE';
}

}  // namespace

/// Makes the text from left to right.
class ShownPaperMaking {
 public:
  ShownPaperMaking(const Paper& paper, bool hasFormulas, ShownPaper& shown)
      : source_(paper.source.characters), hasFormulas_(hasFormulas), shown_(shown) {
    for (const TableInPaper& table : paper.tables) {
      for (const std::vector<TextSpan>& row : table.rows) NoteBars(row);
    }
  }

  void Make() {
    const std::size_t end = std::min(source_.size(), ShownPaper::kMostShown);
    shown_.isWhole_ = end == source_.size();
    shown_.text_.reserve(end);
    while (at_ < end) Step();
  }

 private:
  void NoteBars(const std::vector<TextSpan>& row) {
    for (std::size_t cell = 0; cell + 1 < row.size(); ++cell) {
      const std::size_t place = row[cell].end;
      if (place < source_.size() && source_[place] == u'\t') bars_.push_back(place);
    }
  }

  void Step() {
    const char16_t unit = source_[at_];
    if (IsLineEnd(unit)) return TakeLineEnd();
    if (unit == u'\t' && IsBar()) return Replace(1, kCellBar);
    if (unit >= u'0' && unit <= u'9') {
      if (const std::size_t size = PictureSize()) return TakePicture(size);
    }
    if (hasFormulas_ && source_.substr(at_, kFormulaText.size()) == kFormulaText)
      return Replace(kFormulaText.size(), kFormulaSign);
    BreakLongLine();
    shown_.text_.push_back(IsShowable(unit) ? unit : kNotShowable);
    ++at_;
  }

  bool IsBar() {
    while (bar_ < bars_.size() && bars_[bar_] < at_) ++bar_;
    return bar_ < bars_.size() && bars_[bar_] == at_;
  }

  void TakeLineEnd() {
    const bool isPair = source_.substr(at_, 2) == u"\r\n";
    Replace(isPair ? 2 : 1, u"\n");
    lineBegin_ = shown_.text_.size();
  }

  /// The length of " 7.bmp " without its blanks, 0 if no such name begins here.
  std::size_t PictureSize() const {
    constexpr std::size_t kMostDigits = 9;
    if (at_ == 0 || source_[at_ - 1] != u' ') return 0;
    std::size_t end = at_;
    while (end < source_.size() && end - at_ < kMostDigits && IsDigit(source_[end])) ++end;
    const bool isPicture = source_.substr(end, kPictureEnding.size()) == kPictureEnding;
    end += kPictureEnding.size();
    return isPicture && end < source_.size() && source_[end] == u' ' ? end - at_ : 0;
  }

  void TakePicture(std::size_t size) {
    std::u16string sign(1, kPictureSign);
    sign += source_.substr(at_, size - kPictureEnding.size());
    Replace(size, sign);
  }

  void BreakLongLine() {
    constexpr std::size_t kBreakAtBlank = ShownPaper::kLongestLine * 3 / 4;
    const std::size_t length = shown_.text_.size() - lineBegin_;
    if (length < kBreakAtBlank || IsLowSurrogate(source_[at_])) return;
    const bool isBehindBlank = at_ > 0 && IsBlank(source_[at_ - 1]);
    if (length < ShownPaper::kLongestLine && !isBehindBlank) return;
    Replace(0, u"\n");
    lineBegin_ = shown_.text_.size();
  }

  void Replace(std::size_t size, std::u16string_view with) {
    shown_.text_ += with;
    at_ += size;
    if (size != with.size()) shown_.shifts_.push_back({at_, shown_.text_.size()});
  }

  std::u16string_view source_;
  bool hasFormulas_;
  ShownPaper& shown_;
  std::vector<std::size_t> bars_;  ///< places of tabs between cells, ascending
  std::size_t bar_ = 0;            ///< the next one
  std::size_t at_ = 0;             ///< in the paper
  std::size_t lineBegin_ = 0;      ///< in the text
};

ShownPaper::ShownPaper(const Paper& paper, bool hasFormulas) {
  ShownPaperMaking(paper, hasFormulas, *this).Make();
}

std::size_t ShownPaper::ToShown(std::size_t source) const {
  const auto next = std::upper_bound(shifts_.begin(), shifts_.end(), source,
                                     [](std::size_t at, const Shift& shift) { return at < shift.source; });
  const Shift& from = *std::prev(next);
  const std::size_t end = next == shifts_.end() ? text_.size() : next->shown;
  return std::min(from.shown + (source - from.source), end);
}

std::size_t ShownPaper::ToSource(std::size_t shown) const {
  const auto next = std::upper_bound(shifts_.begin(), shifts_.end(), shown,
                                     [](std::size_t at, const Shift& shift) { return at < shift.shown; });
  const Shift& from = *std::prev(next);
  const std::size_t source = from.source + (shown - from.shown);
  return next == shifts_.end() ? source : std::min(source, next->source);
}

}  // namespace quorvantis
