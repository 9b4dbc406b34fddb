// SPDX-License-Identifier: MIT
#pragma once

#include "overview/OverviewRows.h"
#include "platform/StringTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

namespace quorvantis {

/// The line above an overview in which the user says which questions to show.
class OverviewFilterLine : public QWidget {
  Q_OBJECT

 public:
  OverviewFilterLine(const StringTable& strings, QWidget* parent);

  OverviewFilter Filter() const;
  void FocusText();

 signals:
  void Changed();

 private:
  QLineEdit* text_;
  QComboBox* kind_;
  QCheckBox* withoutKey_;
  QCheckBox* withFiles_;
};

}  // namespace quorvantis
