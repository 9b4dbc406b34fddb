// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditedExam.h"
#include "editor/QuestionEditor.h"
#include "editor/SavingCheck.h"
#include "editor/UnsavedWork.h"
#include "editor/WorkCopies.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace quorvantis {

/// Writes the exam as a word-processor document; tells the user itself how it went.
using DocumentExport = std::function<void(const FrameSetExam& exam, const std::filesystem::path& target)>;

/// What follows the last dot of the whole path, in lower case; the whole path when it has no dot. Save As
/// goes by it.
std::u16string LowerExtension(const std::filesystem::path& path);

/// New, Open, Save, Save As and the question before an exam is left. Who wants to save is told first what
/// that would lose, and can go back; then New, Open and closing do not go on either. Reading and writing
/// report their own failures; the editor goes on with whatever the document holds.
class ExamFileCommands {
 public:
  /// All must outlive the commands.
  ExamFileCommands(EditorState& state, EditedExam& exam, QuestionEditor& questions,
                   DocumentExport exportDocument)
      : state_(state),
        exam_(exam),
        questions_(questions),
        check_(state),
        exportDocument_(std::move(exportDocument)) {}

  /// From now on: who keeps what is not saved, which must outlive the commands or be taken back with null.
  void SetUnsavedWork(UnsavedWork* unsavedWork) { unsavedWork_ = unsavedWork; }
  /// From now on: whether saving keeps the file that it replaces as a backup.
  void SetBackups(bool keepsBackups) { keepsBackups_ = keepsBackups; }
  /// From now on: every long fill-in answer is saved whole, also one that was loaded and not shown since.
  /// Otherwise only those that have been stored here are, as other programs expect it.
  void SetLongAnswersWhole(bool whole) { longAnswersWhole_ = whole; }

  void NewExam();
  /// The same without a question.
  void StartNewExam();
  /// Empties the exam; its file name stays.
  void EmptyExam();

  void OpenExam();
  /// Opens `file`, a full path, without a file dialog.
  void OpenExam(const std::filesystem::path& file);

  /// An exam without a file name is saved as SaveExamAs does.
  void SaveExam();
  void SaveExamAs();

  /// Asks about unsaved changes; false when the window is to stay open.
  bool ConfirmClose();

  /// Deletes the files that the reader has unpacked. The exam is over then.
  void DeleteUnpackedFiles() { DeleteUnpackedCopies(exam_.Change()); }

 private:
  Parting AskAboutChanges();
  void Leave(Parting parting);
  void Enter();
  void ClearDocument();
  void LoadFile(const std::filesystem::path& file);
  bool Save();
  bool SaveAs();
  std::optional<std::filesystem::path> ChooseTarget();
  bool StoreAndWrite(const std::filesystem::path& file);
  LossAnswer AskAboutLosses(const std::filesystem::path& file) const;
  void WriteTo(const std::filesystem::path& file);

  EditorState& state_;
  EditedExam& exam_;
  QuestionEditor& questions_;
  SavingCheck check_;
  DocumentExport exportDocument_;
  UnsavedWork* unsavedWork_ = nullptr;
  bool keepsBackups_ = false;
  bool longAnswersWhole_ = false;
};

}  // namespace quorvantis
