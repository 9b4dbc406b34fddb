// SPDX-License-Identifier: MIT
#include "history/ExamMoment.h"

#include "history/RecordEdits.h"
#include "model/document/ExamServices.h"

namespace quorvantis {
namespace {

/// Visits the fields that a header and a document have in common, in pairs.
template <class Header, class Exam, class Visitor>
void PairHeader(Header& header, Exam& exam, Visitor visit) {
  visit(header.title, exam.title);
  visit(header.randomMode, exam.randomMode);
  visit(header.scoreMode, exam.scoreMode);
  visit(header.scoreFrom, exam.scoreFrom);
  visit(header.scoreTo, exam.scoreTo);
  visit(header.scoreValue, exam.scoreValue);
  visit(header.boundaryQuestion, exam.boundaryQuestion);
  visit(header.firstOralQuestion, exam.firstOralQuestion);
  visit(header.hasOralQuestion, exam.hasOralQuestion);
  visit(header.questionFilesUnpacked, exam.questionFilesUnpacked);
  visit(header.examFilesUnpacked, exam.examFilesUnpacked);
  visit(header.paths, exam.examAttachmentPaths);
  visit(header.names, exam.examAttachmentNames);
  visit(header.copies, exam.examAttachmentCopies);
  visit(header.displayNamesAmongPaths, exam.displayNamesAmongPaths);
  visit(header.pathsWithoutContent, exam.pathsWithoutContent);
}

template <class Part, class Question, class Visitor>
void PairSlotPart(Part& part, Question& question, Visitor visit) {
  visit(part.copies, question.attachmentCopies);
  visit(part.oralFlag, question.oralFlag);
  visit(part.responseText, question.responseText);
  visit(part.responseValue, question.responseValue);
}

template <class Header>
QuestionForm LoadedForm(const Header& header, const ExamQuestion& question, int number) {
  QuestionForm form;
  form.number = number;
  form.title = header.title;
  form.random = header.randomMode;
  LoadForm(question, form);
  return form;
}

constexpr auto kTake = [](auto& part, const auto& whole) { part = whole; };
constexpr auto kGive = [](const auto& part, auto& whole) { whole = part; };

}  // namespace

ExamHeader HeaderOf(const FrameSetExam& exam) {
  ExamHeader header;
  PairHeader(header, exam, kTake);
  return header;
}

void StoreHeader(const ExamHeader& header, FrameSetExam& exam) {
  PairHeader(header, exam, kGive);
}

SlotPart SlotPartOf(const ExamQuestion& question) {
  SlotPart part;
  PairSlotPart(part, question, kTake);
  return part;
}

void StoreSlotPart(const SlotPart& part, ExamQuestion& question) {
  PairSlotPart(part, question, kGive);
}

ExamOrigin OriginOf(const EditorState& state) {
  const FrameSetExam& exam = state.document;
  return {state.FileName(), exam.readDoubt, exam.filesNotUnpacked, exam.lastRead};
}

QuestionForm LoadedForm(const ExamMoment& moment) {
  const ExamQuestion& question = moment.questions[static_cast<std::size_t>(moment.current)];
  return LoadedForm(moment.header, question, moment.current);
}

QuestionForm LoadedForm(const FrameSetExam& exam, int number) {
  return LoadedForm(exam, exam.Question(number), number);
}

ExamQuestion StoredQuestion(const ExamMoment& moment, std::size_t slot) {
  ExamQuestion question = moment.questions[slot];
  StoreSlotPart(moment.slotParts[slot], question);
  if (slot == static_cast<std::size_t>(moment.current)) StoreForm(moment.form, moment.kind, question);
  return question;
}

ExamQuestion StoredQuestion(const ExamEditor& editor, std::size_t slot) {
  const EditorState& state = editor.state;
  ExamQuestion question = state.document.questions[slot];
  if (slot == static_cast<std::size_t>(state.CurrentQuestion()))
    StoreForm(editor.questions.Form(), state.CurrentKind(), question);
  return question;
}

ExamMoment MomentOf(const ExamEditor& editor) {
  const EditorState& state = editor.state;
  const FrameSetExam& exam = state.document;
  ExamMoment moment;
  moment.header = HeaderOf(exam);
  moment.questions = exam.questions;
  for (ExamQuestion& question : moment.questions) {
    moment.slotParts.push_back(SlotPartOf(question));
    StoreSlotPart({}, question);
  }
  moment.longAnswers = exam.Services().longAnswerFlags;
  moment.origin = OriginOf(state);
  moment.current = state.CurrentQuestion();
  moment.kind = state.CurrentKind();
  moment.form = editor.questions.Form();
  return moment;
}

bool SameContent(const ExamQuestion& a, const ExamQuestion& b) {
  bool same = true;
  const auto compare = [&same](const auto& left, const auto& right) {
    if (!same) return;
    if constexpr (std::is_same_v<decltype(left), const std::u16string&>) {
      same = SameText(left, right);
    } else {
      same = left == right;
    }
  };
  VisitContent(compare, a, b);
  return same;
}

}  // namespace quorvantis
