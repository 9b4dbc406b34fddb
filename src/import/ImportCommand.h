// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "history/History.h"
#include "import/ExamImport.h"
#include "import/ImportDialogs.h"
#include "import/ImportReport.h"
#include "import/WordReader.h"

#include <optional>

namespace quorvantis {

/// Where the questions of an import go that was begun with a document and rules.
enum class ImportPlace {
  AfterCurrentQuestion,  ///< they replace what follows; after question 500 they replace that
  FirstQuestion,         ///< they replace the exam's questions; for an empty exam
  NewExam,               ///< after the present one has been saved
};

/// How an import ended. Unless it is Imported, the exam is as it was before.
enum class ImportOutcome {
  Imported,
  Cancelled,  ///< by the user, in whatever dialog
  Failed,     ///< and the user knows why
};

/// The Import command: asks where questions go and where they come from, reads them into slots, handles what
/// the exam cannot show, and can undo everything. There is one for the window's whole life, since picture
/// numbers continue from import to import.
class ImportCommand {
 public:
  /// All must outlive the command. `rules` is the file with the repositories.
  ImportCommand(ExamEditor& editor, History& history, WordDocuments& documents, ImportDialogs& dialogs,
                std::filesystem::path rules)
      : editor_(editor),
        history_(history),
        documents_(documents),
        dialogs_(dialogs),
        rules_(std::move(rules)) {}

  /// The file with the repositories is another one from now on.
  void SetRules(std::filesystem::path rules) { rules_ = std::move(rules); }

  /// The whole command.
  void ImportQuestions();

  /// The same, into the slots after `question` (0 to 499) without asking for the target.
  void ImportQuestionsAfter(int question);

  /// Imports a document by these rules, which need not be in any file. Other than in the whole command, a
  /// dialog that is closed without an answer, and giving up, end the import with the exam unchanged: there is
  /// no report then; and the first question is looked at as all others are. With `number` (1 to 500) the
  /// questions are then moved to begin there, and those that were there follow them, with all that is theirs.
  ImportOutcome ImportChosen(const std::filesystem::path& document, const ImportSettings& rules,
                             ImportPlace place, std::optional<int> number = {});

  /// From an import until the user undoes it, opens another exam, makes a new one or imports again.
  bool CanUndo() const { return history_.CanUndo(step_); }
  /// Undoes the import, and before it whatever has been done since.
  void Undo();

  /// Fixes the line ends of the imported questions, so that pages show them whole. As long as the import can
  /// be undone.
  void MendLineEnds();

 private:
  void Begin();
  void NoteStep();
  void Revert();
  bool ConfirmImportTarget();
  bool BeginNewExam();
  bool GoToPlace(ImportPlace place);
  void ImportHere();
  ImportOutcome ImportDocument(const std::filesystem::path& document, const ImportSettings& rules);
  WordResult ReadDocument(ImportReport& report);
  MarkedText Mark(const WordReader& reader, const ImportSettings& rules);
  ImportOutcome EndWithout(const ImportReport& report, std::u16string_view message);
  ImportOutcome HandleAndFinish(ImportReport& report);
  ImportOutcome TakeBack();
  void Report(ImportReport& report);
  bool IsGivenUp(ChoiceResult choice) const;
  bool HandleAnswerPictures();
  void HandleFormulas();
  void RollbackImport();
  void RemoveImported(int question);
  int FirstToCheck() const;
  int LastToCheck() const;
  void ShowPictureList();
  void GoToLastImported();
  void MoveImported();
  const StringTable& Strings();
  void Debug(std::u16string_view line);

  const FrameSetExam& Exam() const { return editor_.state.document; }

  ExamEditor& editor_;
  History& history_;
  WordDocuments& documents_;
  ImportDialogs& dialogs_;
  std::filesystem::path rules_;
  bool wasModified_ = false;  ///< before the import; likewise:
  int savesBefore_ = 0;
  std::optional<History::Hold> atWork_;
  std::uint64_t stepBefore_ = 0;
  std::uint64_t step_ = 0;  ///< of the last import; 0 if there is none
  int pictureCounter_ = 1;  ///< number of the next picture
  int pictureCounterBefore_ = 1;
  int importBase_ = 1;  ///< the question that was shown when the import began
  int firstSlot_ = 1;   ///< of the imported questions
  int nextSlot_ = 1;    ///< the slot after them
  int removed_ = 0;
  bool isNewExam_ = false;  ///< begun by this import
  bool importRolledBack_ = false;
  bool isChosen_ = false;      ///< document and rules were given, and a dialog that is closed ends the import
  std::optional<int> moveTo_;  ///< the number that the first question gets in the end
};

}  // namespace quorvantis
