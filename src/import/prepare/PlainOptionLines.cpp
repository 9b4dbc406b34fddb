// SPDX-License-Identifier: MIT
#include "import/prepare/PlainOptionLines.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionSigns.h"
#include "import/prepare/LineBullet.h"
#include "import/prepare/LineWords.h"
#include "import/prepare/QuestionSigns.h"
#include "import/prepare/ScoreText.h"

#include <algorithm>
#include <set>

namespace quorvantis {
namespace {

constexpr std::size_t kFewestOptions = 2;
constexpr std::size_t kMostPlainOptions = 6;
constexpr std::size_t kMostBullets = 10;

struct BodyLine {
  TextSpan span;  ///< without blanks at its ends
  bool followsBlank = false;
};

class PlainSearch {
 public:
  PlainSearch(std::u16string_view text, TextSpan body) : text_(text) {
    // A question of more lines is a text to read.
    constexpr std::size_t kMostLines = 200;
    bool followsBlank = false;
    for (const TextSpan& line : LinesOf(text, body)) {
      const TextSpan content = Trimmed(text, line);
      if (!content.IsEmpty()) lines_.push_back({content, followsBlank});
      followsBlank = content.IsEmpty();
      if (lines_.size() > kMostLines) lines_.clear();
      if (lines_.empty() && !content.IsEmpty()) return;
    }
  }

  /// Whether there are lines after the first one that could be options.
  bool HasRoom() const { return lines_.size() > kFewestOptions; }

  PlainOptionLines Search() const {
    if (PlainOptionLines found = Bulleted(); found.evidence != PlainEvidence::None) return found;
    std::size_t stem = lines_.size();
    for (std::size_t i = 0; i + kFewestOptions < lines_.size(); ++i) {
      if (EndsAsStem(lines_[i].span.Of(text_))) stem = i;
    }
    if (stem < lines_.size()) return After(stem, PlainEvidence::Stem);
    return After(0, PlainEvidence::Count);
  }

 private:
  std::size_t BulletOf(std::size_t line) const { return BulletSize(lines_[line].span.Of(text_)); }

  PlainOptionLines Bulleted() const {
    std::size_t first = 1;
    while (first < lines_.size() && BulletOf(first) == 0) ++first;
    std::size_t last = first;
    while (last < lines_.size() && BulletOf(last) > 0) ++last;
    const std::size_t count = last - first;
    const bool isAtEnd = last == lines_.size() || lines_[last].followsBlank;
    if (count < kFewestOptions || count > kMostBullets || !isAtEnd) return {};
    const char16_t bullet = text_[lines_[first].span.begin];
    bool areEqual = true;
    bool areSigns = true;
    for (std::size_t i = first; i < last; ++i) {
      const char16_t unit = text_[lines_[i].span.begin];
      areEqual = areEqual && unit == bullet;
      areSigns = areSigns && IsOptionSign(unit);
      // A dialogue has dashes, too.
      if (!CanBeOption(lines_[i].span)) return {};
    }
    if (!areEqual && !areSigns) return {};
    PlainOptionLines found{PlainEvidence::Bullets, {}};
    for (std::size_t i = first; i < last; ++i) {
      const TextSpan line = lines_[i].span;
      const std::size_t text = SkipBlanks(text_, line.begin + BulletOf(i), line.end);
      found.options.push_back({areEqual ? TextSpan{line.begin, text} : TextSpan{text, text}, text});
    }
    return found;
  }

  /// The lines after a stem, up to a blank one unless all have one before them.
  PlainOptionLines After(std::size_t stem, PlainEvidence evidence) const {
    PlainOptionLines found{evidence, {}};
    std::set<std::u16string_view> texts;
    bool areSpaced = true;
    for (std::size_t i = stem + 1; i < lines_.size(); ++i) {
      const TextSpan line = lines_[i].span;
      const bool isFirst = i == stem + 1;
      if (isFirst) areSpaced = lines_[i].followsBlank;
      if (!isFirst && lines_[i].followsBlank && !areSpaced) break;
      if (!isFirst && !lines_[i].followsBlank && areSpaced) return {};
      if (!CanBeOption(line) || !texts.insert(line.Of(text_)).second) return {};
      const std::size_t place = BehindSign(line);
      found.options.push_back({{place, place}, place});
    }
    const bool isFew = found.options.size() < (evidence == PlainEvidence::Count ? 3 : kFewestOptions);
    return isFew || found.options.size() > kMostPlainOptions ? PlainOptionLines() : found;
  }

  bool CanBeOption(TextSpan line) const {
    constexpr std::size_t kLongest = 150;
    if (line.Size() > kLongest) return false;
    const std::u16string_view content = line.Of(text_);
    const LineWords words(content);
    const bool hasText = !words.Words().empty() || words.Numbers() > 0;
    return hasText && !EndsInQuestionMark(content) && content.find(u"___") == content.npos &&
           !IsScoreField(content);
  }

  /// Behind "*" or "√"; other signs need a blank after them: "-3" is a number.
  std::size_t BehindSign(TextSpan line) const {
    const char16_t unit = text_[line.begin];
    const bool isRight = kRightSigns.find(unit) != kRightSigns.npos;
    const bool isSetOff = IsOptionSign(unit) && line.Size() > 1 && IsBlank(text_[line.begin + 1]);
    if (!isRight && !isSetOff) return line.begin;
    std::size_t at = line.begin + 1;
    if (at < line.end && text_[at] == kVariationSelector) ++at;
    return SkipBlanks(text_, at, line.end);
  }

  std::u16string_view text_;
  std::vector<BodyLine> lines_;  ///< those that are not blank
};

}  // namespace

PlainOptionLines FindPlainOptions(std::u16string_view text, TextSpan body) {
  const PlainSearch search(text, body);
  PlainOptionLines found = search.Search();
  found.hasRoom = search.HasRoom();
  return found;
}

}  // namespace quorvantis
