// SPDX-License-Identifier: MIT
#include "history/History.h"

#include "editor/WorkCopies.h"
#include "history/StepName.h"
#include "model/WorkFolderNames.h"
#include "model/document/ExamServices.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// The fields of a form come in the order of FormField.
std::optional<FieldPlace> PlaceOf(const std::optional<FieldCursor>& cursor) {
  if (!cursor) return std::nullopt;
  return FieldPlace{static_cast<std::size_t>(cursor->field), cursor->position};
}

bool EndsLine(std::u16string_view typed) {
  return typed.find_first_of(u"\r\n") != typed.npos;
}

/// Where a change of a text ends, seen from the form that it has led to.
HistorySpot SpotOf(const ExamDifference& change, Direction direction) {
  HistorySpot spot;
  if (!change.linked || change.form.texts.empty()) return spot;
  const TextEdit& edit = change.form.texts.front();
  spot.field = static_cast<FormField>(edit.field);
  spot.position = edit.start + (direction == Direction::Forward ? edit.added : edit.removed).size();
  return spot;
}

void TakeAllBack(const std::vector<ExamDifference>& walk, ExamMoment& moment) {
  std::for_each(walk.rbegin(), walk.rend(),
                [&moment](const ExamDifference& part) { TakeDifference(part, Direction::Back, moment); });
}

bool TouchesFiles(const ExamDifference& change) {
  return change.headerBefore != nullptr || !change.questions.empty() || !change.slotParts.empty();
}

}  // namespace

History::History(ExamEditor& editor, std::size_t limit)
    : editor_(editor),
      limit_(limit),
      files_(AttachmentWorkRoot(editor.state.document.Services().applicationFolder) / kHistoryFolder) {
  Begin();
}

void History::Begin() {
  steps_.clear();
  walk_.clear();
  done_ = 0;
  size_ = 0;
  walkedOn_ = true;
  hasForgotten_ = isTyping_ = false;
  examsBegun_ = editor_.state.ExamsBegun();
  editor_.state.TakeChangeName();
  editor_.TakeDocumentChanged();
  moment_ = MomentOf(editor_);
  files_.Follow(WorkCopiesOf(editor_.state.document), true);
}

void History::Look(Clock::time_point now) {
  if (holds_ > 0) return;
  if (examsBegun_ != editor_.state.ExamsBegun()) return Begin();
  const ChangeName given = editor_.state.TakeChangeName();
  const bool isImport = given.kind == ChangeKind::Import;
  const std::optional<FieldPlace> cursor = PlaceOf(editor_.questions.TakeCursor());
  Step step;
  step.change = FindDifference(moment_, editor_, editor_.TakeDocumentChanged(), isImport, cursor);
  const bool isChange = IsChange(step.change, moment_, editor_);
  moment_.origin = OriginOf(editor_.state);
  if (step.change.IsEmpty()) return;
  TakeDifference(step.change, Direction::Forward, moment_);
  if (TouchesFiles(step.change)) step.files = files_.Follow(WorkCopiesOf(editor_.state.document), isImport);
  if (!isChange) return AddWalk(std::move(step.change));
  step.name = given.kind == ChangeKind::Other ? NameOf(step.change) : given;
  if (JoinTyping(step, cursor, now)) return;
  NoteTyping(step, now);
  AddStep(std::move(step));
}

/// Walks join: only where they begin and end counts.
void History::AddWalk(ExamDifference walk) {
  isTyping_ = false;
  if (walk_.empty() || walk_.back().linked || !walk.OnlyShows()) {
    walk_.push_back(std::move(walk));
    return;
  }
  ExamDifference& last = walk_.back();
  last.current.after = walk.current.after;
  last.kind.after = walk.kind.after;
  last.formLoaded = std::move(walk.formLoaded);
}

void History::AddStep(Step step) {
  while (steps_.size() > done_) {
    size_ -= steps_.back().size;
    steps_.pop_back();
  }
  if (done_ > 0) {
    Step& last = steps_.back();
    if (!walkedOn_) last.walk.clear();
    std::ranges::move(walk_, std::back_inserter(last.walk));
    Measure(last);
  }
  walk_.clear();
  walkedOn_ = true;
  step.number = ++lastNumber_;
  Measure(step);
  steps_.push_back(std::move(step));
  ++done_;
  GiveUpOldest();
}

/// True if the step goes on with the typing of the last one, and is now part of it.
bool History::JoinTyping(const Step& step, const std::optional<FieldPlace>& cursor, Clock::time_point now) {
  const auto field = TypedField(step.change);
  const bool goesOn = isTyping_ && done_ > 0 && done_ == steps_.size() && walk_.empty() &&
                      now - typed_ <= kTypingPause && field && steps_.back().name.kind == step.name.kind &&
                      TypedField(steps_.back().change) == field;
  if (!goesOn) return false;
  Step& last = steps_.back();
  QuestionForm before = moment_.form;
  VisitForm(EditTaker(step.change.form, Direction::Back), before);
  VisitForm(EditTaker(last.change.form, Direction::Back), before);
  EditFinder finder(cursor);
  VisitForm(finder, before, moment_.form);
  last.change.form = std::move(finder.found);
  Measure(last);
  NoteTyping(step, now);
  return true;
}

void History::NoteTyping(const Step& step, Clock::time_point now) {
  typed_ = now;
  isTyping_ = TypedField(step.change) && !EndsLine(step.change.form.texts.front().added);
}

void History::Measure(Step& step) {
  size_ -= step.size;
  step.size = sizeof(Step) + step.change.Size() + step.files.size() * sizeof(FileChange);
  for (const ExamDifference& walk : step.walk) step.size += walk.Size();
  size_ += step.size;
}

void History::GiveUpOldest() {
  while (size_ > limit_ && steps_.size() > 1) {
    size_ -= steps_.front().size;
    steps_.pop_front();
    --done_;
    hasForgotten_ = true;
  }
}

std::optional<ChangeName> History::NextUndo() const {
  return done_ > 0 ? std::optional(steps_[done_ - 1].name) : std::nullopt;
}

std::optional<ChangeName> History::NextRedo() const {
  return done_ < steps_.size() ? std::optional(steps_[done_].name) : std::nullopt;
}

bool History::CanUndo(std::uint64_t step) const {
  const auto end = steps_.begin() + static_cast<std::ptrdiff_t>(done_);
  return std::any_of(steps_.begin(), end, [step](const Step& known) { return known.number == step; });
}

/// The moment becomes that before the step.
void History::TakeBack(Step& step) {
  TakeAllBack(walk_, moment_);
  walk_.clear();
  if (walkedOn_) TakeAllBack(step.walk, moment_);
  TakeDifference(step.change, Direction::Back, moment_);
}

std::optional<HistorySpot> History::Undo() {
  Look();
  if (done_ == 0) return std::nullopt;
  Step& step = steps_[--done_];
  TakeBack(step);
  walkedOn_ = true;
  return Show(step, Direction::Back);
}

std::optional<HistorySpot> History::Redo() {
  Look();
  if (done_ == steps_.size()) return std::nullopt;
  TakeAllBack(walk_, moment_);
  walk_.clear();
  if (done_ > 0 && !walkedOn_) {
    for (const ExamDifference& walk : steps_[done_ - 1].walk)
      TakeDifference(walk, Direction::Forward, moment_);
  }
  Step& step = steps_[done_++];
  TakeDifference(step.change, Direction::Forward, moment_);
  walkedOn_ = step.walk.empty();
  return Show(step, Direction::Forward);
}

std::optional<HistorySpot> History::UndoBackTo(std::uint64_t step) {
  Look();
  std::optional<HistorySpot> spot;
  while (CanUndo(step)) spot = Undo();
  return spot;
}

/// The document in the editor with what the moment has of it.
FrameSetExam History::DocumentOf(const ExamMoment& moment) const {
  FrameSetExam exam = editor_.state.document;
  exam.questions = moment.questions;
  for (std::size_t slot = 0; slot < exam.questions.size(); ++slot)
    StoreSlotPart(moment.slotParts[slot], exam.questions[slot]);
  StoreHeader(moment.header, exam);
  return exam;
}

void History::PutIntoEditor(bool withOrigin) {
  FrameSetExam exam = DocumentOf(moment_);
  if (withOrigin) {
    exam.readDoubt = moment_.origin.readDoubt;
    exam.filesNotUnpacked = moment_.origin.filesNotUnpacked;
    exam.lastRead = moment_.origin.lastRead;
  }
  exam.Services().longAnswerFlags = moment_.longAnswers;
  editor_.changes.Replace(std::move(exam));
  if (withOrigin) editor_.state.SetFileName(moment_.origin.fileName);
  editor_.questions.ShowQuestion(moment_.current, moment_.form, moment_.kind);
}

HistorySpot History::Show(Step& step, Direction direction) {
  isTyping_ = false;
  HistorySpot spot = SpotOf(step.change, direction);
  spot.lostFiles = files_.Take(step.files, direction == Direction::Forward);
  PutIntoEditor(step.change.origin != nullptr);
  NoteShown();
  editor_.state.MarkSaved();  // otherwise an import that has not set the star would keep it from showing now
  editor_.state.MarkModified();
  return spot;
}

/// Showing a question may convert what another program has written. That is no step, even if it looks like
/// one.
void History::NoteShown() {
  ExamDifference shown =
      FindDifference(moment_, editor_, editor_.TakeDocumentChanged(), /*withOrigin=*/false);
  if (shown.IsEmpty()) return;
  TakeDifference(shown, Direction::Forward, moment_);
  AddWalk(std::move(shown));
}

FrameSetExam History::LastLook() const {
  FrameSetExam exam = DocumentOf(moment_);
  exam.title = moment_.form.title;
  exam.randomMode = moment_.form.random;
  StoreForm(moment_.form, moment_.kind, exam.Question(moment_.current));
  return exam;
}

void History::Revert() {
  files_.PutBack();
  PutIntoEditor(true);
}

}  // namespace quorvantis
