// SPDX-License-Identifier: MIT
#include "history/StepName.h"

#include "editor/AttachmentShifts.h"
#include "platform/texts/HistoryTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <iterator>

namespace quorvantis {
namespace {

/// The values of a form in the order of VisitForm: nine texts, five ticks, the random mode.
constexpr ChangeKind kOfFormValue[] = {
    ChangeKind::Title,       ChangeKind::QuestionText, ChangeKind::OptionText, ChangeKind::OptionText,
    ChangeKind::OptionText,  ChangeKind::OptionText,   ChangeKind::OptionText, ChangeKind::FillInAnswer,
    ChangeKind::EssayAnswer, ChangeKind::AnswerBox,    ChangeKind::AnswerBox,  ChangeKind::AnswerBox,
    ChangeKind::AnswerBox,   ChangeKind::AnswerBox,    ChangeKind::RandomMode,
};

ChangeKind KindOfForm(const RecordEdits& edits) {
  const std::size_t value = !edits.texts.empty()     ? edits.texts.front().field
                            : !edits.numbers.empty() ? edits.numbers.front().field
                                                     : std::size(kOfFormValue);
  return value < std::size(kOfFormValue) ? kOfFormValue[value] : ChangeKind::Other;
}

ChangeKind KindOfHeader(const ExamHeader& before, const ExamHeader& after) {
  if (CountEntries(before.names) < CountEntries(after.names)) return ChangeKind::AttachToExam;
  if (before.names != after.names) return ChangeKind::RemoveExamFile;
  return ChangeKind::Scores;
}

/// The only command on a question of the document that gives no name is one on its files: they grow at the
/// end.
ChangeKind KindOfQuestion(const RecordEdits& edits) {
  const bool grows = edits.texts.empty() || edits.texts.front().removed.empty();
  return grows ? ChangeKind::Attach : ChangeKind::RemoveFile;
}

int TextNumber(ChangeKind kind) {
  using namespace text_id;
  switch (kind) {
    case ChangeKind::Title:
      return kStepTitle;
    case ChangeKind::QuestionText:
      return kStepQuestionText;
    case ChangeKind::OptionText:
      return kStepOption;
    case ChangeKind::FillInAnswer:
      return kStepFillInAnswer;
    case ChangeKind::EssayAnswer:
      return kStepEssayAnswer;
    case ChangeKind::AnswerBox:
      return kStepAnswerBox;
    case ChangeKind::Kind:
      return kStepKind;
    case ChangeKind::RandomMode:
      return kStepRandomMode;
    case ChangeKind::Oral:
      return kStepOral;
    case ChangeKind::Attach:
      return kStepAttach;
    case ChangeKind::RemoveFile:
      return kStepRemoveFile;
    case ChangeKind::AttachToExam:
      return kStepAttachToExam;
    case ChangeKind::RemoveExamFile:
      return kStepRemoveExamFile;
    case ChangeKind::Scores:
      return kStepScores;
    case ChangeKind::InsertQuestion:
      return kStepInsert;
    case ChangeKind::DeleteQuestion:
      return kStepDelete;
    case ChangeKind::MoveQuestion:
      return kStepMove;
    case ChangeKind::DuplicateQuestion:
      return kStepDuplicate;
    case ChangeKind::PasteQuestion:
      return kStepPaste;
    case ChangeKind::TakeQuestion:
      return kStepTake;
    case ChangeKind::ExchangeQuestion:
      return kStepExchange;
    case ChangeKind::DrawQuestion:
      return kStepDraw;
    case ChangeKind::Replace:
      return kStepReplace;
    case ChangeKind::Import:
      return kStepImport;
    case ChangeKind::LineEnds:
      return kStepLineEnds;
    case ChangeKind::Other:
      break;
  }
  return kStepOther;
}

}  // namespace

ChangeName NameOf(const ExamDifference& difference) {
  const int question = difference.current.after;
  if (difference.linked && difference.kind.before != difference.kind.after)
    return {ChangeKind::Kind, question};
  if (difference.linked && !difference.form.IsEmpty()) {
    const ChangeKind kind = KindOfForm(difference.form);
    const bool ofExam = kind == ChangeKind::Title || kind == ChangeKind::RandomMode;
    return {kind, ofExam ? 0 : question};
  }
  if (difference.headerBefore != nullptr && difference.questions.empty())
    return {KindOfHeader(*difference.headerBefore, *difference.headerAfter)};
  if (difference.questions.size() == 1) return {KindOfQuestion(difference.questions.front().edits), question};
  if (difference.questions.empty() && !difference.slotParts.empty()) return {ChangeKind::Oral, question};
  return {};
}

std::optional<FormField> TypedField(const ExamDifference& difference) {
  const bool isTyped = difference.linked && difference.OnlyForm() && difference.form.texts.size() == 1 &&
                       difference.form.numbers.empty();
  if (!isTyped) return std::nullopt;
  return static_cast<FormField>(difference.form.texts.front().field);
}

std::u16string DescribeChange(const ChangeName& name, const StringTable& strings) {
  return FillMessage(strings.Text(TextNumber(name.kind)),
                     {FormatInteger(name.question), FormatInteger(static_cast<std::int64_t>(name.count))});
}

}  // namespace quorvantis
