// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/marking/RuleKeys.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/Steps.h"

namespace quorvantis {
namespace {

/// With a block of answers, the reading of papers does not look for those of single questions: their label
/// would stay in the text.
bool HasAnswerBlock(const PaperText& text, const PreparationContext& context) {
  const auto finds = [&](std::u16string_view key, const std::u16string& pattern) {
    return !pattern.empty() && RuleSearch(key, pattern, context.isCancelled).Find(text.characters);
  };
  const ImportSettings& rules = context.rules;
  return finds(rule_key::kChoiceAnswerPattern, rules.m_strChoiceAnswerPattern) ||
         finds(rule_key::kJudgementAnswerPattern, rules.m_strJudgementAnswerPattern);
}

}  // namespace

void step::OpenAnswers(PaperText& text, const PreparationContext& context) {
  if (HasAnswerBlock(text, context)) return;
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : OutlineOf(text, context).questions) {
    const TextSpan body = Trimmed(text.characters, {question.label.end, question.whole.end});
    if (question.HasAnswer() || body.IsEmpty()) continue;
    std::u16string answer(LineEndNear(text.characters, body.end));
    answer += kPreparedKey;
    // Blanks at the end of the paper would be the answer.
    const std::size_t end = question.whole.end == text.Size() ? text.Size() : body.end;
    edits.push_back({{body.end, end}, InsertedText(answer)});
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
