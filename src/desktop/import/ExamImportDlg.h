// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/DialogText.h"
#include "import/ExamImport.h"
#include "model/document/ExamServices.h"

#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>

namespace quorvantis {

/// Lets the user choose a document and a repository to import by. Its rules are those of ExamImport.
class ExamImportDlg : public QDialog {
  Q_OBJECT

 public:
  /// The result when the user would rather have the rules worked out; the document is the one chosen so far.
  static constexpr int kWorkOutRules = 2;

  /// `import`, whose repositories are listed, and `services` must outlive the dialog.
  ExamImportDlg(ExamImport& import, ExamServices& services, const DialogText& texts, QWidget* parent);

  /// Closes the dialog only if the rules accept the choice.
  void accept() override;

 private:
  void Browse();
  void WorkOutRules();

  ExamImport& import_;
  ExamServices& services_;
  QPlainTextEdit* path_;
  QComboBox* repository_;
};

}  // namespace quorvantis
