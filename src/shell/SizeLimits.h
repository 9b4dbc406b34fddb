// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Layout.h"

namespace quorvantis {

/// Sizes of the main window's client area.
struct SizeLimits {
  PixelSize smallest;
  PixelSize largest;
  PixelSize atStart;
};

/// The limits on a screen of which `room` is left for the client area of a window, without panels of the
/// desktop and the frame of the window. On a screen without room for the smallest size the window may shrink
/// to what there is: what lies beyond its edges is still reached with the keyboard, whereas what lies beyond
/// the screen, perhaps its title bar among it, would be lost.
SizeLimits LimitsOn(PixelSize screen, PixelSize room);

}  // namespace quorvantis
