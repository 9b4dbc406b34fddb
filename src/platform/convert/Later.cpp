// SPDX-License-Identifier: MIT
#include "platform/convert/Later.h"

#include <QTimer>

#include <utility>

namespace quorvantis {

void Later(QObject& owner, std::chrono::milliseconds delay, std::function<void()> action) {
  auto* const timer = new QTimer(&owner);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(action)] {
    timer->deleteLater();
    act();
  });
  timer->start(delay);
}

}  // namespace quorvantis
