// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QList>

namespace quorvantis {

/// Puts widgets beside each other, each as wide as it wants to be, and goes on in the next row where there is
/// no more room: for rows of buttons in windows that may be narrow.
class FlowLayout : public QLayout {
 public:
  /// `spacing` is in pixels.
  FlowLayout(int spacing, QWidget* parent);
  FlowLayout(const FlowLayout&) = delete;
  FlowLayout& operator=(const FlowLayout&) = delete;
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.push_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  void setGeometry(const QRect& place) override;

 private:
  /// The places of the items in their order, from left to right, within `place`; those of invisible ones are
  /// empty. Items of a row stand around its middle.
  QList<QRect> Places(const QRect& place) const;
  static int EndRow(QList<QRect>& places, qsizetype rowBegin);
  QMargins Margins() const { return contentsMargins(); }

  QList<QLayoutItem*> items_;
};

}  // namespace quorvantis
