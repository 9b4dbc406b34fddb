// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace quorvantis {

/// A caption made to fit a place of fixed size: wrapped at blanks, then in a smaller font, finally elided.
struct FittedCaption {
  QFont font;
  QString text;
};

FittedCaption FitCaption(const QString& caption, const QFont& font, QSize room);

/// `font`, or the largest smaller one with lines no higher than `height`.
QFont FontForHeight(QFont font, int height);

}  // namespace quorvantis
