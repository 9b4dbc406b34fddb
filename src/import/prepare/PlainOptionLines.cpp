// SPDX-License-Identifier: MIT
#include "import/prepare/PlainOptionLines.h"

#include "import/keys/OptionMarks.h"
#include "import/labels/LineText.h"
#include "import/labels/OptionSigns.h"
#include "import/lines/AnswerWords.h"
#include "import/lines/LineBullet.h"
#include "import/lines/LineWords.h"
#include "import/lines/QuestionSigns.h"
#include "import/lines/ScoreText.h"

#include <algorithm>
#include <set>

namespace quorvantis {
namespace {

constexpr std::size_t kFewestOptions = 2;
constexpr std::size_t kMostPlainOptions = 6;
constexpr std::size_t kMostBullets = 10;
constexpr std::u16string_view kDialogueDashes = u"-–—";
constexpr std::u16string_view kBoxShapes = u"○◯□☐◻▢❏❐❑❒⬜☑☒■●◉";

struct BodyLine {
  TextSpan span;  ///< without blanks at its ends
  bool followsBlank = false;
};

/// A text with a bullet or a box before it.
struct BulletedText {
  TextSpan bullet;
  TextSpan text;
  TextSpan gap;  ///< blanks before it if something else precedes it in its line
  bool isWithinLine = false;
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
  /// Options behind bullets or boxes: a line each, or several in a line.
  PlainOptionLines Bulleted() const {
    std::size_t last = FirstBulleted();
    std::vector<BulletedText> texts;
    for (std::size_t count = 1; last < lines_.size() && count > 0; last += count > 0 ? 1 : 0) {
      const std::size_t before = texts.size();
      AddBulletedTexts(lines_[last].span, texts.empty(), texts);
      count = texts.size() - before;
      if (texts.size() > kMostBullets) return {};
    }
    if (texts.size() < kFewestOptions) return {};
    const auto signOf = [this](const BulletedText& one) { return SignOfBullet(one.bullet.Of(text_)); };
    const char16_t sign = signOf(texts.front());
    const bool areEqual =
        std::ranges::all_of(texts, [&](const BulletedText& one) { return signOf(one) == sign; });
    // What follows boxes is no part of them; other bullets may have more lines.
    const bool areBoxes = areEqual && kBoxShapes.find(sign) != kBoxShapes.npos;
    if (!areBoxes && !CanEndBefore(last)) return {};
    PlainOptionLines found{PlainEvidence::Bullets, {}};
    for (const BulletedText& one : texts) {
      if (!areEqual && !IsOptionSign(signOf(one)) && !IsEmptyBox(signOf(one))) return {};
      // A dialogue has dashes, too.
      const bool isDash = kDialogueDashes.find(signOf(one)) != kDialogueDashes.npos;
      if (!CanBeOption(one.text) || (isDash && EndsInQuestionMark(one.text.Of(text_)))) return {};
      PlainOption option = Labelled(one.bullet, one.text, areEqual || IsEmptyBox(signOf(one)));
      option.gap = one.gap;
      option.isWithinLine = one.isWithinLine;
      found.options.push_back(option);
    }
    return found;
  }

  /// The first line that begins with a bullet, or has boxes behind the stem.
  std::size_t FirstBulleted() const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (i > 0 && BulletSize(lines_[i].span.Of(text_)) > 0) return i;
      std::vector<BulletedText> texts;
      AddBulletedTexts(lines_[i].span, true, texts);
      if (texts.size() >= kFewestOptions && texts.front().isWithinLine) return i;
    }
    return lines_.size();
  }

  /// Nothing if the line does not begin with a bullet, unless it may have a stem before its boxes.
  void AddBulletedTexts(TextSpan line, bool mayHaveStem, std::vector<BulletedText>& texts) const {
    const std::size_t first = texts.size();
    const std::size_t bullet = BulletSize(line.Of(text_));
    if (bullet == 0 && !mayHaveStem) return;
    if (bullet > 0) texts.push_back({{line.begin, line.begin + bullet}, {}, {}, false});
    for (std::size_t at = line.begin + std::max<std::size_t>(bullet, 1);
         at < line.end && texts.size() <= kMostBullets; ++at) {
      if (!IsBlank(text_[at - 1])) continue;
      const std::size_t size = BoxSize(TextSpan{at, line.end}.Of(text_));
      // "( )" in a sentence is a blank to fill in.
      if (size == 0 || at + size >= line.end ||
          (bullet == 0 && kBoxShapes.find(text_[at]) == kBoxShapes.npos))
        continue;
      if (!IsLetter(text_[SkipBlanks(text_, at + size, line.end - 1)]) && bullet == 0) continue;
      std::size_t gap = at;
      while (gap > line.begin && IsBlank(text_[gap - 1])) --gap;
      texts.push_back({{at, at + size}, {}, {gap, at}, true});
      at += size - 1;
    }
    for (std::size_t i = first; i < texts.size(); ++i) {
      const std::size_t end = i + 1 < texts.size() ? texts[i + 1].gap.begin : line.end;
      texts[i].text = Trimmed(text_, {texts[i].bullet.end, std::max(texts[i].bullet.end, end)});
    }
  }

  /// A blank line sets off what is no option, and so does the label of an answer.
  bool CanEndBefore(std::size_t line) const {
    if (line == lines_.size() || lines_[line].followsBlank) return true;
    const std::u16string_view content = lines_[line].span.Of(text_);
    return !EndsAsStem(content) && (AnswerLeadSize(content) > 0 || ColonIn(content) != content.npos);
  }

  static std::size_t ColonIn(std::u16string_view line) {
    constexpr std::size_t kLongestLabel = 30;
    return line.substr(0, kLongestLabel).find_first_of(u":：");
  }

  /// "Answer: Rome". Options may have colons, too.
  static bool IsAnswerLine(std::u16string_view line) {
    const std::size_t colon = ColonIn(line);
    return colon != line.npos && colon > 0 && AnswerLeadSize(line) > colon;
  }

  /// A bullet gives way to the label; a sign for the right option stays, behind the label wherever it is
  /// known for a sign there.
  PlainOption Labelled(TextSpan sign, TextSpan text, bool isBullet) const {
    if (isBullet) return {{sign.begin, text.begin}, text.begin};
    if (sign.IsEmpty()) return {{text.begin, text.begin}, text.begin};
    const char16_t unit = SignOfBullet(sign.Of(text_));
    const bool isBracketed = unit != text_[sign.begin];
    constexpr std::u16string_view kPlusAndCrosses = u"+✗✘☒";
    const bool isKnownBehind = isBracketed || kPlusAndCrosses.find(unit) != kPlusAndCrosses.npos ||
                               MeaningOf(unit) != SignMeaning::Possible;
    const std::size_t place = isKnownBehind ? sign.begin : text.begin;
    return {{place, place}, place};
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
      const bool isEnough = found.options.size() >= kFewestOptions;
      if (isEnough && IsAnswerLine(line.Of(text_))) break;
      if (!isFirst && !lines_[i].followsBlank && areSpaced) return {};
      const bool isAsking = EndsInQuestionMark(line.Of(text_));
      if (isAsking || !CanBeOption(line) || !texts.insert(line.Of(text_)).second) return {};
      const TextSpan sign = SignOf(line);
      const std::size_t text = SkipBlanks(text_, sign.end, line.end);
      found.options.push_back(Labelled(sign, {text, line.end}, false));
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
    return hasText && content.find(u"___") == content.npos && !IsScoreField(content);
  }

  /// "*" or "√"; other signs need a blank after them: "-3" is a number.
  TextSpan SignOf(TextSpan line) const {
    const char16_t unit = text_[line.begin];
    const bool isRight = kRightSigns.find(unit) != kRightSigns.npos;
    const bool isSetOff = IsOptionSign(unit) && line.Size() > 1 && IsBlank(text_[line.begin + 1]);
    if (!isRight && !isSetOff) return {line.begin, line.begin};
    const bool isEmoji = line.Size() > 1 && text_[line.begin + 1] == kVariationSelector;
    return {line.begin, line.begin + (isEmoji ? 2 : 1)};
  }

  std::u16string_view text_;
  std::vector<BodyLine> lines_;  ///< those that are not blank
};

}  // namespace

PlainOptionLines FindPlainOptions(std::u16string_view text, TextSpan body) {
  const PlainSearch search(text, body);
  PlainOptionLines found = search.Search();
  found.hasRoom = search.HasRoom() || found.evidence != PlainEvidence::None;
  return found;
}

}  // namespace quorvantis
