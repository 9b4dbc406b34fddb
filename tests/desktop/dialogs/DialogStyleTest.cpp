// SPDX-License-Identifier: MIT
#include "desktop/dialogs/DialogStyle.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvantis::test {
namespace {

QPalette DarkColours() {
  QPalette colours;
  colours.setColor(QPalette::Window, QColor(49, 54, 59));
  colours.setColor(QPalette::Base, QColor(35, 38, 41));
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    colours.setColor(role, QColor(239, 240, 241));
  colours.setColor(QPalette::PlaceholderText, Qt::black);
  return colours;
}

TEST(DialogStyleTest, EmptyBoxesAndHintsCanBeSeenOnADarkDesktop) {
  constexpr int kSize = 20;
  constexpr int kContrast = 40;
  DialogStyle style;
  QPalette colours = DarkColours();
  const int ground = colours.color(QPalette::Base).lightness();
  for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorItemViewItemCheck,
                             QStyle::PE_IndicatorRadioButton}) {
    QImage image(kSize, kSize, QImage::Format_RGB32);
    image.fill(colours.color(QPalette::Base));
    QStyleOptionButton box;
    box.rect = image.rect();
    box.palette = colours;
    box.state = QStyle::State_Enabled | QStyle::State_Off;
    QPainter painter(&image);
    style.drawPrimitive(element, &box, &painter, nullptr);
    int brightest = 0;
    for (int x = 0; x < kSize; ++x)
      brightest = std::max(brightest, image.pixelColor(x, kSize / 2).lightness());
    EXPECT_GT(brightest, ground + kContrast) << element;
  }
  style.polish(colours);
  EXPECT_GT(colours.color(QPalette::PlaceholderText).lightness(), ground + kContrast);
}

}  // namespace
}  // namespace quorvantis::test
