// SPDX-License-Identifier: MIT
#pragma once

#include "learn/ForeseenImport.h"
#include "platform/StringTable.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QSpinBox>

namespace quorvantis {

/// Where the questions go.
class TargetChoice : public QGroupBox {
  Q_OBJECT

 public:
  TargetChoice(const StringTable& strings, QWidget* parent);

  ImportWish Wish() const;

  /// Behind the last question, as for every new paper.
  void Reset();

  /// Proposes the number for "Insert from question".
  void Propose(int question);

  /// Without its heading, for small windows.
  void SetCompact(bool isCompact);

 signals:
  void Changed();

 private:
  QRadioButton* behind_;
  QRadioButton* from_;
  QSpinBox* number_;
  QRadioButton* newExam_;
};

}  // namespace quorvantis
