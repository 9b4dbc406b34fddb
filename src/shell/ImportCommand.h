// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "import/PaperReader.h"
#include "import/QuestionTextParser.h"
#include "shell/ExamImport.h"

#include <string>

namespace quorvantis {

/// Where imported questions go.
enum class ImportTarget { Continue, NewExam };

/// What to do with what an exam cannot show. A dialog that is closed otherwise gives None.
enum class ChoiceResult { None = 0, GiveUp = 1, IgnoreRelated = 2, Force = 3 };

/// What an import was, for the user and for whoever looks into it.
struct ImportReport {
  bool imported = false;  ///< the exam has been changed by what was read
  ImportSettings rules;
  std::u16string text;  ///< of the document
  MarkedText marked;
  ReadPaper paper;
  int firstSlot = 1;
  int nextSlot = 1;  ///< the one after the last slot written
};

/// The dialogs of an import. Each waits for the user, but the wait window.
class ImportDialogs {
 public:
  virtual ~ImportDialogs() = default;

  virtual ImportTarget AskTarget() = 0;
  /// Lets the user choose a document and a repository; true once they have been accepted.
  virtual bool AskDocument(ExamImport& import) = 0;
  virtual ChoiceResult AskPictures() = 0;
  virtual ChoiceResult AskFormulas() = 0;
  virtual void ShowWait() = 0;
  virtual void HideWait() = 0;
  /// Nothing was imported; one line that tells why.
  virtual void ShowFailure(std::u16string_view text) = 0;
  /// The import is over, and has changed the exam.
  virtual void ShowReport(const ImportReport& report) = 0;
};

/// The Import command: asks where questions go and where they come from, reads them into slots, and deals
/// with what the exam cannot show. One for the window's whole life, since picture numbers go on from import
/// to import.
class ImportCommand {
 public:
  /// All must outlive the command. `rules` is the file with the repositories.
  ImportCommand(ExamEditor& editor, PaperReader& reader, ImportDialogs& dialogs, std::filesystem::path rules)
      : editor_(editor), reader_(reader), dialogs_(dialogs), rules_(std::move(rules)) {}

  void Run();

  /// Imports into the slots after `question` (0 to 499) without asking for the target.
  void RunAfter(int question);

 private:
  bool ConfirmImportTarget();
  void ImportHere();
  bool ReadQuestions(const ExamImport& choice, const PaperContent& content, ImportReport& report);
  void StoreAndFinish(const PaperContent& content, ImportReport& report);
  bool HandleAnswerPictures();
  void HandleFormulas();
  void RollbackImport();
  void RemoveImported(int question);
  void ShowPictureList();
  void GoToLastImported();
  void Debug(std::u16string_view line);

  FrameSetExam& Exam() { return editor_.state.document; }

  ExamEditor& editor_;
  PaperReader& reader_;
  ImportDialogs& dialogs_;
  std::filesystem::path rules_;
  int pictureCounter_ = 1;  ///< number of the next picture
  int importBase_ = 1;      ///< the question that was shown when the import began
  int nextSlot_ = 1;        ///< the slot after the imported ones
  bool importRolledBack_ = false;
};

}  // namespace quorvantis
