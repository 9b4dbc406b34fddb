// SPDX-License-Identifier: MIT
#include "desktop/dialogs/RangeColours.h"

namespace quorvantis {
namespace {

constexpr int kHalf = 128;  // of the largest value of a channel

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kHalf;
}

}  // namespace

QColor RangeColour(int range, const QPalette& palette) {
  if (range == 0) return palette.color(QPalette::Disabled, QPalette::Midlight);
  constexpr int kFirstHue = 212;
  constexpr int kGoldenAngle = 137;  // degrees; spreads any number of hues
  const int hue = (kFirstHue + (range - 1) * kGoldenAngle) % 360;
  return IsDark(palette) ? QColor::fromHsl(hue, 90, 92) : QColor::fromHsl(hue, 130, 200);
}

QColor TextColourOn(const QColor& background) {
  return qGray(background.rgb()) < kHalf ? QColor(Qt::white) : QColor(0x20, 0x20, 0x20);
}

}  // namespace quorvantis
