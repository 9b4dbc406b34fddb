// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"
#include "platform/StringTable.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

#include <vector>

namespace quorvantis {

/// The rules for people who write them: each with what it is for, its key in "ImportExam.ini", and what it
/// finds; and the steps before marking.
class RulesPanel : public QScrollArea {
  Q_OBJECT

 public:
  /// `strings` must outlive the panel.
  RulesPanel(const StringTable& strings, QWidget* parent);

  /// Shows the rules of a study and what they find. The study must outlive the panel's next call.
  void ShowStudy(const PaperStudy& study);

  /// Lets go of the study.
  void Clear();

  /// The rules as they are in the fields.
  ImportSettings Rules() const;

  /// Which of them is not valid, and why, in one sentence; empty if all are.
  QString Fault() const;

  static constexpr int kNoRule = -1;

 signals:
  /// The user has changed a rule, an index of RuleFields(), or something else: kNoRule.
  void Edited(int rule);

 private:
  struct Row {
    QLineEdit* value;
    QLabel* state;
    QString fault{};
  };

  void AddRules(QWidget* content);
  void AddSteps(QWidget* content);
  void ShowStates();
  void ShowTyped(std::size_t rule);
  void EditedOther() { emit Edited(kNoRule); }

  const StringTable& strings_;
  std::vector<Row> rows_;  ///< one for each of RuleFields()
  QCheckBox* table_;
  std::vector<QCheckBox*> steps_;  ///< one for each of PreparationSteps()
  ImportSettings shown_;           ///< with what no field shows
  const PaperStudy* study_ = nullptr;
};

}  // namespace quorvantis
