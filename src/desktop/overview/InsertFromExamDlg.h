// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/overview/OverviewModel.h"
#include "desktop/overview/OverviewTable.h"
#include "taking/OtherExam.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <set>
#include <vector>

namespace quorvantis {

/// The rows of an exam with a box to tick in each.
class TickedOverviewModel : public OverviewModel {
  Q_OBJECT

 public:
  using OverviewModel::OverviewModel;

  const std::set<int>& Ticked() const { return ticked_; }
  void Tick(const std::vector<int>& rows, bool on);
  bool IsTicked(int row) const { return ticked_.contains(QuestionAt(row)); }

  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
  void TicksChanged();

 private:
  std::set<int> ticked_;  ///< numbers of questions
};

/// Lets the user tick the questions of another exam that are to be inserted. What does not fit into the open
/// exam cannot be accepted.
class InsertFromExamDlg : public QDialog {
  Q_OBJECT

 public:
  /// Where the questions are to go.
  struct Place {
    int after;  ///< number of a question; 0 for the beginning
    int room;   ///< number of questions that fit
  };

  /// `other` and `strings` must outlive the dialog.
  InsertFromExamDlg(const OtherExam& other, const Place& place, const StringTable& strings, QWidget* parent);

  /// The numbers of the ticked questions, ascending.
  std::vector<int> Ticked() const { return {model_->Ticked().begin(), model_->Ticked().end()}; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString Text(int id) const;
  QLabel* MakeNotice(const std::u16string& text);
  QPushButton* MakeButton(const char* name, int text);
  void TickAll(bool on);
  void TickSelected();
  void ShowCount();

  const StringTable& strings_;
  Place place_;
  TickedOverviewModel* model_;
  OverviewTable* table_;
  QLabel* count_;
  QPushButton* insert_;
};

}  // namespace quorvantis
