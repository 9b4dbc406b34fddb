// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/overview/TickedQuestions.h"
#include "taking/OtherExam.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <vector>

namespace quorvantis {

/// Lets the user tick the questions of another exam that are to be inserted. What does not fit into the open
/// exam cannot be accepted.
class InsertFromExamDlg : public QDialog {
  Q_OBJECT

 public:
  /// `other` and `strings` must outlive the dialog.
  InsertFromExamDlg(const OtherExam& other, const TickedQuestions::Place& place, const StringTable& strings,
                    QWidget* parent);

  /// The numbers of the ticked questions, ascending.
  std::vector<int> Ticked() const { return questions_->Ticked(); }

 private:
  QString Text(int id) const;
  QLabel* MakeNotice(const std::u16string& text);
  QPushButton* MakeButton(const char* name, int text);

  const StringTable& strings_;
  TickedQuestions* questions_;
};

}  // namespace quorvantis
