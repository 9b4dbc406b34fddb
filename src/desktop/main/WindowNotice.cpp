// SPDX-License-Identifier: MIT
#include "desktop/main/WindowNotice.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/FittedCaption.h"

#include <QAccessible>
#include <QPainter>

namespace quorvantis {
namespace {

constexpr int kIcon = 24;
constexpr int kIconGap = 6;

}  // namespace

WindowNotice::WindowNotice(const char* name, QStyle::StandardPixmap icon, QWidget* parent)
    : QWidget(parent), icon_(icon) {
  NameControl(this, name, {});
  setAutoFillBackground(true);  // two of them may share a place
  hide();
}

void WindowNotice::Tell(const QString& text, const QString& details) {
  if (isVisibleTo(parentWidget()) && accessibleName() == text && accessibleDescription() == details) return;
  setAccessibleName(text);
  setAccessibleDescription(details);
  setToolTip(PlainTip(details));
  show();
  update();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void WindowNotice::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto mirrored = [this](const QRect& place) {
    return QStyle::visualRect(layoutDirection(), rect(), place);
  };
  const QRect icon = mirrored(QRect(0, (height() - kIcon) / 2, kIcon, kIcon));
  style()->standardIcon(icon_, nullptr, this).paint(&painter, icon);
  const QRect place = mirrored(rect().adjusted(kIcon + kIconGap, 0, 0, 0));
  const FittedCaption caption = FitCaption(accessibleName(), font(), place.size());
  painter.setFont(caption.font);
  painter.setPen(palette().color(QPalette::WindowText));
  const Qt::Alignment start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
  painter.drawText(place, static_cast<int>(start | Qt::AlignVCenter) | Qt::TextWordWrap, caption.text);
}

}  // namespace quorvantis
