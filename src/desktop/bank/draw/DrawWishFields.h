// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "shell/settings/DrawSetting.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStringList>
#include <QToolButton>
#include <QWidget>

#include <vector>

namespace quorvantis {

/// The wishes for a draw: a row of fields for each, and a button for another row. A few rows are seen at
/// once, the others by scrolling.
class DrawWishFields : public QWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive this.
  DrawWishFields(const StringTable& strings, QWidget* parent);

  /// `wishes`: one at least.
  void Show(const std::vector<TypedWish>& wishes);
  std::vector<TypedWish> Typed() const;

  /// Chooses the number of the first wish, to be typed over.
  void Begin();

  /// Tags that can be completed.
  void Offer(QStringList tags);

 private:
  struct Row {
    QSpinBox* count;
    QComboBox* kind;
    QLineEdit* tags;
    QLineEdit* withoutTags;
    QLineEdit* spreadOver;
    QToolButton* remove;

    std::vector<QWidget*> Fields() const { return {count, kind, tags, withoutTags, spreadOver, remove}; }
  };

  void AddHeadings();
  QLineEdit* MakeTags(const std::u16string& typed, int tip);
  void Complete(const Row& row) const;
  Row MakeRow(const TypedWish& wish);
  void Add(const TypedWish& wish);
  void AddAnother();
  void Remove(const QToolButton* button);
  void Discard(const Row& row);
  void RowsChanged();
  QString Text(int number) const;

  const StringTable& strings_;
  QWidget* content_;
  QScrollArea* area_;
  QGridLayout* grid_;
  QPushButton* add_;
  std::vector<Row> rows_;
  QStringList tags_;  ///< that are offered
  int nextLine_ = 1;  ///< of the grid; those of removed rows stay empty
};

}  // namespace quorvantis
