// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/search/HitTable.h"
#include "platform/StringTable.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quorvantis {

/// What the window for find and replace shows, in its places.
class SearchControls {
 public:
  /// The controls belong to `window`. `hits` and `strings` must outlive them.
  SearchControls(QAbstractItemModel& hits, const StringTable& strings, QWidget* window);
  SearchControls(const SearchControls&) = delete;
  SearchControls& operator=(const SearchControls&) = delete;

  /// Shows or hides the part for replacing.
  void Unfold(bool on);
  /// Shows that a search is running, and how to cancel it.
  void ShowRunning(bool on);
  /// Shows a message until the next one; screen readers announce it. An empty one removes it.
  void Tell(const QString& message);

  QLabel* findLabel;
  QLineEdit* find;
  QPushButton* previous;
  QPushButton* next;
  QLabel* replaceLabel;
  QLineEdit* replacement;
  QPushButton* replace;
  QPushButton* replaceAll;
  QCheckBox* matchCase;
  QCheckBox* wholeWords;
  QCheckBox* pattern;
  HitTable* table;
  QLabel* notice;
  QLabel* count;
  QPushButton* cancel;

 private:
  void Place(QWidget* window);

  const StringTable& strings_;
};

}  // namespace quorvantis
