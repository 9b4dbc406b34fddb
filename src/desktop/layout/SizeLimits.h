// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/layout/Layout.h"

namespace quorvantis {

/// Sizes of the main window's client area.
struct SizeLimits {
  PixelSize smallest;
  PixelSize largest;
  PixelSize atStart;
};

/// The smallest client area that has room for all controls.
inline constexpr PixelSize kSmallestClient{792, 646};

/// The limits on a screen of which `room` is left for the client area of a window, without panels of the
/// desktop and the frame of the window. On a screen without room for the smallest size the window may shrink
/// to what there is and scroll its controls: what lies beyond the screen, perhaps its title bar among it,
/// would be lost.
SizeLimits LimitsOn(PixelSize screen, PixelSize room);

/// How a window shows the area that its controls are placed in.
struct ScrolledView {
  PixelSize area;  ///< at least kSmallestClient
  PixelSize view;  ///< the part of the area that is seen at a time: the client area without the scroll bars
};

/// Of a window with this client area. There are scroll bars, `bar` thick, only where the controls have no
/// room.
ScrolledView ScrollIn(PixelSize client, int bar);

}  // namespace quorvantis
