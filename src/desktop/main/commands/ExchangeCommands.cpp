// SPDX-License-Identifier: MIT
#include "desktop/main/commands/ExchangeCommands.h"

#include "desktop/controls/QtText.h"
#include "desktop/exchange/ExportQuestionsDlg.h"
#include "editor/WorkCopies.h"
#include "exchange/form/NoteGroups.h"
#include "model/LongAnswerFlags.h"
#include "model/WorkFolderNames.h"
#include "model/document/ExamServices.h"
#include "overview/ScoreChangeTexts.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ExchangeTexts.h"
#include "platform/texts/ImportTexts.h"
#include "shell/settings/ExchangeSetting.h"
#include "text/MessageText.h"
#include "text/NumberRanges.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

}  // namespace

void ExchangeCommands::ExportQuestions() {
  LongAnswerFlags unused;
  const fs::path file = editor_.state.IsUntitled() ? fs::path() : editor_.state.FileName();
  auto* dialog = new ExportQuestionsDlg(editor_.questions.StoredExam(unused), file, &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->show();
}

void ExchangeCommands::ImportQuestions() {
  const fs::path file = ChooseFile();
  if (!file.empty()) ShowFile(file);
}

fs::path ExchangeCommands::ChooseFile() {
  const ExamServices& services = Services();
  const ExchangeSetting setting(services.applicationFolder, services.files, services.codePage);
  ExchangeChoices choices = setting.Read();
  std::error_code ignored;
  if (!fs::is_directory(choices.takenFrom, ignored)) choices.takenFrom.clear();
  const auto file = services.dialogs.ChooseFileToOpen(
      {services.strings.Text(text_id::kExchangeFilter), {}, {}, choices.takenFrom});
  if (!file) return {};
  choices.takenFrom = file->parent_path();
  setting.Write(choices);
  return *file;
}

void ExchangeCommands::ShowFile(const fs::path& file) {
  const int last = editor_.order.LastQuestion();
  const int after = last == 0 ? 0 : editor_.state.CurrentQuestion();
  const ImportQuestionsDlg::Target target{
      {after, editor_.order.RoomAfter(after)}, last == 0, [this] { return NewFolder(); }};
  auto* dialog = new ImportQuestionsDlg(Services(), file, target, &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::accepted, dialog, [this, dialog] { Insert(*dialog); });
  dialog->show();
}

fs::path ExchangeCommands::NewFolder() {
  const std::string number = std::to_string(editor_.attachments.TakeCopyNumber());
  return AttachmentWorkRoot(Services().applicationFolder) / (std::string(kForeignExamFolder) + number);
}

void ExchangeCommands::Insert(const ImportQuestionsDlg& dialog) {
  ForeignQuestions taken = dialog.Read()->Take(dialog.Ticked());
  history_.Look();
  OrderOutcome outcome;
  {
    const History::Hold untilItIsWhole(history_);
    outcome =
        editor_.order.InsertWhole(std::move(taken.questions), dialog.After(), ChangeKind::ExchangeQuestion);
    if (outcome.IsDone() && dialog.TakesHeader()) TakeHeader(taken.exam);
  }
  if (!outcome.IsDone()) return Services().dialogs.ShowError(OrderProblemText(outcome, Services().strings));
  history_.Look();
  step_ = history_.LastStep();
  ShowSummary(Summary(dialog, outcome));
}

/// A title that was typed already stays.
void ExchangeCommands::TakeHeader(const FrameSetExam& taken) {
  FrameSetExam exam = editor_.state.document;
  if (exam.title.empty()) exam.title = taken.title;
  exam.randomMode = taken.randomMode;
  exam.scoreMode = taken.scoreMode;
  exam.scoreFrom = taken.scoreFrom;
  exam.scoreTo = taken.scoreTo;
  exam.scoreValue = taken.scoreValue;
  editor_.changes.Replace(std::move(exam));
  editor_.questions.ShowQuestion(editor_.state.CurrentQuestion());
}

/// What was told of the questions that came in, with their numbers in the exam.
std::vector<ExchangeNote> ExchangeCommands::NotesOfInserted(const ImportQuestionsDlg& dialog,
                                                            const OrderOutcome& outcome) {
  const std::vector<int> ticked = dialog.Ticked();
  std::vector<ExchangeNote> notes;
  for (ExchangeNote note : dialog.Notes()) {
    const auto place = static_cast<std::size_t>(std::ranges::find(ticked, note.question) - ticked.begin());
    if (note.question != 0 && place >= outcome.questions.size()) continue;
    if (note.question != 0) note.question = outcome.questions[place];
    notes.push_back(std::move(note));
  }
  return notes;
}

std::vector<std::u16string> ExchangeCommands::Summary(const ImportQuestionsDlg& dialog,
                                                      const OrderOutcome& outcome) const {
  const StringTable& strings = Services().strings;
  std::vector<std::u16string> lines;
  lines.push_back(
      FillMessage(strings.Text(text_id::kExchangeCameIn),
                  {FormatInteger(static_cast<std::int64_t>(outcome.questions.size())),
                   PathToText(dialog.Read()->File().filename()), NumberRanges(outcome.questions)}));
  for (const NoteGroup& group : GroupNotes(NotesOfInserted(dialog, outcome), strings))
    lines.push_back(u"\u2013 " + GroupLine(group, strings));
  if (dialog.TakesHeader()) return lines;
  const auto former = [&outcome](int number) { return outcome.order.Source(number); };
  const auto changes = ScoreChanges(editor_.state.document, editor_.order.LastQuestion(), former);
  for (std::u16string& text : ScoreChangeTexts(changes, strings)) lines.push_back(std::move(text));
  return lines;
}

void ExchangeCommands::ShowSummary(const std::vector<std::u16string>& lines) {
  if (summary_) summary_->close();
  QStringList shown;
  for (const std::u16string& line : lines) shown.append(ToQString(line));
  ImportSummaryDlg::Commands commands;
  commands.canUndo = [this] { return CanUndo(); };
  commands.undo = [this] { Undo(); };
  summary_ = new ImportSummaryDlg(shown.join(u'\n'), std::move(commands), Services().strings, &window_);
  summary_->show();
  summary_->activateWindow();  // otherwise Escape would end the main window
}

void ExchangeCommands::Undo() {
  history_.Look();
  const bool takesMore = history_.LastStep() != step_;
  const auto mayTake = [this] {
    return Services().dialogs.AskYesNo(Services().strings.Text(text_id::kUndoAfterChanges));
  };
  if (CanUndo() && (!takesMore || mayTake())) history_.UndoBackTo(step_);
}

}  // namespace quorvantis
