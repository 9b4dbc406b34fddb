// SPDX-License-Identifier: MIT
#include "import/keys/KeySection.h"
#include "import/keys/OptionKey.h"
#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"
#include "import/lines/JudgementWords.h"
#include "import/prepare/KeyReports.h"
#include "import/prepare/StepNames.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The answer to put at a question: capital letters where it names options, else the text as it is.
PaperText AnswerOf(const PaperText& text, const KeyEntry& entry, const OutlinedQuestion& question) {
  if (question.HasOptions()) {
    const OptionKey key = ReadOptionKey(text.characters, *question.options, entry.answer.Of(text.characters));
    if (key.IsClear()) return KeyAnswer(text, entry.answer, *question.options, key);
  }
  return text.Part(entry.answer);
}

/// Whether two answers say the same.
bool SayTheSame(std::u16string_view text, const OutlinedQuestion& question, std::u16string_view own,
                std::u16string_view atEnd) {
  if (question.HasOptions()) {
    const OptionKey ownKey = ReadOptionKey(text, *question.options, own);
    const OptionKey otherKey = ReadOptionKey(text, *question.options, atEnd);
    return ownKey.IsClear() && ownKey.options == otherKey.options;
  }
  const std::vector<JudgementWord> ownWords = JudgementWordsAt(own);
  const std::vector<JudgementWord> otherWords = JudgementWordsAt(atEnd);
  if (!ownWords.empty() && !otherWords.empty()) return ownWords.front().isRight == otherWords.front().isRight;
  return FoldedCore(own) == FoldedCore(atEnd);
}

}  // namespace

void step::KeyAtEnd(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  const std::optional<KeySection> section = FindKeySection(text.characters, outline).section;
  if (!section) return;
  std::vector<PaperEdit> edits;
  for (const MatchedEntry& matched : section->entries) {
    const OutlinedQuestion& question = section->questions[matched.question];
    if (!IsUnanswered(text.characters, question)) continue;
    edits.push_back(AnswerEdit(text, question, section->begin, AnswerOf(text, matched.entry, question)));
  }
  edits.push_back({{section->begin, text.Size()}});
  ApplyEdits(text, std::move(edits));
}

KeyAtEndReport ReportKeyAtEnd(const Paper& paper, const ImportSettings& rules,
                              const CancelHook& isCancelled) {
  const PaperText text = PreparedBefore(paper, rules, step_name::kKeyAtEnd, isCancelled);
  const std::u16string_view characters = text.characters;
  const KeySearchResult found = FindKeySection(characters, OutlineOf(text, rules, isCancelled));
  KeyAtEndReport report;
  report.isUnmatched = found.isUnmatched;
  report.isFound = found.section.has_value();
  if (!found.section) return report;
  for (const MatchedEntry& matched : found.section->entries) {
    const OutlinedQuestion& question = found.section->questions[matched.question];
    if (IsUnanswered(characters, question)) continue;
    const std::u16string_view own = question.answer.Of(characters);
    const std::u16string_view atEnd = matched.entry.answer.Of(characters);
    if (SayTheSame(characters, question, own, atEnd)) continue;
    report.conflicts.push_back(
        {matched.question, question.number, std::u16string(own), std::u16string(atEnd)});
  }
  for (const KeyLeftover& leftover : found.section->leftovers)
    report.leftovers.emplace_back(leftover, leftover.span.Of(characters));
  return report;
}

}  // namespace quorvantis
