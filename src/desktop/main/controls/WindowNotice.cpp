// SPDX-License-Identifier: MIT
#include "desktop/main/controls/WindowNotice.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/FittedCaption.h"

#include <QAccessible>
#include <QPainter>

#include <utility>

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

void WindowNotice::Offer(const QString& caption, std::function<void()> command) {
  offer_ = new QPushButton(caption, this);
  NameControl(offer_, "noticeOffer", caption);
  connect(offer_, &QPushButton::clicked, this, [command = std::move(command)] { command(); });
}

QRect WindowNotice::TextPlaceInside() const {
  const int offer = offer_ == nullptr ? 0 : offer_->sizeHint().width() + kIconGap;
  return rect().adjusted(kIcon + kIconGap, 0, -offer, 0);
}

void WindowNotice::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (offer_ == nullptr) return;
  const QSize size = offer_->sizeHint().boundedTo(rect().size());
  const QRect place(width() - size.width(), (height() - size.height()) / 2, size.width(), size.height());
  offer_->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void WindowNotice::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto mirrored = [this](const QRect& place) {
    return QStyle::visualRect(layoutDirection(), rect(), place);
  };
  const QRect icon = mirrored(QRect(0, (height() - kIcon) / 2, kIcon, kIcon));
  style()->standardIcon(icon_, nullptr, this).paint(&painter, icon);
  const QRect place = mirrored(TextPlaceInside());
  const FittedCaption caption = FitCaption(accessibleName(), font(), place.size());
  painter.setFont(caption.font);
  painter.setPen(palette().color(QPalette::WindowText));
  const Qt::Alignment start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
  painter.drawText(place, static_cast<int>(start | Qt::AlignVCenter) | Qt::TextWordWrap, caption.text);
}

}  // namespace quorvantis
