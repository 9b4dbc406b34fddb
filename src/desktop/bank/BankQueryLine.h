// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankQuery.h"
#include "platform/StringTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace quorvantis {

/// Where a teacher says which questions of the bank are wanted: words, a kind, with files, with a key.
class BankQueryLine : public QWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive the line.
  BankQueryLine(const StringTable& strings, QWidget* parent);

  BankQuery Query() const;
  void FocusWords();

 signals:
  void QueryChanged();
  /// Return or an arrow downwards: on to what was found.
  void Left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeHelp(const QString& tip);

  const QueryWords inLanguage_;
  QLineEdit* words_;
  QToolButton* help_;
  QComboBox* kind_;
  QCheckBox* withFiles_;
  QCheckBox* withKey_;
};

}  // namespace quorvantis
