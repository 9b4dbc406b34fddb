// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

#include <functional>

namespace quorvantis {

/// The result of an import. Modeless, so that the user can look at the questions before deciding whether to
/// keep them.
class ImportSummaryDlg : public QDialog {
  Q_OBJECT

 public:
  /// The actions of its buttons. Without `mendLineEnds` or `workOutRules` there is no such button.
  struct Commands {
    std::function<bool()> canUndo;
    std::function<void()> undo;
    std::function<void()> mendLineEnds;
    std::function<void()> workOutRules;
  };

  ImportSummaryDlg(const QString& lines, Commands commands, const StringTable& strings, QWidget* parent);

  /// Checks whether the import can still be undone, and closes if not.
  void Refresh();

 private:
  void Undo();
  void MendLineEnds();

  Commands commands_;
  QPlainTextEdit* text_;
  QPushButton* mend_ = nullptr;
};

}  // namespace quorvantis
