// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QSize>
#include <QString>
#include <QWidget>

namespace quorvantis {

/// A caption made to fit a place of fixed size: wrapped at blanks, then in a smaller font, finally elided.
struct FittedCaption {
  QFont font;
  QString text;
};

FittedCaption FitCaption(const QString& caption, const QFont& font, QSize room);

/// `font`, or the largest smaller one with lines no higher than `height`.
QFont FontForHeight(QFont font, int height);

/// A window whose rows have fixed heights: a large font of the desktop becomes smaller in it, before its
/// controls take it over.
class FittedWindow : public QWidget {
 public:
  /// The most that a line may be high, in pixels.
  explicit FittedWindow(int highestLine) { setFont(FontForHeight(font(), highestLine)); }
};

}  // namespace quorvantis
