// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/overview/OverviewModel.h"
#include "desktop/overview/OverviewTable.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

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

/// A list of questions that could come into the open exam, where the user ticks those that are to come. Tells
/// how many are ticked and fit.
class TickedQuestions : public QWidget {
  Q_OBJECT

 public:
  /// Where the questions are to go.
  struct Place {
    int after;  ///< number of a question; 0 for the beginning
    int room;   ///< number of questions that fit
  };

  /// `strings` must outlive the widget. `spokenName` is that of the list.
  TickedQuestions(const Place& place, const StringTable& strings, const QString& spokenName, QWidget* parent);

  /// Shows other questions, with no ticks.
  void Show(std::vector<OverviewRow> rows);
  /// Ticks the first questions, as many as fit.
  void TickWhatFits();
  void FocusList();

  /// The numbers of the ticked questions, ascending.
  std::vector<int> Ticked() const { return {model_->Ticked().begin(), model_->Ticked().end()}; }
  /// Some are ticked, and there is room for them.
  bool CanBeInserted() const;

 signals:
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPushButton* MakeButton(const char* name, int text, bool ticks);
  void TickFirst(int count, bool on);
  void TickSelected();
  void ShowCount();

  Place place_;
  const StringTable& strings_;
  TickedOverviewModel* model_;
  OverviewTable* table_;
  QLabel* count_;
};

}  // namespace quorvantis
