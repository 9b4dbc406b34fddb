// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/desk/BankDesk.h"
#include "platform/StringTable.h"

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace quorvantis {

/// The folders of the bank, which can be added and taken out, and the exams in them that cannot be read.
class BankFoldersDlg : public QDialog {
  Q_OBJECT

 public:
  /// All must outlive the dialog.
  BankFoldersDlg(BankDesk& desk, const StringTable& strings, QWidget* parent);

 private:
  QPushButton* MakeButton(const char* name, int text, void (BankFoldersDlg::*command)());
  void Place();
  void Add();
  void Remove();
  void Show();
  void Tell(const BankProblem& problem);
  QString Text(int number) const;

  BankDesk& desk_;
  const StringTable& strings_;
  QListWidget* folders_;
  QListWidget* damaged_;
  QLabel* status_;
  QPushButton* remove_;
};

}  // namespace quorvantis
