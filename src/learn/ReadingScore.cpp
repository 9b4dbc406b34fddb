// SPDX-License-Identifier: MIT
#include "learn/ReadingScore.h"

#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/labels/OptionSequence.h"
#include "import/marking/ImportMarkers.h"
#include "import/marking/RuleKeys.h"
#include "import/paper/PreparedLabels.h"
#include "learn/patterns/NumberFamilies.h"
#include "learn/reading/ReadingRoles.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace quorvantis {
namespace {

double Share(std::size_t part, std::size_t whole) {
  return whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole);
}

/// The numbers that stood in the labels of questions, in their order.
std::vector<int> NumbersOf(const Paper& paper, const MarkedText& marked) {
  std::vector<std::pair<std::uint32_t, int>> numbers;
  for (const ReplacedMatch& match : marked.trace.replaced) {
    if (match.key != rule_key::kPreQuestion && match.key != rule_key::kPreParenQuestion) continue;
    std::u16string label;
    for (const std::uint32_t place : match.units) label += paper.source.characters[place];
    // Labels that a step has put in number by themselves.
    const int value = NumberInLabel(label);
    if (value > 0) numbers.emplace_back(match.units.front(), value);
  }
  std::ranges::sort(numbers);
  std::vector<int> values(numbers.size());
  std::ranges::transform(numbers, values.begin(), [](const auto& number) { return number.second; });
  return values;
}

/// `numbers`: those of the paper; further ones are of questions that a step has numbered.
double RisingShare(const std::vector<int>& numbers, std::size_t questions, double choices) {
  constexpr double kOfStepsOwnNumbers = 0.7;
  if (numbers.empty()) return kOfStepsOwnNumbers;
  const std::size_t ownNumbers = questions - std::min(questions, numbers.size());
  int missing = static_cast<int>(ownNumbers);
  std::size_t good = 0;
  std::size_t runs = 1;
  int before = 0;
  for (const int number : numbers) {
    const bool isAnew = number == 1 && before > 2;
    const int gap = number - before - 1;
    const bool isFilled = gap > 0 && gap <= missing;
    if (isFilled) missing -= gap;
    if (gap == 0 || isFilled || isAnew) ++good;
    runs += isAnew ? 1 : 0;
    before = number;
  }
  // Numbers that begin anew all the time are those of options, unless what they number has options itself.
  constexpr std::size_t kManyRuns = 3;
  constexpr std::size_t kShortRun = 6;
  constexpr double kMostly = 0.5;
  const bool areOptions = runs >= kManyRuns && numbers.size() < runs * kShortRun && choices < kMostly;
  const double all = static_cast<double>(good) + kOfStepsOwnNumbers * static_cast<double>(ownNumbers);
  return all / static_cast<double>(numbers.size() + ownNumbers) * (areOptions ? 0.5 : 1.0);
}

bool HasMarker(std::u16string_view text) {
  return text.find(kAnswerMarker) != text.npos || text.find(kAnswerSectionMarker) != text.npos ||
         text.find(kPreparedOpen) != text.npos;
}

std::size_t OptionsOf(const ReadQuestion& question) {
  return static_cast<std::size_t>(
      std::ranges::count_if(question.options, [](const auto& o) { return !o.empty(); }));
}

/// "A." to "C." at the beginning of lines; instructions may be numbered "1." to "3.".
bool HasLetteredLines(const OptionSequence& run) {
  return run.LineStarts() > 2 && !OptionAlphabets()[run.alphabet].numbersStatements;
}

/// The share of a paper that stands before the first question, if it looks like questions, too.
double LeftFront(const Paper& paper, const std::vector<RolePart>& roles) {
  const auto first = std::ranges::find(roles, PaperRole::QuestionNumber, &RolePart::role);
  if (first == roles.end()) return 0;
  constexpr std::size_t kEnoughToSee = 4'000;
  const std::size_t end = first->span.begin;
  const auto runs = FindOptionRuns(paper.source.characters, {end - std::min(end, kEnoughToSee), end});
  return std::ranges::any_of(runs, HasLetteredLines) ? Share(end, paper.source.Size()) : 0;
}

/// Counts what is wrong with the questions of a reading.
class Counting {
 public:
  Counting(const ReadPaper& paper, const std::set<std::size_t>& alphabets)
      : paper_(paper), alphabets_(alphabets) {
    for (const ReadQuestion& question : paper.questions) Count(question);
  }

  void Fill(ReadingScore& score) const {
    const std::size_t all = paper_.questions.size();
    std::size_t usual = 0;
    for (const auto& [options, count] : sizes_) usual = std::max(usual, count);
    score.choices = Share(choices_, all);
    score.answered = Share(answered_, all);
    score.regular = Share(usual, choices_);
    score.keys = Share(keys_, choices_);
    score.plausibleKeys = keys_ == 0 ? 0 : plausible_ / static_cast<double>(keys_);
    score.leftOptions = Share(leftOptions_, all);
    score.leftNumbers = Share(leftNumbers_, leftNumbers_ + all);
    score.strayMarkers = Share(markers_, all);
    score.longOptions = Share(longOptions_, choices_);
    score.emptyParts = Share(empty_, all);
    score.overlong = Share(Overlong(), all);
  }

 private:
  void Count(const ReadQuestion& question) {
    const bool isChoice = question.kind == ReadKind::Choice;
    std::u16string all = question.text + question.answer;
    for (const std::u16string& option : question.options) all += u"\n" + option;
    sizesOfTexts_.push_back(question.text.size());
    if (HasMarker(all)) ++markers_;
    if (Trimmed(question.text, {0, question.text.size()}).IsEmpty()) ++empty_;
    if (isChoice) CountChoice(question);
    if (!isChoice && !question.answer.empty()) ++answered_;
    if (HoldsOptions(question)) ++leftOptions_;
  }

  void CountChoice(const ReadQuestion& question) {
    ++choices_;
    ++sizes_[OptionsOf(question)];
    if (!question.letters.empty()) ++keys_;
    // Most questions have one right option, many have two.
    if (question.letters.size() == 1) plausible_ += 1.0;
    if (question.letters.size() == 2) plausible_ += 0.8;
    if (question.letters.size() > 2) plausible_ += 0.3;
    bool isLong = false;
    for (std::size_t i = 0; i < question.options.size(); ++i) {
      isLong = isLong || question.options[i].find_first_of(kLineEnds) != std::u16string::npos;
      const bool isGap =
          question.options[i].empty() && i + 1 < question.options.size() && !question.options[i + 1].empty();
      if (isGap) {
        ++empty_;
        break;
      }
    }
    if (isLong) ++longOptions_;
    leftNumbers_ += NumberedLines(LastOption(question));
  }

  static std::u16string_view LastOption(const ReadQuestion& question) {
    std::u16string_view last;
    for (const std::u16string& option : question.options) {
      if (!option.empty()) last = option;
    }
    return last;
  }

  /// Lines behind the first one that begin as questions do, with a number.
  static std::size_t NumberedLines(std::u16string_view option) {
    if (option.find_first_of(kLineEnds) == option.npos) return 0;
    std::size_t count = 0;
    const std::vector<TextSpan> lines = LinesOf(option, {0, option.size()});
    for (std::size_t i = 1; i < lines.size(); ++i) {
      const std::vector<NumberLabel> labels = NumberLabelsAt(option, lines[i]);
      count +=
          std::any_of(labels.begin(), labels.end(),
                      [](const NumberLabel& label) {
                        return label.kind <= NumeralKind::Thai && !label.close.empty() && label.open == 0;
                      })
              ? 1
              : 0;
    }
    return count;
  }

  bool HoldsOptions(const ReadQuestion& question) const {
    const auto holds = [this](std::u16string_view text) {
      constexpr std::size_t kEnoughToSee = 4'000;
      const TextSpan looked{0, std::min(text.size(), kEnoughToSee)};
      return std::ranges::any_of(FindOptionRuns(text, looked), [this](const OptionSequence& run) {
        const bool isInUse = alphabets_.empty() || alphabets_.contains(run.alphabet);
        return isInUse && (run.labels.size() > 2 || run.LineStarts() == 2);
      });
    };
    return holds(question.text) || std::ranges::any_of(question.options, holds) || holds(question.answer);
  }

  std::size_t Overlong() const {
    if (sizesOfTexts_.empty()) return 0;
    std::vector<std::size_t> sorted = sizesOfTexts_;
    std::ranges::nth_element(sorted, sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2));
    const std::size_t limit = std::max<std::size_t>(sorted[sorted.size() / 2] * 8, 1'200);
    return static_cast<std::size_t>(
        std::ranges::count_if(sizesOfTexts_, [limit](std::size_t size) { return size > limit; }));
  }

  const ReadPaper& paper_;
  const std::set<std::size_t>& alphabets_;
  std::size_t choices_ = 0;
  std::size_t answered_ = 0;
  std::size_t keys_ = 0;
  double plausible_ = 0;
  std::size_t leftOptions_ = 0;
  std::size_t leftNumbers_ = 0;
  std::size_t markers_ = 0;
  std::size_t longOptions_ = 0;
  std::size_t empty_ = 0;
  std::map<std::size_t, std::size_t> sizes_;  ///< how many choice questions have how many options
  std::vector<std::size_t> sizesOfTexts_;
};

}  // namespace

ReadingScore ScoreOf(const Paper& paper, const PaperReading& reading,
                     const std::set<std::size_t>& alphabets) {
  ReadingScore score;
  if (reading.HasFailed()) return score;
  score.questions = reading.paper.questions.size();
  if (score.questions == 0) return score;
  const std::vector<RolePart> roles = RolesOf(paper, reading);
  score.explained = ExplainedShare(paper, roles);
  score.leftFront = LeftFront(paper, roles);
  score.dropped = std::min(Share(reading.paper.dropped.size(), score.questions), 1.0);
  Counting(reading.paper, alphabets).Fill(score);
  score.rising = RisingShare(NumbersOf(paper, reading.marked), score.questions, score.choices);
  return score;
}

double ReadingScore::Total() const {
  if (questions == 0) return -1'000;
  const double many = std::log2(1.0 + static_cast<double>(std::min<std::size_t>(questions, 40)));
  return 4 * rising + 0.5 * many + choices * (1.5 * regular + 0.5) +
         choices * keys * (2.5 * plausibleKeys - 0.5) + 0.5 * answered + 2 * explained - 5 * leftOptions -
         5 * leftFront - 5 * strayMarkers - 5 * leftNumbers - 2 * dropped - 0.7 * longOptions -
         4 * emptyParts - 2 * overlong;
}

double ReadingScore::Confidence() const {
  if (questions == 0) return 0;
  const double structure = rising * (1 - leftOptions) * (1 - leftFront) * (1 - std::min(1.0, dropped)) *
                           (1 - emptyParts) * (1 - strayMarkers) * (1 - 0.5 * overlong);
  const double options = choices > 0 ? 0.5 + 0.5 * regular : 1.0;
  return std::clamp(structure * options * (0.3 + 0.7 * explained), 0.0, 1.0);
}

}  // namespace quorvantis
