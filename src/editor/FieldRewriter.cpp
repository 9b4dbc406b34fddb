// SPDX-License-Identifier: MIT
#include "editor/FieldRewriter.h"

#include "model/ExamFields.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"

namespace quorvantis {

std::vector<FieldRewrite> FieldRewriter::Rewrite(const std::vector<FieldRewrite>& rewrites) {
  questions_.StoreCurrentQuestion();
  std::vector<FieldRewrite> leftAlone;
  for (const FieldRewrite& rewrite : rewrites) {
    if (!Rewrite(rewrite)) leftAlone.push_back(rewrite);
  }
  if (leftAlone.size() == rewrites.size()) return leftAlone;
  questions_.LoadCurrentQuestion();
  state_.MarkModified();
  return leftAlone;
}

bool FieldRewriter::Rewrite(const FieldRewrite& rewrite) {
  std::u16string* text = TextAt(exam_.Change(), rewrite.place);
  const std::size_t limit = FieldNamed(rewrite.place.field).limit;
  const bool fits = rewrite.after.size() <= limit || rewrite.after.size() < rewrite.before.size();
  if (text == nullptr || *text != rewrite.before || limit == 0 || !fits) return false;
  *text = rewrite.after;
  if (rewrite.place.field == ExamFieldName::FillInAnswer)
    state_.document.Services().longAnswerFlags.SetIfLong(rewrite.place.question, *text);
  return true;
}

}  // namespace quorvantis
