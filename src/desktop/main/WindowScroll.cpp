// SPDX-License-Identifier: MIT
#include "desktop/main/WindowScroll.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace quorvantis {
namespace {

QScrollBar* MakeBar(Qt::Orientation orientation, const char* name, QWidget& client) {
  auto* bar = new QScrollBar(orientation, &client);
  bar->setObjectName(name);
  bar->setSingleStep(20);
  bar->hide();
  return bar;
}

void SetBar(QScrollBar& bar, int area, int view) {
  bar.setPageStep(view);
  bar.setRange(0, area - view);
  bar.setVisible(area > view);
  bar.raise();
}

/// Moves a bar just far enough to show a range, or the start of a range that does not fit.
void Reveal(QScrollBar& bar, int from, int to) {
  const int last = std::min(from, to - bar.pageStep());
  bar.setValue(std::clamp(bar.value(), last, from));
  if (to - from > bar.pageStep()) bar.setValue(from);
}

}  // namespace

WindowScroll::WindowScroll(QWidget& client)
    : client_(client),
      horizontal_(MakeBar(Qt::Horizontal, "scrollAcross", client)),
      vertical_(MakeBar(Qt::Vertical, "scrollDown", client)),
      corner_(new QWidget(&client)) {
  corner_->setAutoFillBackground(true);
  corner_->hide();
  for (QScrollBar* bar : {horizontal_.data(), vertical_.data()}) {
    connect(bar, &QScrollBar::valueChanged, this, &WindowScroll::Scrolled);
  }
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* control) { Reveal(control); });
  client.installEventFilter(this);
}

PixelSize WindowScroll::Fit() {
  const int bar = vertical_->sizeHint().width();
  shown_ = ScrollIn({client_.width(), client_.height()}, bar);
  const auto [area, view] = shown_;
  const int left = client_.isRightToLeft() ? client_.width() - view.width : 0;
  const int side = client_.isRightToLeft() ? 0 : view.width;
  horizontal_->setGeometry(left, view.height, view.width, bar);
  vertical_->setGeometry(side, 0, bar, view.height);
  corner_->setGeometry(side, view.height, bar, bar);
  const QSignalBlocker across(*horizontal_), down(*vertical_);  // the caller of Fit places the controls next
  SetBar(*horizontal_, area.width, view.width);
  SetBar(*vertical_, area.height, view.height);
  corner_->setVisible(horizontal_->isVisibleTo(&client_) && vertical_->isVisibleTo(&client_));
  corner_->raise();
  return area;
}

QPoint WindowScroll::Origin() const {
  const auto [area, view] = shown_;
  if (!client_.isRightToLeft()) return {-horizontal_->value(), -vertical_->value()};
  return {client_.width() - area.width + horizontal_->value(), -vertical_->value()};
}

/// The wheel over widgets that do not scroll themselves.
bool WindowScroll::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel) return QObject::eventFilter(watched, event);
  const QPoint turned = static_cast<QWheelEvent*>(event)->angleDelta();
  QScrollBar* bar = std::abs(turned.x()) > std::abs(turned.y()) ? horizontal_ : vertical_;
  if (bar == nullptr || !bar->isVisible()) return false;
  QCoreApplication::sendEvent(bar, event);
  return true;
}

/// Not while a mouse button is down: the control would move away before the button is released.
void WindowScroll::Reveal(const QWidget* control) {
  if (control == nullptr || !horizontal_ || !vertical_ || QApplication::mouseButtons() != Qt::NoButton)
    return;
  if (!client_.isAncestorOf(control)) return;
  const QRect place(control->mapTo(&client_, QPoint()) - Origin(), control->size());
  const bool mirrored = client_.isRightToLeft();
  const int left = mirrored ? shown_.area.width - place.x() - place.width() : place.x();
  quorvantis::Reveal(*horizontal_, left, left + place.width());
  quorvantis::Reveal(*vertical_, place.y(), place.y() + place.height());
}

}  // namespace quorvantis
