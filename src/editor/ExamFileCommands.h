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

/// Writes the exam as a word-processor document and reports the result to the user itself.
using DocumentExport = std::function<void(const FrameSetExam& exam, const std::filesystem::path& target)>;

/// New, Open, Save, Save As and the question before an exam is left. Before a save the user is told what it
/// would lose and can go back, which cancels New, Open and closing too. Reading and writing report their own
/// failures; the editor continues with whatever the document holds.
class ExamFileCommands {
 public:
  /// All must outlive this object.
  ExamFileCommands(EditorState& state, EditedExam& exam, QuestionEditor& questions,
                   DocumentExport exportDocument)
      : state_(state),
        exam_(exam),
        questions_(questions),
        check_(state),
        exportDocument_(std::move(exportDocument)) {}

  /// From now on `unsavedWork` keeps unsaved changes safe. It must outlive the commands or be reset with
  /// null.
  void SetUnsavedWork(UnsavedWork* unsavedWork) { unsavedWork_ = unsavedWork; }
  /// From now on: whether a save keeps the file that it replaces as a backup.
  void SetBackups(bool keepsBackups) { keepsBackups_ = keepsBackups; }
  /// From now on every long fill-in answer is saved in full, even one that was loaded and never shown.
  /// Otherwise only answers stored in this editor are, as other programs expect.
  void SetLongAnswersWhole(bool whole) { longAnswersWhole_ = whole; }

  void NewExam();
  /// The same without asking.
  void StartNewExam();
  /// Empties the exam; its file name stays.
  void EmptyExam();

  void OpenExam();
  /// Opens `file`, a full path, without a file dialog.
  void OpenExam(const std::filesystem::path& file);

  /// An exam without a file name is saved as by SaveExamAs.
  void SaveExam();
  void SaveExamAs();

  /// Asks for the name of a document and writes it, as SaveExamAs does with such a name.
  void ExportDocument();

  /// Asks about unsaved changes; false when the window must stay open.
  bool ConfirmClose();

  /// Deletes the files that the reader unpacked. The exam cannot be used afterwards.
  void DeleteUnpackedFiles() { DeleteUnpackedCopies(exam_.Change()); }

 private:
  Parting AskAboutChanges();
  void Leave(Parting parting);
  void Enter();
  void ClearDocument();
  void LoadFile(const std::filesystem::path& file);
  bool Save();
  bool SaveAs();
  std::optional<std::filesystem::path> ChooseTarget(int filterText, std::u16string extension);
  void WriteDocument(const std::filesystem::path& file);
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
