// SPDX-License-Identifier: MIT
#include "import/prepare/PreparationSteps.h"

#include "import/marking/RuleKeys.h"
#include "import/prepare/StepNames.h"
#include "import/prepare/Steps.h"
#include "platform/texts/StudioTexts.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <memory>

namespace quorvantis {
namespace {

constexpr PreparationStep kSteps[] = {
    {step_name::kSoftBreaks, step::SoftBreaks, text_id::kStepSoftBreaks, u"line breaks end lines"},
    {step_name::kPlainSpaces, step::PlainSpaces, text_id::kStepPlainSpaces,
     u"blanks and line ends of all kinds become plain ones around labels"},
    {step_name::kTableOptions, step::TableOptions, text_id::kStepTableOptions,
     u"cells of tables become lines"},
    {step_name::kMixedLetters, step::MixedLetters, text_id::kStepMixedLetters,
     u"option letters of another script become those that they look like"},
    {step_name::kAnswerSlips, step::AnswerSlips, text_id::kStepAnswerSlips,
     u"misspelt labels of answers are mended"},
    {step_name::kOptionColumns, step::OptionColumns, text_id::kStepOptionColumns,
     u"options in columns come one below the other"},
    {step_name::kNumberedOptions, step::NumberedOptions, text_id::kStepNumberedOptions,
     u"options that are numbered like questions get other numbers"},
    {step_name::kForgottenNumbers, step::ForgottenNumbers, text_id::kStepForgottenNumbers,
     u"numbers that are missing or misread are put in"},
    {step_name::kUnnumbered, step::Unnumbered, text_id::kStepUnnumbered,
     u"questions without numbers get some"},
    {step_name::kPlainOptions, step::PlainOptions, text_id::kStepPlainOptions,
     u"options without labels get some"},
    {step_name::kClozeStems, step::ClozeStems, text_id::kStepClozeStems,
     u"questions without text get their number as text"},
    {step_name::kKeyAtEnd, step::KeyAtEnd, text_id::kStepKeyAtEnd,
     u"answers at the end go to their questions, by number"},
    {step_name::kNoise, step::Noise, text_id::kStepNoise, u"page heads and the like are left out"},
    {step_name::kPassages, step::Passages, text_id::kStepPassages,
     u"texts between questions go to the one behind them"},
    {step_name::kSignedKey, step::SignedKey, text_id::kStepSignedKey, u"a sign marks the right option"},
    {step_name::kEmphasisedKey, step::EmphasisedKey, text_id::kStepEmphasisedKey,
     u"bold type or colour marks the right option"},
    {step_name::kKeyInStem, step::KeyInStem, text_id::kStepKeyInStem,
     u"a letter in the question is its answer"},
    {step_name::kKeyLetters, step::KeyLetters, text_id::kStepKeyLetters, u"answers become capital letters"},
    {step_name::kJudgement, step::Judgement, text_id::kStepJudgement,
     u"true/false questions get two options"},
    {step_name::kBlankForms, step::BlankForms, text_id::kStepBlankForms, u"blanks become ___"},
    {step_name::kOpenAnswers, step::OpenAnswers, text_id::kStepOpenAnswers,
     u"questions without an answer are read, too"},
};

bool IsNamed(const ImportSettings& rules, std::u16string_view step) {
  return std::ranges::any_of(rules.prepare,
                             [step](const auto& name) { return EqualsIgnoringAsciiCase(name, step); });
}

void CheckNames(const ImportSettings& rules) {
  for (const std::u16string& name : rules.prepare) {
    const bool isKnown = std::ranges::any_of(
        kSteps, [&name](const PreparationStep& step) { return EqualsIgnoringAsciiCase(name, step.name); });
    if (!isKnown) throw ImportFailure{ImportFailure::Reason::UnknownStep, name};
  }
}

/// The steps that some rules name, run on one text.
class StepRun {
 public:
  StepRun(PaperText& text, const PreparationContext& context) : text_(text), context_(context) {
    // The text to begin with depends on this step, too.
    std::u16string made(IsNamed(context.rules, step_name::kTableOptions) ? u"tables," : u"");
    made += RulesAsText(context.rules);
    for (const PreparationStep& step : kSteps) {
      if (!IsNamed(context.rules, step.name)) continue;
      made.append(step.name).append(u",");
      steps_.push_back({&step, made});
    }
  }

  void Run() {
    for (std::size_t i = TakeKnown(); i < steps_.size(); ++i) {
      if (context_.isCancelled && context_.isCancelled())
        throw ImportFailure{ImportFailure::Reason::Cancelled, std::u16string(steps_[i].step->name)};
      steps_[i].step->apply(text_, context_);
      if (context_.memory != nullptr)
        context_.memory->Keep(steps_[i].made, std::make_shared<const PaperText>(text_));
    }
  }

 private:
  struct NamedStep {
    const PreparationStep* step;
    std::u16string made;  ///< what the text is after it
  };

  /// Takes what is known of the text after most steps; returns how many these are.
  std::size_t TakeKnown() {
    for (std::size_t count = context_.memory == nullptr ? 0 : steps_.size(); count > 0; --count) {
      const PreparationMemory::Text known = context_.memory->Find(steps_[count - 1].made);
      if (!known) continue;
      text_ = *known;
      return count;
    }
    return 0;
  }

  PaperText& text_;
  const PreparationContext context_;
  std::vector<NamedStep> steps_;
};

}  // namespace

std::span<const PreparationStep> PreparationSteps() {
  return kSteps;
}

std::vector<std::u16string> ReadPrepareList(std::u16string_view value) {
  constexpr std::u16string_view kSeparators = u" \t,;\uFF0C\u3001\u3000";
  std::vector<std::u16string> names;
  for (;;) {
    const std::size_t begin = value.find_first_not_of(kSeparators);
    if (begin == value.npos) return names;
    value.remove_prefix(begin);
    const std::size_t size = std::min(value.find_first_of(kSeparators), value.size());
    names.emplace_back(value.substr(0, size));
    value.remove_prefix(size);
  }
}

std::u16string PrepareListText(const std::vector<std::u16string>& names) {
  std::u16string text;
  for (const std::u16string& name : names) text += (text.empty() ? u"" : u", ") + name;
  return text;
}

PaperOutline OutlineOf(const PaperText& text, const PreparationContext& context) {
  if (context.memory == nullptr) return OutlineOf(text, context.rules, context.isCancelled);
  return context.memory->Outline(text, context.rules, context.isCancelled);
}

PreparedText PreparePaper(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                          PreparationMemory* memory) {
  // The step about tables needs them in the text; without it they are left out, as always.
  PreparedText prepared{IsNamed(rules, step_name::kTableOptions) ? paper.source : RunningText(paper)};
  try {
    CheckNames(rules);
    ImportSettings seen = rules;
    seen.m_strPattern.clear();
    StepRun(prepared.text, {paper, seen, isCancelled, memory}).Run();
  } catch (const ImportFailure& failure) {
    prepared.failure = failure;
  }
  return prepared;
}

}  // namespace quorvantis
