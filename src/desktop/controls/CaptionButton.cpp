// SPDX-License-Identifier: MIT
#include "desktop/controls/CaptionButton.h"

#include "desktop/controls/ControlPainting.h"
#include "desktop/controls/FittedCaption.h"

namespace quorvantis {
namespace {

constexpr QSize kMargins(6, 3);

void PaintPlate(QPainter& painter, const QAbstractButton& button) {
  const QPalette& colours = button.palette();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours.color(button.isChecked() ? QPalette::Highlight : QPalette::Button));
  painter.drawRoundedRect(button.rect(), kCornerRadius, kCornerRadius);
  if (button.isChecked()) return;
  PaintEdge(painter, button.rect(), colours);
  if (button.isDown()) {
    PaintTint(painter, button.rect(), colours, kPressedTint);
  } else if (button.underMouse()) {
    PaintTint(painter, button.rect(), colours, kHoverTint);
  }
}

/// On a plate in the colour of the focus frame, a line in the colour of the caption shows the focus.
void PaintFocus(QPainter& painter, const QAbstractButton& button) {
  PaintFocusFrame(painter, button.rect(), button.palette());
  if (!button.isChecked()) return;
  painter.setPen(QPen(button.palette().color(QPalette::HighlightedText), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(button.rect()).adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
}

}  // namespace

void PaintCaptionButton(QAbstractButton& button) {
  QPainter painter(&button);
  PaintPlate(painter, button);
  if (button.hasFocus()) PaintFocus(painter, button);
  const QRect room =
      button.rect().adjusted(kMargins.width(), kMargins.height(), -kMargins.width(), -kMargins.height());
  const FittedCaption caption = FitCaption(button.text(), button.font(), room.size());
  painter.setFont(caption.font);
  painter.setPen(
      button.palette().color(button.isChecked() ? QPalette::HighlightedText : QPalette::ButtonText));
  painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, caption.text);
}

QSize CaptionButton::SizeFor(const QString& caption) const {
  return fontMetrics().size(Qt::TextSingleLine, caption) + 2 * kMargins + QSize(4, 2);
}

ChoiceButton::ChoiceButton(const QString& caption, QWidget* parent) : QRadioButton(caption, parent) {
  setAutoExclusive(false);
  setAttribute(Qt::WA_Hover);
}

}  // namespace quorvantis
