// SPDX-License-Identifier: MIT
#include "desktop/dialogs/DialogStyle.h"

#include "desktop/controls/ControlPainting.h"

#include <QApplication>
#include <QStyleOption>

namespace quorvantis {

namespace {

bool IsDarkGround(const QPalette& palette) {
  constexpr int kHalf = 128;
  return palette.color(QPalette::Base).lightness() < kHalf;
}

}  // namespace

void DialogStyle::polish(QPalette& palette) {
  constexpr float kFaded = 0.5F;
  QProxyStyle::polish(palette);
  if (!IsDarkGround(palette)) return;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    QColor hint = palette.color(group, QPalette::Text);
    hint.setAlphaF(kFaded);
    palette.setColor(group, QPalette::PlaceholderText, hint);
  }
}

int DialogStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons && QApplication::isRightToLeft()) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

void DialogStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  constexpr qreal kBoxRadius = 2;
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool isRound = element == PE_IndicatorRadioButton;
  const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
  const bool isField = element == PE_FrameLineEdit && !option->state.testFlag(State_HasFocus);
  if ((isRound || isBox || isField) && IsDarkGround(option->palette))
    PaintEdge(*painter, option->rect, option->palette, isRound ? option->rect.width() / 2.0 : kBoxRadius);
}

}  // namespace quorvantis
