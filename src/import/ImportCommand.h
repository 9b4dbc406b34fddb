// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorSnapshot.h"
#include "editor/ExamEditor.h"
#include "import/ExamImport.h"
#include "import/ImportDialogs.h"
#include "import/ImportReport.h"
#include "import/WordReader.h"

namespace quorvantis {

/// The Import command: asks where questions go and where they come from, reads them into slots, handles what
/// the exam cannot show, and can undo everything. There is one for the window's whole life, since picture
/// numbers continue from import to import.
class ImportCommand {
 public:
  /// All must outlive the command. `rules` is the file with the repositories.
  ImportCommand(ExamEditor& editor, WordDocuments& documents, ImportDialogs& dialogs,
                std::filesystem::path rules)
      : editor_(editor),
        documents_(documents),
        dialogs_(dialogs),
        rules_(std::move(rules)),
        before_(editor) {}

  /// The whole command.
  void ImportQuestions();

  /// The same, into the slots after `question` (0 to 499) without asking for the target.
  void ImportQuestionsAfter(int question);

  /// From an import until the user opens another exam, makes a new one or imports again.
  bool CanUndo() const { return before_.IsUsable(); }
  /// Restores the exam from before the import, whatever has been done to it since.
  void Undo();

  /// Fixes the line ends of the imported questions, so that pages show them whole. As long as the import can
  /// be undone.
  void MendLineEnds();

 private:
  void Begin();
  bool ConfirmImportTarget();
  void ImportHere();
  WordResult ReadDocument(const ExamImport& choice, ImportReport& report);
  MarkedText Mark(const WordReader& reader, const ImportSettings& rules);
  void EndWithout(const ImportReport& report, std::u16string_view message);
  void HandleAndFinish(ImportReport& report);
  void Report(ImportReport& report);
  bool HandleAnswerPictures();
  void HandleFormulas();
  void RollbackImport();
  void RemoveImported(int question);
  void ShowPictureList();
  void GoToLastImported();
  const StringTable& Strings();
  void Debug(std::u16string_view line);

  const FrameSetExam& Exam() const { return editor_.state.document; }

  ExamEditor& editor_;
  WordDocuments& documents_;
  ImportDialogs& dialogs_;
  std::filesystem::path rules_;
  EditorSnapshot before_;
  int pictureCounter_ = 1;  ///< number of the next picture
  int pictureCounterBefore_ = 1;
  int importBase_ = 1;  ///< the question that was shown when the import began
  int firstSlot_ = 1;   ///< of the imported questions
  int nextSlot_ = 1;    ///< the slot after them
  int removed_ = 0;
  bool isNewExam_ = false;  ///< begun by this import
  bool importRolledBack_ = false;
};

}  // namespace quorvantis
