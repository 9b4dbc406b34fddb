// SPDX-License-Identifier: MIT
#include "desktop/controls/SmallButton.h"

#include "desktop/controls/ControlPainting.h"

#include <QPainter>

namespace quorvantis {
namespace {

constexpr QSize kBitmap(73, 28);

}  // namespace

SmallButton::States::States(const Pictures& pictures, const SmallButtonBitmaps& bitmaps)
    : up(pictures.Picture(bitmaps.up)),
      pressed(pictures.Picture(bitmaps.pressed)),
      focused(bitmaps.focused != nullptr ? pictures.Picture(bitmaps.focused) : QIcon()),
      disabled(pictures.Picture(bitmaps.disabled)) {}

SmallButton::SmallButton(const Pictures& pictures, const SmallButtonBitmaps& bitmaps,
                         const SmallButtonBitmaps& mirrored, QWidget* parent)
    : QAbstractButton(parent), states_(pictures, bitmaps), mirrored_(pictures, mirrored) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

const QIcon& SmallButton::Picture(const States& states) const {
  if (!isEnabled()) return states.disabled;
  if (isDown()) return states.pressed;
  return hasFocus() && !states.focused.isNull() ? states.focused : states.up;
}

void SmallButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const States& states = isRightToLeft() ? mirrored_ : states_;
  const QPoint corner((width() - kBitmap.width()) / 2, (height() - kBitmap.height()) / 2);
  Picture(states).paint(&painter, QRect(corner, kBitmap));
  if (isEnabled() && underMouse() && !isDown()) PaintTint(painter, rect(), palette(), kHoverTint);
  if (hasFocus() && states.focused.isNull()) PaintFocusFrame(painter, rect(), palette());
}

}  // namespace quorvantis
