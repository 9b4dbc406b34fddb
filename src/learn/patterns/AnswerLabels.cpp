// SPDX-License-Identifier: MIT
#include "learn/patterns/AnswerLabels.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionAlphabets.h"
#include "import/labels/OptionSequence.h"
#include "import/lines/AnswerWords.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

constexpr std::u16string_view kLabelEnds = u":：】]〕";
constexpr std::size_t kLongestLabel = 28;

/// A label in a line, and what follows it.
struct LabelledLine {
  TextSpan label;
  TextSpan rest;
  bool isWithin = false;
};

/// Finds what may be labels in the lines of one question.
class LabelSearch {
 public:
  LabelSearch(std::u16string_view text, TextSpan body) : text_(text), body_(body) {
    if (const auto options = FindOptions(text, body)) {
      for (const OptionLabel& option : options->labels) optionStarts_.push_back(option.label.begin);
      lastOption_ = options->labels.back().text;
    }
  }

  std::vector<LabelledLine> Lines() {
    std::vector<LabelledLine> found;
    const std::vector<TextSpan> lines = LinesOf(text_, body_);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const TextSpan line = Trimmed(text_, lines[i]);
      if (!line.IsEmpty() && !IsOption(line.begin)) AddStart(line, i == 0, found);
      if (line.end > lastOption_.begin) AddWithin(line, found);
    }
    return found;
  }

 private:
  bool IsOption(std::size_t place) const {
    return std::ranges::find(optionStarts_, place) != optionStarts_.end();
  }

  /// The first line is the question's, unless all behind the label is a key: papers without numbers begin so.
  void AddStart(TextSpan line, bool isFirst, std::vector<LabelledLine>& found) const {
    const std::size_t end = text_.substr(0, line.end).find_first_of(kLabelEnds, line.begin);
    if (end != text_.npos && end - line.begin <= kLongestLabel && end > line.begin) {
      // "【答案】：" ends in two marks.
      std::size_t labelEnd = end + 1;
      if (labelEnd < line.end && (text_[labelEnd] == u':' || text_[labelEnd] == u'：')) ++labelEnd;
      const TextSpan rest = Trimmed(text_, {labelEnd, line.end});
      if (!isFirst || LooksLikeKey(rest.Of(text_))) found.push_back({{line.begin, labelEnd}, rest});
      return;
    }
    // "Answer B": a word, and a key behind it.
    const std::size_t labelSize = line.Of(text_).find_last_of(kBlanks);
    if (labelSize == text_.npos || labelSize == 0 || labelSize > kLongestLabel) return;
    const std::size_t blank = line.begin + labelSize;
    const TextSpan key{blank + 1, line.end};
    const bool isList = text_.substr(line.begin, blank - line.begin).find_first_of(u",;，、") != text_.npos;
    if (key.Size() <= 3 && !isList && LooksLikeKey(key.Of(text_)))
      found.push_back({Trimmed(text_, {line.begin, blank}), key});
  }

  /// "D. four   Answer: B", "… [Answer: B]".
  void AddWithin(TextSpan line, std::vector<LabelledLine>& found) const {
    const std::size_t behindBegin = line.Of(text_).find_last_of(u":：");
    if (behindBegin == text_.npos || behindBegin == 0) return;
    const std::size_t colon = line.begin + behindBegin;
    const TextSpan rest = Trimmed(text_, {colon + 1, line.end});
    if (!LooksLikeKey(rest.Of(text_))) return;
    std::size_t begin = colon;
    while (begin > line.begin && colon - begin < kLongestLabel && !IsBlank(text_[begin - 1])) --begin;
    if (begin == line.begin) return;
    found.push_back({{begin, colon + 1}, rest, true});
  }

  std::u16string_view text_;
  TextSpan body_;
  std::vector<std::size_t> optionStarts_;
  TextSpan lastOption_{};
};

/// "Answer 1:" and "answer 12:" are one label.
std::u16string Normalised(std::u16string_view label) {
  std::u16string key;
  for (const char16_t unit : AsciiLower(label)) {
    const bool isDigit = unit >= u'0' && unit <= u'9';
    const bool goesOn = isDigit && !key.empty() && key.back() == u'0';
    if (!IsBlank(unit) && !goesOn) key += isDigit ? u'0' : unit;
  }
  return key;
}

/// "C) Rome".
bool BeginsWithKey(std::u16string_view text) {
  return text.size() > 2 && !AlphabetLettersOf(text[0]).empty() &&
         kLabelCloses.find(text[1]) != kLabelCloses.npos;
}

/// "Answer:", also behind another word or a bracket: "Model answer:", "【答案】".
bool SaysAnswer(std::u16string_view label) {
  for (std::size_t at = 0; at < label.size(); ++at) {
    const bool beginsWord =
        at == 0 || IsBlank(label[at - 1]) || kLabelOpens.find(label[at - 1]) != kLabelOpens.npos;
    if (beginsWord && AnswerLeadSize(label.substr(at)) > 1) return true;
  }
  return false;
}

double LikelinessOfLabel(const AnswerLabelFamily& family) {
  return static_cast<double>(family.questions) * (0.2 + family.keys + (family.isWord ? 1 : 0));
}

}  // namespace

bool LooksLikeKey(std::u16string_view text) {
  constexpr std::size_t kLongest = 14;
  constexpr std::u16string_view kBetween = u" \t,，、;；.．。)）(（/&+\u3000】]";
  constexpr std::u16string_view kTruth = u"√×✓✔✗✘对错對錯正误誤TFtfVvRrНнВв";
  if (text.empty() || text.size() > kLongest) return false;
  std::size_t letters = 0;
  for (const char16_t unit : text) {
    const bool isLetter = !AlphabetLettersOf(unit).empty() || kTruth.find(unit) != kTruth.npos;
    if (!isLetter && kBetween.find(unit) == kBetween.npos) return false;
    letters += isLetter ? 1 : 0;
  }
  constexpr std::size_t kMostLetters = 5;
  return letters > 0 && letters <= kMostLetters;
}

std::vector<AnswerLabelFamily> FindAnswerLabels(std::u16string_view text,
                                                const std::vector<TextSpan>& bodies) {
  struct Count {
    AnswerLabelFamily family;
    std::size_t keys = 0;
    std::size_t within = 0;
    std::size_t last = 0;  ///< number of the body that was counted last, from 1 on
  };
  std::map<std::u16string, Count> counts;
  for (std::size_t i = 0; i < bodies.size(); ++i) {
    for (const LabelledLine& line : LabelSearch(text, bodies[i]).Lines()) {
      Count& count = counts[Normalised(line.label.Of(text))];
      if (count.last == i + 1) continue;
      count.last = i + 1;
      if (count.family.label.empty()) count.family.label = line.label.Of(text);
      ++count.family.questions;
      if (LooksLikeKey(line.rest.Of(text)) || BeginsWithKey(line.rest.Of(text))) ++count.keys;
      if (line.isWithin) ++count.within;
    }
  }
  std::vector<AnswerLabelFamily> families;
  for (auto& [label, count] : counts) {
    constexpr std::size_t kFewOf = 5;
    count.family.isWord = SaysAnswer(count.family.label);
    const std::size_t least = count.family.isWord ? 1 : 2;
    if (count.family.questions < least || count.family.questions * kFewOf < bodies.size()) continue;
    count.family.keys = static_cast<double>(count.keys) / static_cast<double>(count.family.questions);
    count.family.standsWithinLines = count.within > 0;
    families.push_back(std::move(count.family));
  }
  std::ranges::stable_sort(families, std::greater<>(), LikelinessOfLabel);
  return families;
}

}  // namespace quorvantis
