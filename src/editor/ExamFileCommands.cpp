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

bool ExamFileCommands::MayDiscardChanges() {
  if (!state_.Modified()) return true;
  const ExamServices& services = state_.document.Services();
  const std::u16string question =
      FillMessage(services.strings.Text(text_id::kSaveQuestion), {PathToText(state_.FileName())});
  const SaveAnswer answer = services.dialogs.AskSave(question);
  if (answer == SaveAnswer::Yes) SaveExam();
  return answer != SaveAnswer::Cancel;
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
  if (!MayDiscardChanges()) return;
  ++state_.examsBegun;
  StartNewExam();
}

void ExamFileCommands::StartNewExam() {
  EmptyExam();
  state_.SetFileName(kUntitled);
  state_.MarkSaved();
}

void ExamFileCommands::EmptyExam() {
  ClearDocument();
  state_.currentQuestion = 1;
  questions_.LoadCurrentQuestion();
}

void ExamFileCommands::OpenExam() {
  if (!MayDiscardChanges()) return;
  const ExamServices& services = state_.document.Services();
  const std::u16string filter = services.strings.Text(text_id::kOpenExamFilter);
  if (const auto file = services.dialogs.ChooseFileToOpen({filter, {}, {}})) LoadFile(*file);
}

void ExamFileCommands::OpenExam(const std::filesystem::path& file) {
  if (MayDiscardChanges()) LoadFile(file);
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
    if (WriteTo(*file)) state_.SetFileName(*file);
  } else if (extension == u"doc") {
    questions_.StoreCurrentQuestion();
    exportDocument_(state_.document, *file);
  }
}

bool ExamFileCommands::WriteTo(const std::filesystem::path& file) {
  const bool written = state_.document.WriteExamFile(file);
  if (written) {
    ++state_.saves;
    state_.MarkSaved();
  }
  return written;
}

bool ExamFileCommands::ConfirmClose() {
  return MayDiscardChanges();
}

}  // namespace quorvantis
