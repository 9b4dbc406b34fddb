// SPDX-License-Identifier: MIT
#include "check/CheckRule.h"

#include "platform/StringTable.h"
#include "platform/texts/CheckTexts.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace {

/// How a text is named before what was found in it; 0 for the text of a question.
int NameOfField(ExamFieldName field) {
  switch (field) {
    case ExamFieldName::Title:
      return text_id::kCheckInTitle;
    case ExamFieldName::Options:
      return text_id::kCheckInOption;
    case ExamFieldName::FillInAnswer:
      return text_id::kCheckInAnswer;
    case ExamFieldName::EssayAnswer:
      return text_id::kCheckInModelAnswer;
    default:
      return 0;
  }
}

}  // namespace

void FindingList::Add(const TextPlace& place, std::initializer_list<std::u16string_view> values) {
  findings_.push_back({row_.id, row_.severity, place, FillMessage(strings_.Text(row_.text), values)});
}

void FindingList::AddIn(const TextPlace& place, std::initializer_list<std::u16string_view> values) {
  Add(place, values);
  const int name = NameOfField(place.field);
  if (name == 0) return;
  const std::u16string letter(1, OptionLetter(place.index));
  std::u16string& text = findings_.back().text;
  text = FillMessage(strings_.Text(name), {text, letter});
}

void QuestionRule::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const CheckedQuestion& question : exam.questions) {
    if (!question.isEmpty) CheckQuestion(question, findings);
  }
}

void TextRule::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const CheckedText& text : exam.texts) CheckText(text, findings);
}

}  // namespace quorvantis
