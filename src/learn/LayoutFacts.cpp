// SPDX-License-Identifier: MIT
#include "learn/LayoutFacts.h"

#include "import/labels/LineText.h"
#include "import/marking/RuleKeys.h"
#include "import/prepare/StepNames.h"
#include "learn/reading/PaperNumbers.h"
#include "learn/reading/ReadingRoles.h"
#include "platform/texts/LearnTexts.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <map>

namespace quorvantis {
namespace {

/// A short text in one line.
std::u16string OneLine(std::u16string_view text) {
  constexpr std::size_t kLongest = 40;
  const TextSpan whole = Trimmed(text, {0, text.size()});
  std::u16string line(text.substr(whole.begin, std::min(whole.Size(), kLongest)));
  std::ranges::replace_if(
      line, [](char16_t unit) { return unit < u' '; }, u' ');
  return line;
}

std::u16string CountIf(const std::vector<ReadQuestion>& questions, const auto& isCounted) {
  return FormatCount(static_cast<std::size_t>(std::ranges::count_if(questions, isCounted)));
}

LearnedFact KindsOf(const std::vector<ReadQuestion>& questions) {
  const auto count = [&questions](auto... kinds) {
    return CountIf(questions,
                   [=](const ReadQuestion& question) { return ((question.kind == kinds) || ...); });
  };
  return {text_id::kLearnedKinds,
          {count(ReadKind::Choice, ReadKind::TrueFalse), count(ReadKind::FillIn), count(ReadKind::Essay)}};
}

/// How many have an answer.
LearnedFact AnsweredOf(const std::vector<ReadQuestion>& questions) {
  const std::u16string answered = CountIf(questions, [](const ReadQuestion& question) {
    return !question.letters.empty() || !question.answer.empty();
  });
  if (answered == u"0") return {text_id::kLearnedNoAnswers};
  return {text_id::kLearnedAnswered, {answered, FormatCount(questions.size())}};
}

/// Puts the facts of one layout together.
class FactList {
 public:
  FactList(const Paper& paper, const TriedLayout& layout)
      : paper_(paper), layout_(layout), draft_(layout.draft) {}

  std::vector<LearnedFact> Facts() {
    AddQuestions();
    if (layout_.reading.paper.questions.empty()) return std::move(facts_);
    AddNumbers();
    AddOptions();
    AddAnswers();
    AddLeftOut();
    return std::move(facts_);
  }

 private:
  void Add(int text, std::vector<std::u16string> values = {}) { facts_.push_back({text, std::move(values)}); }
  bool Has(std::u16string_view step) const { return draft_.HasStep(step); }

  void AddQuestions() {
    const auto& questions = layout_.reading.paper.questions;
    if (questions.empty()) return Add(text_id::kLearnedNothing);
    Add(text_id::kLearnedQuestions, {FormatCount(questions.size())});
    facts_.push_back(KindsOf(questions));
  }

  void AddNumbers() {
    if (draft_.numbers.empty())
      return Add(draft_.options.IsEmpty() ? text_id::kLearnedUnnumbered : text_id::kLearnedUnnumberedOptions);
    if (draft_.numbers.size() > 1) {
      Add(text_id::kLearnedTwoNumbers, {Example(draft_.numbers[0]), Example(draft_.numbers[1])});
    } else {
      Add(text_id::kLearnedNumbers, {Example(draft_.numbers[0])});
    }
    if (BeginAnew()) Add(text_id::kLearnedNumbersRestart);
  }

  /// Numbers in front or of answers may begin anew, too, but they are none of questions.
  bool BeginAnew() const {
    int before = 0;
    for (const PaperNumber& number : NumbersOf(paper_, layout_.reading)) {
      if (number.value == 1 && before > 1) return true;
      before = number.value;
    }
    return false;
  }

  static std::u16string Example(const NumberFamily& family) {
    const NumberLabel& label = family.labels.front();
    std::u16string example = label.prefix;
    if (!example.empty()) example += u' ';
    if (label.open != 0) example += label.open;
    return example + label.section + FormatInteger(label.value) + label.close;
  }

  void AddOptions() {
    if (Has(step_name::kTableOptions)) Add(text_id::kLearnedOptionsInTables);
    if (Has(step_name::kPlainOptions)) Add(text_id::kLearnedPlainOptions);
    if (!draft_.options.IsEmpty()) {
      Add(text_id::kLearnedOptions, {draft_.options.Example()});
      if (draft_.optionPlaces != LabelPlaces::LineStarts) Add(text_id::kLearnedOptionsInLine);
    } else if (layout_.score.choices <= 0) {
      Add(text_id::kLearnedNoOptions);
    }
    if (Has(step_name::kMixedLetters)) Add(text_id::kLearnedMixedLetters);
  }

  void AddAnswers() {
    struct StepFact {
      std::u16string_view step;
      int text;
    };
    constexpr StepFact kStepFacts[] = {{step_name::kKeyAtEnd, text_id::kLearnedKeyAtEndPlain}};
    for (const std::u16string& label : draft_.answerLabels) Add(text_id::kLearnedAnswerLabel, {label});
    for (const StepFact& fact : kStepFacts) {
      if (Has(fact.step)) Add(fact.text);
    }
    if (Has(step_name::kEmphasisedKey)) Add(EmphasisOfKeys());
    if (Has(step_name::kSignedKey)) AddExample(text_id::kLearnedKeySign, ReplacedBesideAnswer());
    if (Has(step_name::kKeyInStem)) AddExample(text_id::kLearnedKeyInStem, ExampleOfKey());
    if (Has(step_name::kKeyLetters)) AddExample(text_id::kLearnedKeyLetters, ExampleOfKey());
    facts_.push_back(AnsweredOf(layout_.reading.paper.questions));
  }

  void AddExample(int text, const std::u16string& example) {
    if (!example.empty()) Add(text, {example});
  }

  /// The emphasis that right options have more often than wrong ones.
  int EmphasisOfKeys() const {
    struct Kind {
      std::uint8_t emphasis;
      int text;
    };
    constexpr Kind kKinds[] = {{emphasis::kBold, text_id::kLearnedKeyBold},
                               {emphasis::kColoured, text_id::kLearnedKeyColoured},
                               {emphasis::kHighlighted, text_id::kLearnedKeyHighlighted},
                               {emphasis::kUnderlined, text_id::kLearnedKeyUnderlined},
                               {emphasis::kItalic, text_id::kLearnedKeyItalic}};
    std::map<int, int> counts;
    for (const ReadQuestion& question : layout_.reading.paper.questions) {
      for (std::size_t i = 0; i < question.options.size(); ++i) {
        const bool isRight = question.letters.find(static_cast<char16_t>(u'A' + i)) != std::u16string::npos;
        for (const Kind& kind : kKinds) {
          if (IsEmphasised(question.places.options[i], kind.emphasis)) counts[kind.text] += isRight ? 1 : -1;
        }
      }
    }
    const auto most = std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; });
    return most == counts.end() ? text_id::kLearnedKeyBold : most->first;
  }

  bool IsEmphasised(TextSpan option, std::uint8_t kind) const {
    const TextOrigins& origins = layout_.reading.marked.trace.origins;
    for (std::size_t at = option.begin; at < option.end; ++at) {
      if (origins[at] != kInserted && (paper_.source.emphasis[origins[at]] & kind) != 0) return true;
    }
    return false;
  }

  /// How the first key stands in the paper.
  std::u16string ExampleOfKey() const {
    for (const ReadQuestion& question : layout_.reading.paper.questions) {
      const TextOrigins& origins = layout_.reading.marked.trace.origins;
      for (std::size_t at = question.places.answer.begin; at < question.places.answer.end; ++at) {
        if (origins[at] == kInserted) continue;
        const std::u16string_view source = paper_.source.characters;
        const std::size_t begin = origins[at] > 1 ? origins[at] - 1 : 0;
        return OneLine(source.substr(begin, 3));
      }
    }
    return {};
  }

  /// The first sign that a step has taken away.
  std::u16string ReplacedBesideAnswer() const {
    for (const ReplacedMatch& match : layout_.reading.marked.trace.replaced) {
      if (match.key != rule_key::kPrepare) continue;
      for (const std::uint32_t place : match.units) {
        const char16_t unit = paper_.source.characters[place];
        if (!IsBlank(unit) && !IsLineEnd(unit)) return std::u16string(1, unit);
      }
    }
    return {};
  }

  void AddLeftOut() {
    if (const std::u16string heading = FirstWith(PaperRole::Heading); !heading.empty())
      Add(text_id::kLearnedHeadings, {heading});
    if (Has(step_name::kBlankForms)) AddBlank();
    if (Has(step_name::kSoftBreaks)) Add(text_id::kLearnedSoftBreaks);
  }

  void AddBlank() {
    for (const ReadQuestion& question : layout_.reading.paper.questions) {
      if (question.kind == ReadKind::FillIn) return Add(text_id::kLearnedBlanks, {u"___"});
    }
  }

  std::u16string FirstWith(PaperRole role) const {
    for (const RolePart& part : RolesOf(paper_, layout_.reading)) {
      if (part.role == role) return OneLine(part.span.Of(paper_.source.characters));
    }
    return {};
  }

  const Paper& paper_;
  const TriedLayout& layout_;
  const RuleDraft& draft_;
  std::vector<LearnedFact> facts_;
};

}  // namespace

std::vector<LearnedFact> FactsOf(const Paper& paper, const TriedLayout& layout) {
  return FactList(paper, layout).Facts();
}

void CountAnew(std::vector<LearnedFact>& facts, const ReadPaper& paper) {
  const LearnedFact counts[] = {{text_id::kLearnedQuestions, {FormatCount(paper.questions.size())}},
                                KindsOf(paper.questions),
                                AnsweredOf(paper.questions)};
  for (const LearnedFact& count : counts) {
    const auto old = std::ranges::find(facts, count.text, &LearnedFact::text);
    if (old != facts.end()) *old = count;
  }
}

}  // namespace quorvantis
