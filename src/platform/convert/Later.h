// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <functional>

namespace quorvantis {

/// Calls `action` once from the event loop after `delay`, unless `owner` has been destroyed by then.
void Later(QObject& owner, std::chrono::milliseconds delay, std::function<void()> action);

}  // namespace quorvantis
