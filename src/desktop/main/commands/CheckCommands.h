// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/check/CheckWindow.h"
#include "desktop/check/ExamChecker.h"
#include "desktop/main/controls/ShownPlace.h"
#include "desktop/main/controls/WindowNotice.h"
#include "desktop/overview/ShownQuestionCommands.h"

#include <QObject>
#include <QPointer>

namespace quorvantis {

/// The check in the main window: its command, the marks in the overview, and the offer while printing.
class CheckCommands : public QObject {
  Q_OBJECT

 public:
  /// All must outlive this object, but `window`, the main window, owns the window of the check and `notice`.
  /// `scores` is the button that opens the score settings.
  CheckCommands(ExamEditor& editor, const ExamFormControls& controls, QWidget& scores,
                ShownQuestionCommands& overview, WindowNotice& notice, QWidget& window);

  /// Shows the findings.
  void Open();

  /// The exam may have changed, or another one is shown.
  void ExamChanged() { checker_.ExamChanged(); }

  /// The exam is being printed, perhaps into a file: if something is wrong with it, a notice offers to look.
  void PrintBegins();

  /// Checks; Judged comes once that is done.
  void Judge() { checker_.CheckNow(); }

 signals:
  /// The exam has been checked, or other findings are ignored.
  void Judged(bool isSomethingWrong);

 private:
  bool IsWanted() const;
  void Checked();
  void MarkOverview();
  void Show(const TextPlace& place);

  ExamEditor& editor_;
  ExamFormControls controls_;
  QWidget& scores_;
  ShownQuestionCommands& overview_;
  QPointer<WindowNotice> notice_;
  QWidget& window_;
  ExamChecker checker_;
  QPointer<CheckWindow> shown_;  ///< made when it is first needed
  bool isPrinting_ = false;      ///< the next findings are those of an exam that is being printed
};

}  // namespace quorvantis
