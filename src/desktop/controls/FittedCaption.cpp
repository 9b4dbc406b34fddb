// SPDX-License-Identifier: MIT
#include "desktop/controls/FittedCaption.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kSmallestFont = 9;  // pixels; below this, letters are illegible

QFont Resized(QFont font, int pixels) {
  font.setPixelSize(pixels);
  return font;
}

bool Fits(const QString& caption, const QFont& font, QSize room) {
  const QRect taken =
      QFontMetrics(font).boundingRect(QRect(QPoint(), room), Qt::AlignCenter | Qt::TextWordWrap, caption);
  return taken.width() <= room.width() && taken.height() <= room.height();
}

}  // namespace

FittedCaption FitCaption(const QString& caption, const QFont& font, QSize room) {
  if (Fits(caption, font, room)) return {font, caption};
  for (int pixels = QFontInfo(font).pixelSize() - 1; pixels >= kSmallestFont; --pixels) {
    const QFont smaller = Resized(font, pixels);
    if (Fits(caption, smaller, room)) return {smaller, caption};
  }
  const QFont smallest = Resized(font, std::min(kSmallestFont, QFontInfo(font).pixelSize()));
  return {smallest, QFontMetrics(smallest).elidedText(caption, Qt::ElideRight, room.width())};
}

QFont FontForHeight(QFont font, int height) {
  int pixels = QFontInfo(font).pixelSize();
  while (QFontMetrics(font).height() > height && pixels > kSmallestFont) font.setPixelSize(--pixels);
  return font;
}

}  // namespace quorvantis
