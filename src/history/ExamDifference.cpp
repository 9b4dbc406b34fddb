// SPDX-License-Identifier: MIT
#include "history/ExamDifference.h"

#include "editor/ShownAnswers.h"
#include "model/document/ExamServices.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

RecordEdits FormEdits(const QuestionForm& before, const QuestionForm& after,
                      std::optional<FieldPlace> end = {}) {
  EditFinder finder(end);
  VisitForm(finder, before, after);
  return std::move(finder.found);
}

void FindHeader(const ExamMoment& before, const FrameSetExam& exam, ExamDifference& found) {
  ExamHeader header = HeaderOf(exam);
  if (header == before.header) return;
  found.headerBefore = std::make_shared<ExamHeader>(before.header);
  found.headerAfter = std::make_shared<ExamHeader>(std::move(header));
}

void FindSlotParts(const ExamMoment& before, const FrameSetExam& exam, ExamDifference& found) {
  for (std::size_t slot = 0; slot < before.slotParts.size(); ++slot) {
    const ExamQuestion& question = exam.questions[slot];
    const SlotPart& known = before.slotParts[slot];
    const bool same = known.oralFlag == question.oralFlag && known.responseValue == question.responseValue &&
                      known.copies == question.attachmentCopies &&
                      known.responseText == question.responseText;
    if (!same) found.slotParts.push_back({slot, known, SlotPartOf(question)});
  }
}

void FindLongAnswers(const ExamMoment& before, const FrameSetExam& exam, ExamDifference& found) {
  const LongAnswerFlags& now = exam.Services().longAnswerFlags;
  if (now == before.longAnswers) return;
  found.longAnswers = std::make_unique<const ExamDifference::Pair<LongAnswerFlags>>(
      ExamDifference::Pair<LongAnswerFlags>{before.longAnswers, now});
}

bool ChangesQuestion(const ExamDifference& found, int number) {
  const auto slot = static_cast<std::size_t>(number);
  for (const SlotChange& change : found.questions) {
    if (change.removed != nullptr || change.added != nullptr || change.before == slot) return true;
  }
  return found.headerBefore != nullptr;
}

/// The moment is that after the difference, but for its form.
void TakeForm(const ExamDifference& difference, Direction direction, const QuestionForm& other,
              ExamMoment& moment) {
  if (difference.linked) {
    moment.form = other;
    VisitForm(EditTaker(difference.form, direction), moment.form);
    return;
  }
  moment.form = LoadedForm(moment);
  const bool forward = direction == Direction::Forward;
  VisitForm(EditTaker(forward ? difference.formLoaded : difference.form, Direction::Forward), moment.form);
}

void TakeDocument(const ExamDifference& difference, Direction direction, ExamMoment& moment) {
  const bool forward = direction == Direction::Forward;
  if (difference.headerBefore) moment.header = forward ? *difference.headerAfter : *difference.headerBefore;
  TakeSlotChanges(difference.questions, direction, moment.questions);
  for (const auto& change : difference.slotParts)
    moment.slotParts[change.slot] = forward ? change.after : change.before;
  if (difference.longAnswers)
    moment.longAnswers = forward ? difference.longAnswers->after : difference.longAnswers->before;
  if (difference.origin) moment.origin = forward ? difference.origin->after : difference.origin->before;
}

/// Title and random mode are in the form.
bool ChangesHeader(const ExamDifference& difference) {
  if (difference.headerBefore == nullptr) return false;
  ExamHeader stored = *difference.headerBefore;
  stored.title = difference.headerAfter->title;
  stored.randomMode = difference.headerAfter->randomMode;
  return stored != *difference.headerAfter;
}

bool ChangesForm(const ExamDifference& difference, const ExamMoment& before, const QuestionForm& form) {
  if (before.form.title != form.title || before.form.random != form.random) return true;
  if (difference.current.before != difference.current.after) return false;
  QuestionForm same = before.form;
  same.number = form.number;
  return difference.kind.before != difference.kind.after || !FormEdits(same, form).IsEmpty();
}

bool SameAsShown(const ExamQuestion& a, const ExamQuestion& b) {
  const ExamQuestion shownA = WithAnswers(a, AnswersAsShown(a));
  const ExamQuestion shownB = WithAnswers(b, AnswersAsShown(b));
  return SameContent(shownA, shownB) && SlotPartOf(shownA) == SlotPartOf(shownB);
}

bool ChangesAQuestion(const ExamDifference& difference, const ExamMoment& before, const ExamEditor& editor) {
  const auto changes = [&](std::size_t slot) {
    return !SameAsShown(StoredQuestion(before, slot), StoredQuestion(editor, slot));
  };
  return changes(static_cast<std::size_t>(difference.current.before)) ||
         changes(static_cast<std::size_t>(difference.current.after)) ||
         std::ranges::any_of(difference.questions, changes, &SlotChange::after) ||
         std::ranges::any_of(difference.slotParts, changes, &ExamDifference::SlotPartChange::slot);
}

}  // namespace

bool ExamDifference::IsEmpty() const {
  return OnlyForm() && current.before == current.after && kind.before == kind.after && linked &&
         form.IsEmpty();
}

std::size_t ExamDifference::Size() const {
  constexpr std::size_t kHeader = sizeof(ExamHeader);
  std::size_t size = sizeof(ExamDifference) + SizeOf(questions) + form.Size() + formLoaded.Size();
  if (headerBefore != nullptr) size += 2 * kHeader;
  if (longAnswers != nullptr) size += sizeof *longAnswers;
  return size + slotParts.size() * sizeof(SlotPartChange);
}

ExamDifference FindDifference(const ExamMoment& before, const ExamEditor& editor, bool documentChanged,
                              bool withOrigin, std::optional<FieldPlace> cursor) {
  const EditorState& state = editor.state;
  const FrameSetExam& exam = state.document;
  ExamDifference found;
  if (documentChanged) {
    FindHeader(before, exam, found);
    found.questions = FindSlotChanges(before.questions, exam.questions);
    FindSlotParts(before, exam, found);
    FindLongAnswers(before, exam, found);
  }
  if (withOrigin && state.FileName() != before.origin.fileName) {
    found.origin = std::make_unique<const ExamDifference::Pair<ExamOrigin>>(
        ExamDifference::Pair<ExamOrigin>{before.origin, OriginOf(state)});
  }
  found.current = {before.current, state.CurrentQuestion()};
  found.kind = {before.kind, state.CurrentKind()};
  const QuestionForm& form = editor.questions.Form();
  found.linked = found.current.before == found.current.after && !ChangesQuestion(found, before.current);
  if (found.linked) {
    found.form = FormEdits(before.form, form, cursor);
  } else {
    found.form = FormEdits(LoadedForm(before), before.form);
    found.formLoaded = FormEdits(LoadedForm(exam, found.current.after), form);
  }
  return found;
}

bool IsChange(const ExamDifference& difference, const ExamMoment& before, const ExamEditor& editor) {
  const bool movesQuestions = std::ranges::any_of(difference.questions, [](const SlotChange& change) {
    return change.removed != nullptr || change.added != nullptr;
  });
  return difference.origin != nullptr || movesQuestions || ChangesHeader(difference) ||
         ChangesForm(difference, before, editor.questions.Form()) ||
         ChangesAQuestion(difference, before, editor);
}

void TakeDifference(const ExamDifference& difference, Direction direction, ExamMoment& moment) {
  const bool forward = direction == Direction::Forward;
  TakeDocument(difference, direction, moment);
  moment.current = forward ? difference.current.after : difference.current.before;
  moment.kind = forward ? difference.kind.after : difference.kind.before;
  const QuestionForm other = std::move(moment.form);
  TakeForm(difference, direction, other, moment);
}

}  // namespace quorvantis
