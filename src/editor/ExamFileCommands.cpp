// SPDX-License-Identifier: MIT
#include "editor/ExamFileCommands.h"

#include "editor/WorkCopies.h"
#include "platform/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/Texts.h"
#include "platform/UserDialogs.h"
#include "text/AsciiCase.h"
#include "text/MessageText.h"
#include "text/PathText.h"

namespace quorvantis {

std::u16string LowerExtension(const std::filesystem::path& path) {
  const std::u16string text = PathToText(path);
  return AsciiLower(std::u16string_view(text).substr(text.rfind(u'.') + 1));  // npos + 1 is 0
}

Parting ExamFileCommands::AskAboutChanges() {
  if (!state_.Modified()) return Parting::Leave;
  const ExamServices& services = state_.document.Services();
  const std::u16string question =
      FillMessage(services.strings.Text(text_id::kSaveQuestion), {PathToText(state_.FileName())});
  const SaveAnswer answer = services.dialogs.AskSave(question);
  if (answer == SaveAnswer::Yes) SaveExam();
  return answer == SaveAnswer::Cancel ? Parting::Stay
         : answer == SaveAnswer::No   ? Parting::GiveUp
                                      : Parting::Leave;
}

void ExamFileCommands::Leave(Parting parting) {
  if (unsavedWork_ != nullptr) unsavedWork_->Left(parting);
}

void ExamFileCommands::Enter() {
  if (unsavedWork_ != nullptr) unsavedWork_->Entered();
}

void ExamFileCommands::ClearDocument() {
  FrameSetExam& exam = state_.document;
  exam.Reset();
  if (exam.questionFilesUnpacked != 0) DeleteQuestionCopies(exam);
  if (exam.examFilesUnpacked != 0) DeleteExamCopies(exam);
  exam.questionFilesUnpacked = 0;
  exam.examFilesUnpacked = 0;
}

void ExamFileCommands::NewExam() {
  const Parting parting = AskAboutChanges();
  if (parting == Parting::Stay) return;
  Leave(parting);
  ++state_.examsBegun;
  StartNewExam();
}

void ExamFileCommands::StartNewExam() {
  Leave(Parting::Leave);
  EmptyExam();
  state_.SetFileName(kUntitled);
  state_.MarkSaved();
  Enter();
}

void ExamFileCommands::EmptyExam() {
  ClearDocument();
  state_.currentQuestion = 1;
  questions_.LoadCurrentQuestion();
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
  ++state_.examsBegun;
  ClearDocument();
  state_.document.ReadExamFile(file);
  RecordCopies(state_.document);
  state_.SetFileName(file);
  state_.currentQuestion = 1;
  questions_.LoadCurrentQuestion();
  state_.MarkSaved();
  Enter();
}

void ExamFileCommands::SaveExam() {
  if (state_.IsUntitled()) {
    SaveExamAs();
    return;
  }
  questions_.StoreCurrentQuestion();
  WriteTo(state_.FileName());
}

void ExamFileCommands::SaveExamAs() {
  const ExamServices& services = state_.document.Services();
  const std::u16string filter = services.strings.Text(text_id::kSaveExamFilter);
  const auto file = services.dialogs.ChooseFileToSave({filter, u"exm", u"MyExam"});
  if (!file || file->empty()) return;
  const std::u16string extension = LowerExtension(*file);
  if (extension == u"exm") {
    questions_.StoreCurrentQuestion();
    WriteTo(*file);
  } else if (extension == u"doc") {
    questions_.StoreCurrentQuestion();
    exportDocument_(state_.document, *file);
  }
}

void ExamFileCommands::WriteTo(const std::filesystem::path& file) {
  if (!state_.document.WriteExamFile(file, keepsBackups_)) return;
  ++state_.saves;
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
