// SPDX-License-Identifier: MIT
#include "import/LineEnds.h"

#include "editor/QuestionForm.h"

#include <utility>

namespace quorvantis {
namespace {

/// Calls `visit` with each text of a question that pages show, and the size limit of its field.
template <class Question, class Visit>
void VisitTexts(Question& question, const Visit& visit) {
  visit(question.text, MaxLength(FormField::Text));
  for (std::size_t i = 0; i < kOptionCount; ++i) visit(question.options[i], MaxLength(OptionField(i)));
  visit(question.answerText, MaxLength(FormField::Answer));
  visit(question.essayAnswer, MaxLength(FormField::Essay));
}

}  // namespace

bool HasLoneLineEnd(std::u16string_view text) {
  std::size_t at = 0;
  while ((at = text.find_first_of(u"\r\n", at)) != text.npos) {
    if (text.substr(at, 2) != u"\r\n") return true;
    at += 2;
  }
  return false;
}

std::u16string WithWholeLineEnds(std::u16string_view text) {
  std::u16string mended;
  for (;;) {
    const std::size_t at = text.find_first_of(u"\r\n\v");
    mended += text.substr(0, at);
    if (at == text.npos) return mended;
    mended += u"\r\n";
    text.remove_prefix(at + (text.substr(at, 2) == u"\r\n" ? 2 : 1));
  }
}

int CountLoneLineEnds(const ExamPaper& exam, int first, int last) {
  int count = 0;
  for (int n = first; n <= last; ++n) {
    bool found = false;
    VisitTexts(exam.Question(n), [&](const std::u16string& text, std::size_t) {
      if (HasLoneLineEnd(text)) found = true;
    });
    if (found) ++count;
  }
  return count;
}

void MendLineEnds(ExamPaper& exam, int first, int last) {
  for (int n = first; n <= last; ++n) {
    VisitTexts(exam.Question(n), [](std::u16string& text, std::size_t most) {
      std::u16string mended = WithWholeLineEnds(text);
      if (mended.size() <= most || mended.size() == text.size()) text = std::move(mended);
    });
  }
}

}  // namespace quorvantis
