// SPDX-License-Identifier: MIT
#include "editor/QuestionOrder.h"

#include "editor/WorkCopies.h"
#include "examfile/SavingLosses.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/texts/OverviewTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <optional>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// Everything moves with a question but the work copies to delete: whichever slot has them, they are deleted
/// when the exam is closed.
void RearrangeQuestions(FrameSetExam& exam, const SlotOrder& order) {
  std::vector<ExamQuestion> old(kQuestionSlots);
  std::vector<AttachmentList> copies(kQuestionSlots);
  old.swap(exam.questions);
  for (std::size_t slot = 0; slot < kQuestionSlots; ++slot)
    copies[slot] = std::move(old[slot].attachmentCopies);
  exam.questions[0] = std::move(old[0]);
  for (int number = 1; number <= kMaxQuestions; ++number) {
    const int source = order.Source(number);
    if (source != SlotOrder::kEmpty) exam.Question(number) = std::move(old[static_cast<std::size_t>(source)]);
  }
  for (std::size_t slot = 0; slot < kQuestionSlots; ++slot)
    exam.questions[slot].attachmentCopies = std::move(copies[slot]);
}

void RearrangeFlags(LongAnswerFlags& flags, const SlotOrder& order) {
  const LongAnswerFlags old = flags;
  for (int number = 1; number <= kMaxQuestions; ++number)
    flags.Assign(number, old.IsSet(order.Source(number)));
}

/// As when the questions are deleted one by one.
void LowerBoundary(int& boundary, const std::vector<int>& deleted) {
  for (auto number = deleted.rbegin(); number != deleted.rend(); ++number) {
    if (boundary != 0 && boundary >= *number) --boundary;
  }
}

bool IsFile(const fs::path& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored);
}

bool IsWholeCopy(const fs::path& copy, const fs::path& source) {
  std::error_code error;
  const auto expected = fs::file_size(source, error);
  return !error && fs::file_size(copy, error) == expected && !error;
}

/// Work copies for questions that are about to be inserted. Unless kept, they are removed again.
class NewWorkCopies {
 public:
  using MissingFiles = QuestionOrder::MissingFiles;

  NewWorkCopies(fs::path workRoot, AttachmentEditor& attachments)
      : workRoot_(std::move(workRoot)), attachments_(attachments) {}
  NewWorkCopies(const NewWorkCopies&) = delete;
  NewWorkCopies& operator=(const NewWorkCopies&) = delete;
  ~NewWorkCopies() {
    std::error_code ignored;
    for (const fs::path& copy : made_) fs::remove(copy, ignored);
  }

  /// Makes the question name copies of its own. Returns the display name of a file that cannot be copied.
  std::optional<std::u16string> MakeFor(WholeQuestion& whole, MissingFiles missing) {
    ExamQuestion& question = whole.question;
    for (std::size_t i = 0; i < kMaxAttachments; ++i) {
      if (question.attachmentPaths[i].empty()) continue;
      const fs::path source = TextToPath(question.attachmentPaths[i]);
      if (whole.hasContent[i] && missing == MissingFiles::StayMissing && !IsFile(source)) continue;
      // Without content there is nothing to copy, but the file still gets a path that no other one has.
      std::error_code failure;
      made_.push_back(MakeWorkCopy(workRoot_, source, attachments_.TakeCopyNumber(), failure));
      if (whole.hasContent[i] && (failure || !IsWholeCopy(made_.back(), source)))
        return question.attachmentNames[i];
      question.attachmentPaths[i] = PathToText(made_.back());
    }
    return std::nullopt;
  }

  void Keep() { made_.clear(); }

 private:
  fs::path workRoot_;
  AttachmentEditor& attachments_;
  std::vector<fs::path> made_;
};

void NotePathsWithoutContent(FrameSetExam& exam, const WholeQuestion& whole) {
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    const std::u16string& path = whole.question.attachmentPaths[i];
    if (!path.empty() && !whole.hasContent[i]) exam.pathsWithoutContent.insert(path);
  }
}

}  // namespace

std::u16string OrderProblemText(const OrderOutcome& outcome, const StringTable& strings) {
  const std::u16string number = FormatInteger(outcome.number);
  const std::u16string last = FormatInteger(outcome.last);
  switch (outcome.problem) {
    case OrderProblem::None:
      return {};
    case OrderProblem::NoSuchQuestion:
      return FillMessage(strings.Text(text_id::kNoSuchQuestion), {number, last});
    case OrderProblem::BeyondEnd:
      return FillMessage(strings.Text(text_id::kMoveBeyondEnd), {last});
    case OrderProblem::NoRoom:
      return FillMessage(strings.Text(text_id::kNoRoomForQuestions), {number});
    case OrderProblem::FileNotCopied:
      return FillMessage(strings.Text(text_id::kFileNotCopied), {outcome.file});
  }
  return {};
}

int QuestionOrder::LastQuestion() const {
  int last = kMaxQuestions;
  while (last > state_.CurrentQuestion() && !HasAnything(state_.document.Question(last))) --last;
  if (last > state_.CurrentQuestion()) return last;
  ExamQuestion shown = state_.Current();
  StoreForm(questions_.Form(), state_.CurrentKind(), shown);
  if (HasAnything(shown)) return last;
  --last;
  while (last > 0 && !HasAnything(state_.document.Question(last))) --last;
  return last;
}

int QuestionOrder::RoomAfter(int after) const {
  return kMaxQuestions - std::max(LastQuestion(), after);
}

OrderOutcome QuestionOrder::CheckNumbers(const std::vector<int>& numbers) const {
  const int last = LastQuestion();
  for (const int number : numbers) {
    if (number < 1 || number > last) return {OrderProblem::NoSuchQuestion, number, last};
  }
  return {};
}

void QuestionOrder::Arrange(const SlotOrder& order, int shown) {
  RearrangeQuestions(exam_.Change(), order);
  RearrangeFlags(state_.document.Services().longAnswerFlags, order);
  questions_.ShowQuestion(shown);
  state_.QueueContentChanged();
}

OrderOutcome QuestionOrder::MoveMany(const std::vector<int>& numbers, int to) {
  OrderOutcome outcome = CheckNumbers(numbers);
  if (!outcome.IsDone() || numbers.empty()) return outcome;
  const int last = LastQuestion();
  if (to < 1) return {OrderProblem::NoSuchQuestion, to, last};
  const int count = static_cast<int>(numbers.size());
  if (to > last - count + 1) return {OrderProblem::BeyondEnd, to, last};
  outcome.questions.resize(numbers.size());
  std::iota(outcome.questions.begin(), outcome.questions.end(), to);
  outcome.order.Move(numbers, to);
  if (outcome.order.IsUnchanged()) return outcome;
  state_.NameChange({ChangeKind::MoveQuestion, numbers.front(), numbers.size()});
  questions_.StoreCurrentQuestion();
  Arrange(outcome.order, outcome.order.NumberOf(state_.CurrentQuestion()));
  return outcome;
}

OrderOutcome QuestionOrder::Duplicate(const std::vector<int>& numbers) {
  const OrderOutcome outcome = CheckNumbers(numbers);
  if (!outcome.IsDone() || numbers.empty()) return outcome;
  return Insert(Copies(numbers), numbers.back(), MissingFiles::StayMissing, ChangeKind::DuplicateQuestion);
}

OrderOutcome QuestionOrder::DeleteMany(const std::vector<int>& numbers) {
  OrderOutcome outcome = CheckNumbers(numbers);
  if (!outcome.IsDone() || numbers.empty()) return outcome;
  state_.NameChange({ChangeKind::DeleteQuestion, numbers.front(), numbers.size()});
  questions_.StoreCurrentQuestion();
  LowerBoundary(exam_.Change().boundaryQuestion, numbers);
  outcome.order.Remove(numbers);
  const auto before = std::ranges::lower_bound(numbers, state_.CurrentQuestion()) - numbers.begin();
  Arrange(outcome.order, state_.CurrentQuestion() - static_cast<int>(before));
  return outcome;
}

OrderOutcome QuestionOrder::InsertWhole(std::vector<WholeQuestion> inserted, int after, ChangeKind how) {
  return Insert(std::move(inserted), after, MissingFiles::AreRefused, how);
}

OrderOutcome QuestionOrder::Insert(std::vector<WholeQuestion> inserted, int after, MissingFiles missing,
                                   ChangeKind how) {
  const int count = static_cast<int>(inserted.size());
  if (after < 0 || after > kMaxQuestions) return {OrderProblem::NoSuchQuestion, after, LastQuestion()};
  if (count > RoomAfter(after)) return {OrderProblem::NoRoom, RoomAfter(after)};
  if (count == 0) return {};
  NewWorkCopies copies(AttachmentWorkRoot(state_.document.Services().applicationFolder), attachments_);
  for (WholeQuestion& whole : inserted) {
    if (const auto file = copies.MakeFor(whole, missing)) return {OrderProblem::FileNotCopied, 0, 0, *file};
  }
  copies.Keep();
  const bool duplicates = how == ChangeKind::DuplicateQuestion;
  state_.NameChange({how, duplicates ? after - count + 1 : after + 1, inserted.size()});
  questions_.StoreCurrentQuestion();
  OrderOutcome outcome;
  outcome.order.Open(after, count);
  RearrangeQuestions(exam_.Change(), outcome.order);
  RearrangeFlags(state_.document.Services().longAnswerFlags, outcome.order);
  for (WholeQuestion& whole : inserted) {
    const int number = after + 1 + static_cast<int>(outcome.questions.size());
    outcome.questions.push_back(number);
    NotePathsWithoutContent(exam_.Change(), whole);
    whole.question.attachmentCopies = exam_.Read().Question(number).attachmentCopies;
    state_.document.Services().longAnswerFlags.Assign(number, whole.longAnswer);
    exam_.Change().Question(number) = std::move(whole.question);
  }
  questions_.ShowQuestion(after + 1);
  state_.QueueContentChanged();
  return outcome;
}

std::vector<WholeQuestion> QuestionOrder::Copies(const std::vector<int>& numbers) const {
  LongAnswerFlags flags = state_.document.Services().longAnswerFlags;
  const FrameSetExam exam = questions_.StoredExam(flags);
  std::vector<WholeQuestion> copies;
  copies.reserve(numbers.size());
  for (const int number : numbers) copies.push_back(WholeQuestionOf(exam, flags, number));
  return copies;
}

}  // namespace quorvantis
