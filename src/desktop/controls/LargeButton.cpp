// SPDX-License-Identifier: MIT
#include "desktop/controls/LargeButton.h"

#include "desktop/controls/ControlPainting.h"
#include "desktop/controls/FittedCaption.h"

#include <QPainter>
#include <QStyle>

namespace quorvantis {
namespace {

constexpr QSize kPicture(24, 24);
constexpr int kMargin = 5;  // to the left of the picture, between it and the caption, and to the right

}  // namespace

LargeButton::LargeButton(const QString& caption, const QIcon& picture, QWidget* parent)
    : QAbstractButton(parent) {
  setText(caption);
  setIcon(picture);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

QRect LargeButton::VisiblePlace() const {
  return rect() & parentWidget()->rect().translated(-pos());
}

void LargeButton::PaintSurface(QPainter& painter, const QRect& place) const {
  if (isDown()) {
    PaintTint(painter, place, palette(), kPressedTint);
  } else if (isEnabled() && underMouse()) {
    PaintTint(painter, place, palette(), kHoverTint);
  }
  if (hasFocus()) PaintFocusFrame(painter, place, palette());
}

void LargeButton::PaintCaption(QPainter& painter, const QRect& place) const {
  const FittedCaption caption = FitCaption(text(), font(), place.size());
  painter.setFont(caption.font);
  painter.setPen(palette().color(QPalette::WindowText));
  const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
  painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextWordWrap, caption.text);
}

void LargeButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect place = VisiblePlace();
  PaintSurface(painter, place);
  if (isDown()) painter.translate(0, 1);
  const QRect picture(place.left() + kMargin, place.center().y() - kPicture.height() / 2 + 1,
                      kPicture.width(), kPicture.height());
  icon().paint(&painter, QStyle::visualRect(layoutDirection(), place, picture), Qt::AlignCenter,
               isEnabled() ? QIcon::Normal : QIcon::Disabled);
  const QRect caption = place.adjusted(2 * kMargin + kPicture.width(), 2, -kMargin, -2);
  PaintCaption(painter, QStyle::visualRect(layoutDirection(), place, caption));
}

}  // namespace quorvantis
