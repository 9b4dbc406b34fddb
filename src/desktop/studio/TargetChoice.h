// SPDX-License-Identifier: MIT
#pragma once

#include "learn/ForeseenImport.h"
#include "platform/StringTable.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

namespace quorvantis {

/// Where the questions go, and what that does to the exam.
class TargetChoice : public QGroupBox {
  Q_OBJECT

 public:
  /// `strings` must outlive the choice.
  TargetChoice(const StringTable& strings, QWidget* parent);

  ImportWish Wish() const;

  /// Behind the last question, as for every new paper.
  void Reset();

  /// Proposes the number for "Insert from question".
  void Propose(int question);

  /// Says what the wish does; nothing if there are no questions.
  void ShowPlace(const ForeseenImport& place);

 signals:
  void Changed();

 private:
  const StringTable& strings_;
  QRadioButton* behind_;
  QRadioButton* from_;
  QSpinBox* number_;
  QRadioButton* newExam_;
  QLabel* place_;
};

}  // namespace quorvantis
