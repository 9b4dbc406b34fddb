// SPDX-License-Identifier: MIT
#include "editor/QuestionEditor.h"

#include "editor/AnswerList.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/texts/ProgramTexts.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kLongStep = 10;

}  // namespace

std::u16string QuestionEditor::RandomCaption() const {
  const int id = form_.random == RandomMode::Options    ? text_id::kRandomOptions
                 : form_.random == RandomMode::Sequence ? text_id::kRandomSequence
                                                        : text_id::kRandom;
  return state_.document.Services().strings.Text(id);
}

bool QuestionEditor::EditField(FormField field, std::u16string text) {
  const bool accepted = text.size() <= MaxLength(field);
  if (accepted) form_.Field(field) = std::move(text);
  state_.QueueContentChanged();
  return accepted;
}

void QuestionEditor::TickAnswerBox(std::size_t index, bool on) {
  form_.checks[index] = on ? CheckState::On : CheckState::Off;
  state_.MarkModified();
  state_.view.FormChanged();
}

void QuestionEditor::StoreInto(FrameSetExam& exam, LongAnswerFlags& flags) const {
  const int number = state_.CurrentQuestion();
  ExamQuestion& question = exam.Question(number);
  exam.title = form_.title;
  exam.randomMode = form_.random;
  StoreForm(form_, state_.CurrentKind(), question);
  flags.SetIfLong(number, question.answerText);
}

void QuestionEditor::StoreCurrentQuestion() {
  StoreInto(exam_.Change(), state_.document.Services().longAnswerFlags);
}

FrameSetExam QuestionEditor::StoredExam(LongAnswerFlags& flags) const {
  FrameSetExam exam = state_.document;
  StoreInto(exam, flags);
  return exam;
}

void QuestionEditor::LoadCurrentQuestion() {
  const ExamQuestion& question = state_.Current();
  form_.number = state_.CurrentQuestion();
  form_.title = state_.document.title;
  form_.random = state_.document.randomMode;
  LoadForm(question, form_);
  state_.currentKind_ = question.kind;
  attachments_.RefreshQuestionList();
  attachments_.RefreshExamList();
  state_.view.FormLoaded();
  ShowKindControls(state_.CurrentKind());
}

void QuestionEditor::ShowQuestion(int number) {
  state_.currentQuestion_ = number;
  LoadCurrentQuestion();
}

/// Not by way of the stored question, whose kind may differ: its oral flag would go.
void QuestionEditor::ShowQuestion(int number, const QuestionForm& form, QuestionKind kind) {
  state_.currentQuestion_ = number;
  form_ = form;
  state_.currentKind_ = kind;
  attachments_.RefreshQuestionList();
  attachments_.RefreshExamList();
  state_.view.FormLoaded();
  ShowKindControls(kind);
}

void QuestionEditor::GoTo(int question) {
  StoreCurrentQuestion();
  ShowQuestion(question);
}

void QuestionEditor::GoNext() {
  if (state_.CurrentQuestion() < kMaxQuestions) GoTo(state_.CurrentQuestion() + 1);
}

void QuestionEditor::GoPrevious() {
  if (state_.CurrentQuestion() > 1) GoTo(state_.CurrentQuestion() - 1);
}

void QuestionEditor::GoBack10() {
  if (state_.CurrentQuestion() > 1) GoTo(std::max(state_.CurrentQuestion() - kLongStep, 1));
}

void QuestionEditor::GoForward10() {
  if (state_.CurrentQuestion() < kMaxQuestions)
    GoTo(std::min(state_.CurrentQuestion() + kLongStep, kMaxQuestions));
}

void QuestionEditor::GoToQuestion(int number) {
  if (IsQuestionNumber(number) && number != state_.CurrentQuestion()) GoTo(number);
}

void QuestionEditor::InsertHere() {
  state_.NameChange({ChangeKind::InsertQuestion, state_.CurrentQuestion()});
  StoreCurrentQuestion();
  attachments_.ShiftAttachmentsForInsert(state_.CurrentQuestion());
  exam_.Change().InsertQuestion(state_.CurrentQuestion());
  LoadCurrentQuestion();
  state_.QueueContentChanged();
}

void QuestionEditor::DeleteHere() {
  state_.NameChange({ChangeKind::DeleteQuestion, state_.CurrentQuestion()});
  int& boundary = exam_.Change().boundaryQuestion;
  if (boundary != 0 && boundary >= state_.CurrentQuestion()) --boundary;
  attachments_.RemoveQuestionAttachments(state_.CurrentQuestion());
  exam_.Change().DeleteQuestion(state_.CurrentQuestion());
  LoadCurrentQuestion();
  state_.QueueContentChanged();
}

void QuestionEditor::SelectKind(QuestionKind kind) {
  state_.currentKind_ = kind;
  ShowKindControls(kind);
  state_.MarkModified();
}

void QuestionEditor::ShowKindControls(QuestionKind kind) {
  shown_ = AnswerOf(kind);
  state_.view.FormChanged();
}

void QuestionEditor::CycleRandomMode() {
  form_.random = form_.random == RandomMode::Off       ? RandomMode::Options
                 : form_.random == RandomMode::Options ? RandomMode::Sequence
                                                       : RandomMode::Off;
  state_.MarkModified();
  state_.view.FormChanged();
}

void QuestionEditor::AppendListSeparator() {
  std::u16string line = WithOpenSeparator(form_.answer);
  if (line == form_.answer) return;
  EditField(FormField::Answer, std::move(line));
  state_.view.FormChanged();
}

}  // namespace quorvantis
