// SPDX-License-Identifier: MIT
#include "editor/ExamFileCommands.h"

#include "editor/ProposedFileName.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ExportTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <utility>

namespace quorvantis {

Parting ExamFileCommands::AskAboutChanges() {
  if (!state_.Modified()) return Parting::Leave;
  const ExamServices& services = state_.document.Services();
  const std::u16string question =
      FillMessage(services.strings.Text(text_id::kSaveQuestion), {PathToText(state_.FileName())});
  switch (services.dialogs.AskSave(question)) {
    case SaveAnswer::Yes:
      return Save() ? Parting::Leave : Parting::Stay;
    case SaveAnswer::No:
      return Parting::GiveUp;
    default:
      return Parting::Stay;
  }
}

void ExamFileCommands::Leave(Parting parting) {
  if (unsavedWork_ != nullptr) unsavedWork_->Left(parting);
}

void ExamFileCommands::Enter() {
  if (unsavedWork_ != nullptr) unsavedWork_->Entered();
}

void ExamFileCommands::ClearDocument() {
  FrameSetExam& exam = exam_.Change();
  exam.Reset();
  DeleteUnpackedCopies(exam);
  exam.questionFilesUnpacked = 0;
  exam.examFilesUnpacked = 0;
}

void ExamFileCommands::NewExam() {
  const Parting parting = AskAboutChanges();
  if (parting == Parting::Stay) return;
  Leave(parting);
  StartNewExam();
  state_.CountExamBegun();
}

void ExamFileCommands::StartNewExam() {
  Leave(Parting::Leave);
  EmptyExam();
  check_.Forget();
  state_.SetFileName(kUntitled);
  state_.MarkSaved();
  Enter();
}

void ExamFileCommands::EmptyExam() {
  ClearDocument();
  questions_.ShowQuestion(1);
}

void ExamFileCommands::OpenExam() {
  const Parting parting = AskAboutChanges();
  if (parting == Parting::Stay) return;
  const ExamServices& services = state_.document.Services();
  const std::u16string filter = services.strings.Text(text_id::kOpenExamFilter);
  const auto file = services.dialogs.ChooseFileToOpen({filter, {}, {}});
  if (!file) return;
  Leave(parting);
  LoadFile(*file);
}

void ExamFileCommands::OpenExam(const std::filesystem::path& file) {
  const Parting parting = AskAboutChanges();
  if (parting == Parting::Stay) return;
  Leave(parting);
  LoadFile(file);
}

void ExamFileCommands::LoadFile(const std::filesystem::path& file) {
  ClearDocument();
  exam_.Change().ReadExamFile(file);
  RecordCopies(exam_.Change());
  check_.ExamIsThatOf(file);
  state_.SetFileName(file);
  questions_.ShowQuestion(1);
  state_.MarkSaved();
  Enter();
  state_.CountExamBegun();
}

void ExamFileCommands::SaveExam() {
  Save();
}

void ExamFileCommands::SaveExamAs() {
  SaveAs();
}

/// False only when the user went back to the exam. A save that failed, or whose file dialog was cancelled,
/// still gives true.
bool ExamFileCommands::Save() {
  return state_.IsUntitled() ? SaveAs() : StoreAndWrite(state_.FileName());
}

bool ExamFileCommands::SaveAs() {
  const auto file = ChooseTarget(text_id::kSaveExamFilter, u"exm");
  if (!file) return true;
  const std::u16string extension = ExtensionOrPath(PathToText(*file));
  if (extension == u"exm") return StoreAndWrite(*file);
  if (extension == u"doc") WriteDocument(*file);
  return true;
}

void ExamFileCommands::ExportDocument() {
  if (const auto file = ChooseTarget(text_id::kDocumentFilter, u"doc")) WriteDocument(*file);
}

void ExamFileCommands::WriteDocument(const std::filesystem::path& file) {
  questions_.StoreCurrentQuestion();
  exam_.Change().CountQuestions();
  exportDocument_(state_.document, file);
}

std::optional<std::filesystem::path> ExamFileCommands::ChooseTarget(int filterText,
                                                                    std::u16string extension) {
  const ExamServices& services = state_.document.Services();
  const auto file = services.dialogs.ChooseFileToSave(
      {services.strings.Text(filterText), std::move(extension), ProposedFileName(questions_.Form().title)});
  return file && !file->empty() ? file : std::nullopt;
}

/// False when the user went back to the exam, which is then unchanged.
bool ExamFileCommands::StoreAndWrite(const std::filesystem::path& file) {
  const LossAnswer answer = AskAboutLosses(file);
  if (answer == LossAnswer::GoBack) return false;
  FrameSetExam& exam = exam_.Change();
  questions_.StoreCurrentQuestion();
  if (longAnswersWhole_) exam.Services().longAnswerFlags.SetWhereNeeded(exam);
  if (answer == LossAnswer::StoreWhole) {
    StoreWhole(exam);
    questions_.LoadCurrentQuestion();
  }
  WriteTo(file);
  return true;
}

LossAnswer ExamFileCommands::AskAboutLosses(const std::filesystem::path& file) const {
  LongAnswerFlags flags = state_.document.Services().longAnswerFlags;
  const FrameSetExam exam = questions_.StoredExam(flags);
  if (longAnswersWhole_) flags.SetWhereNeeded(exam);
  return check_.Ask(file, FindSavingLosses(exam, flags));
}

void ExamFileCommands::WriteTo(const std::filesystem::path& file) {
  if (!exam_.Change().WriteExamFile(file, keepsBackups_)) return;
  state_.CountSave();
  exam_.Change().readDoubt = ReadDoubt::None;
  check_.ExamIsThatOf(file);
  state_.SetFileName(file);
  state_.MarkSaved();
  if (unsavedWork_ != nullptr) unsavedWork_->Saved();
}

bool ExamFileCommands::ConfirmClose() {
  const Parting parting = AskAboutChanges();
  if (parting == Parting::Stay) return false;
  Leave(parting);
  return true;
}

}  // namespace quorvantis
