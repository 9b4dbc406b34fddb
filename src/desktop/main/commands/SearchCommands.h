// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/controls/AnswerControls.h"
#include "desktop/main/controls/ExamControls.h"
#include "desktop/main/controls/QuestionControls.h"
#include "desktop/search/SearchWindow.h"

namespace quorvantis {

/// Find and replace in the main window: the commands, and showing hits in its fields.
class SearchCommands {
 public:
  /// All must outlive this object; `window` owns the window for find and replace.
  SearchCommands(ExamEditor& editor, ExamControls& exam, QuestionControls& question, AnswerControls& answers,
                 QWidget& window)
      : editor_(editor), exam_(exam), question_(question), answers_(answers), window_(window) {}
  SearchCommands(const SearchCommands&) = delete;
  SearchCommands& operator=(const SearchCommands&) = delete;

  /// Text that is selected in a field becomes the query of these two.
  void Find() { Window().OpenFind(SelectedText()); }
  void Replace() { Window().OpenReplace(SelectedText()); }
  void FindNext() { Window().FindNext(); }
  void FindPrevious() { Window().FindPrevious(); }

  /// The exam may have changed, or another one is shown.
  void ExamChanged() {
    if (search_ != nullptr) search_->ExamChanged();
  }

 private:
  SearchWindow& Window();
  QString SelectedText() const;
  void ShowHit(const SearchHit& hit);

  ExamEditor& editor_;
  ExamControls& exam_;
  QuestionControls& question_;
  AnswerControls& answers_;
  QWidget& window_;
  SearchWindow* search_ = nullptr;  ///< made when it is first needed
};

}  // namespace quorvantis
