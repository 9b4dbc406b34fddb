// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/exchange/ImportQuestionsDlg.h"
#include "desktop/import/ImportSummaryDlg.h"
#include "editor/ExamEditor.h"
#include "history/History.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

/// Questions for and from learning systems in the main window: the commands that open the two windows, and
/// the insertion of what came in, which is one step of the history.
class ExchangeCommands {
 public:
  /// All must outlive this object; `window` owns the windows.
  ExchangeCommands(ExamEditor& editor, History& history, QWidget& window)
      : editor_(editor), history_(history), window_(window) {}
  ExchangeCommands(const ExchangeCommands&) = delete;
  ExchangeCommands& operator=(const ExchangeCommands&) = delete;

  void ExportQuestions();

  /// Asks for the file, then for the questions in it.
  void ImportQuestions();

  /// Another exam may be shown, so the summary may be out of date.
  void ExamChanged() {
    if (summary_) summary_->Refresh();
  }

 private:
  std::filesystem::path ChooseFile();
  void ShowFile(const std::filesystem::path& file);
  std::filesystem::path NewFolder();
  void Insert(const ImportQuestionsDlg& dialog);
  /// The exam had no questions: title, random order and scores come with them.
  void TakeHeader(const FrameSetExam& taken);
  static std::vector<ExchangeNote> NotesOfInserted(const ImportQuestionsDlg& dialog,
                                                   const OrderOutcome& outcome);
  std::vector<std::u16string> Summary(const ImportQuestionsDlg& dialog, const OrderOutcome& outcome) const;
  void ShowSummary(const std::vector<std::u16string>& lines);
  bool CanUndo() const { return history_.CanUndo(step_); }
  void Undo();

  const ExamServices& Services() const { return editor_.state.document.Services(); }

  ExamEditor& editor_;
  History& history_;
  QWidget& window_;
  std::uint64_t step_ = 0;  ///< of the last insertion; 0 if there is none
  QPointer<ImportSummaryDlg> summary_;
};

}  // namespace quorvantis
