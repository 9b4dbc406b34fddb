// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/draw/ArrangedDraw.h"
#include "desktop/bank/draw/DrawnModel.h"
#include "desktop/bank/draw/DrawnTable.h"
#include "platform/StringTable.h"

#include <QLayout>
#include <QList>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QWidget>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

/// The list of drawn questions with the whole of the chosen one, what each wish found, and the buttons to
/// arrange it. What needs the bank or the open exam is only asked for.
class DrawnPane : public QWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive this.
  DrawnPane(const StringTable& strings, QWidget* parent);

  const DrawnList& List() const { return drawn_.Now(); }
  /// The row that is chosen.
  std::optional<std::size_t> Chosen() const;

  void Put(DrawnList list);
  void Exchange(std::size_t place, const AnotherDrawn& other);
  void TakeInserted(const std::set<std::size_t>& gone);

  /// What is said of the list, line by line.
  void Report(const std::vector<std::u16string>& lines);

  /// While something is drawn, nothing in the list can be changed.
  void SetBusy(bool isBusy);

  void FocusList() { table_->setFocus(); }

  /// Widths of the columns, in pixels.
  std::vector<int> Widths() const;
  void SetWidths(const std::vector<int>& widths);

 signals:
  void ExchangeWished();
  void PageWished();
  void InsertWished();
  /// The user has changed the list, or taken a change back.
  void Arranged();

 private:
  QPushButton* MakeButton(const char* name, int text, void (DrawnPane::*command)());
  void SetUpTexts();
  QLayout* PlaceButtons();
  void Remove();
  void MoveBy(int rows);
  void MoveUp() { MoveBy(-1); }
  void MoveDown() { MoveBy(1); }
  void GoBack();
  void ShowList(std::size_t chosen);
  void ShowChosen();
  QList<QPushButton*> Buttons() const;
  void EnableButtons();
  QString Text(int number) const;

  const StringTable& strings_;
  ArrangedDraw drawn_;
  DrawnModel model_;
  DrawnTable* table_;
  QTextEdit* whole_;
  QPlainTextEdit* report_;
  QPushButton* exchange_;
  QPushButton* remove_;
  QPushButton* up_;
  QPushButton* down_;
  QPushButton* page_;
  QPushButton* back_;
  QPushButton* insert_;
  bool isBusy_ = false;
};

}  // namespace quorvantis
