// SPDX-License-Identifier: MIT
#include "desktop/main/WindowSize.h"

#include "desktop/layout/SizeLimits.h"

#include <QScreen>

namespace quorvantis {
namespace {

/// Frames are only known when the desktop has made them, which is too late.
constexpr int kTitleBar = 40;

PixelSize ToPixels(QSize size) {
  return {size.width(), size.height()};
}

QSize FromPixels(PixelSize size) {
  return {size.width, size.height};
}

SizeLimits LimitsOn(const QScreen& screen) {
  return LimitsOn(ToPixels(screen.size()), ToPixels(screen.availableSize() - QSize(0, kTitleBar)));
}

}  // namespace

void LimitSize(QWidget& window) {
  const SizeLimits limits = LimitsOn(*window.screen());
  window.setMinimumSize(FromPixels(limits.smallest));
  window.setMaximumSize(FromPixels(limits.largest));
}

void SetFirstSize(QWidget& window) {
  LimitSize(window);
  window.resize(FromPixels(LimitsOn(*window.screen()).atStart));
}

}  // namespace quorvantis
