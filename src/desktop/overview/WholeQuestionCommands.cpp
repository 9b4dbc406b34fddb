// SPDX-License-Identifier: MIT
#include "desktop/overview/WholeQuestionCommands.h"

#include "desktop/controls/QtText.h"
#include "desktop/overview/InsertFromExamDlg.h"
#include "editor/WorkCopies.h"
#include "model/WorkFolderNames.h"
#include "overview/ScoreChangeTexts.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/OverviewTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "taking/OtherExam.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QInputDialog>

#include <algorithm>
#include <system_error>

namespace quorvantis {
namespace {

/// A file that is removed at the end.
class PassingFile {
 public:
  explicit PassingFile(std::filesystem::path file) : file_(std::move(file)) {}
  PassingFile(const PassingFile&) = delete;
  PassingFile& operator=(const PassingFile&) = delete;
  ~PassingFile() {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
  }
  const std::filesystem::path& Path() const { return file_; }

 private:
  std::filesystem::path file_;
};

}  // namespace

WholeQuestionCommands::WholeQuestionCommands(ExamEditor& editor)
    : editor_(editor), clipboard_(editor.state.document.Services()) {}

std::u16string WholeQuestionCommands::Text(int id) const {
  return Services().strings.Text(id);
}

QString WholeQuestionCommands::Refuse(std::u16string_view problem) const {
  Services().dialogs.ShowError(problem);
  return {};
}

QString WholeQuestionCommands::Report(const OrderOutcome& outcome, int text, std::size_t count) {
  if (!outcome.IsDone()) return Refuse(OrderProblemText(outcome, Services().strings));
  changed_ = outcome.questions;
  return ToQString(FillMessage(Text(text), {FormatCount(count)})) + ScoresAfter(outcome);
}

QString WholeQuestionCommands::ScoresAfter(const OrderOutcome& outcome) const {
  const auto former = [&outcome](int number) { return outcome.order.Source(number); };
  const std::vector<ScoreChange> changes = ScoreChanges(editor_.state.document, LastQuestion(), former);
  std::u16string told;
  for (const std::u16string& text : ScoreChangeTexts(changes, Services().strings)) told += u' ' + text;
  return ToQString(told);
}

QString WholeQuestionCommands::MoveTo(const std::vector<int>& numbers, int to) {
  return Report(editor_.order.MoveMany(numbers, to), text_id::kQuestionsMoved, numbers.size());
}

QString WholeQuestionCommands::AskAndMove(const std::vector<int>& numbers, QWidget* parent) {
  const int highest = LastQuestion() - static_cast<int>(numbers.size()) + 1;
  if (numbers.empty() || highest < 1) return {};
  bool accepted = false;
  const int to = QInputDialog::getInt(
      parent, ToQString(Text(text_id::kMoveTo)),
      ToQString(FillMessage(Text(text_id::kMoveToNumber),
                            {FormatCount(1), FormatCount(static_cast<std::size_t>(highest))})),
      std::min(numbers.front(), highest), 1, highest, 1, &accepted);
  return accepted ? MoveTo(numbers, to) : QString();
}

QString WholeQuestionCommands::Duplicate(const std::vector<int>& numbers) {
  return Report(editor_.order.Duplicate(numbers), text_id::kQuestionsDuplicated, numbers.size());
}

QString WholeQuestionCommands::Delete(const std::vector<int>& numbers) {
  QString done = Report(editor_.order.DeleteMany(numbers), text_id::kQuestionsDeleted, numbers.size());
  if (!done.isEmpty()) changed_ = {editor_.state.CurrentQuestion()};
  return done;
}

QString WholeQuestionCommands::Copy(const std::vector<int>& numbers) {
  changed_.clear();
  if (numbers.empty()) return {};
  std::vector<CopiedQuestion> copied;
  for (WholeQuestion& whole : editor_.order.Copies(numbers))
    copied.push_back({numbers[copied.size()], std::move(whole)});
  const std::u16string problem = clipboard_.Copy(editor_.questions.Form().title, copied);
  if (!problem.empty()) return Refuse(problem);
  std::u16string told = FillMessage(Text(text_id::kQuestionsCopied), {FormatCount(numbers.size())});
  if (const auto missing = FirstMissingFile(copied))
    told += u' ' +
            FillMessage(Text(text_id::kCopiedWithoutFile), {missing->name, FormatInteger(missing->question)});
  return ToQString(told);
}

QString WholeQuestionCommands::Cut(const std::vector<int>& numbers) {
  return Copy(numbers).isEmpty() ? QString() : Delete(numbers);
}

int WholeQuestionCommands::PlaceToInsert() const {
  return LastQuestion() == 0 ? 0 : editor_.state.CurrentQuestion();
}

QString WholeQuestionCommands::Insert(std::vector<WholeQuestion> questions, int after, ChangeKind how) {
  const std::size_t count = questions.size();
  return Report(editor_.order.InsertWhole(std::move(questions), after, how), text_id::kQuestionsInserted,
                count);
}

QString WholeQuestionCommands::Paste() {
  if (!clipboard_.HasQuestions()) return Refuse(Text(text_id::kNoQuestionsCopied));
  const auto workRoot = AttachmentWorkRoot(Services().applicationFolder);
  MakeWorkRoot(workRoot);
  const int number = editor_.attachments.TakeCopyNumber();
  const PassingFile file(workRoot / (std::string(kPastedFile) + std::to_string(number) + ".exm"));
  if (!clipboard_.SaveTo(file.Path())) return Refuse(Text(text_id::kPasteDamaged));
  const OtherExam copied(Services(), workRoot, file.Path(), number);
  if (!copied.Problem().empty()) return Refuse(Text(text_id::kPasteDamaged));
  std::vector<int> numbers;
  for (int n = 1; n <= copied.QuestionCount(); ++n) numbers.push_back(n);
  TakenQuestions taken = copied.Take(numbers);
  if (!taken.problem.empty()) return Refuse(taken.problem);
  return Insert(std::move(taken.questions), PlaceToInsert(), ChangeKind::PasteQuestion);
}

QString WholeQuestionCommands::InsertFromExam(QWidget* parent) {
  const auto file = Services().dialogs.ChooseFileToOpen({Text(text_id::kOpenExamFilter), {}, {}});
  if (!file) return {};
  const OtherExam other(Services(), AttachmentWorkRoot(Services().applicationFolder), *file,
                        editor_.attachments.TakeCopyNumber());
  if (other.QuestionCount() == 0) return Refuse(other.Problem());
  InsertFromExamDlg dialog(other, {PlaceToInsert(), editor_.order.RoomAfter(PlaceToInsert())},
                           Services().strings, parent);
  if (dialog.exec() != QDialog::Accepted) return {};
  TakenQuestions taken = other.Take(dialog.Ticked());
  if (!taken.problem.empty()) return Refuse(taken.problem);
  return InsertTaken(std::move(taken.questions), std::nullopt);
}

}  // namespace quorvantis
