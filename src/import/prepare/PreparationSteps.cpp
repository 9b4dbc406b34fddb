// SPDX-License-Identifier: MIT
#include "import/prepare/PreparationSteps.h"

#include "import/marking/RuleKeys.h"
#include "import/prepare/Steps.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr PreparationStep kSteps[] = {
    {u"SoftBreaks", step::SoftBreaks},       {u"TableOptions", step::TableOptions},
    {u"MixedLetters", step::MixedLetters},   {u"AnswerSlips", step::AnswerSlips},
    {u"Unnumbered", step::Unnumbered},       {u"PlainOptions", step::PlainOptions},
    {u"KeyAtEnd", step::KeyAtEnd},           {u"Noise", step::Noise},
    {u"Passages", step::Passages},           {u"SignedKey", step::SignedKey},
    {u"EmphasisedKey", step::EmphasisedKey}, {u"KeyInStem", step::KeyInStem},
    {u"KeyLetters", step::KeyLetters},       {u"Judgement", step::Judgement},
    {u"BlankForms", step::BlankForms},       {u"OpenAnswers", step::OpenAnswers},
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

PreparedText PreparePaper(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled) {
  const PreparationContext context{paper, rules, isCancelled};
  // The step about tables needs them in the text; without it they are left out, as always.
  PreparedText prepared{IsNamed(rules, kTableStep) ? paper.source : RunningText(paper)};
  try {
    CheckNames(rules);
    for (const PreparationStep& step : kSteps) {
      if (isCancelled && isCancelled())
        throw ImportFailure{ImportFailure::Reason::Cancelled, std::u16string(step.name)};
      if (IsNamed(rules, step.name)) step.apply(prepared.text, context);
    }
  } catch (const ImportFailure& failure) {
    prepared.failure = failure;
  }
  return prepared;
}

}  // namespace quorvantis
