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

/// The smallest client area with room for all controls.
inline constexpr PixelSize kSmallestClient{792, 646};

/// The limits on a screen with this `room` for a client area, apart from desktop panels and the window frame.
/// On a screen without room for the smallest size the window may shrink to fit and scroll its controls:
/// anything beyond the screen, perhaps the title bar, would be lost.
SizeLimits LimitsOn(PixelSize screen, PixelSize room);

/// How a window shows the area with its controls.
struct ScrolledView {
  PixelSize area;  ///< at least kSmallestClient
  PixelSize view;  ///< the visible part of the area: the client area without the scroll bars
};

/// For a window with this client area. Scroll bars, `bar` thick, appear only if the controls do not fit.
ScrolledView ScrollIn(PixelSize client, int bar);

}  // namespace quorvantis
