// SPDX-License-Identifier: MIT
// What windows beside the main one have in common. Places and sizes are in pixels.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QEvent;
class QWidget;

namespace quorvantis {

/// Where a window of that size covers little of `main`: beside it where there is room, else at the bottom of
/// its screen.
QPoint PlaceBeside(const QWidget& main, QSize size);

/// Brings `window` to where it was, unless no screen shows that any more or `kept` is empty. Returns whether
/// it did.
bool ReturnToPlace(QWidget& window, const QRect& kept);

/// Moves and shrinks `window`, which has the frame of `main`, until its buttons are on the screen, too.
void FitOnScreen(QWidget& window, const QWidget& main);

/// Brings `window` to `kept`, or beside `main` if that is empty or nowhere to be seen, wholly on the screen.
void PlaceCompanion(QWidget& window, const QWidget& main, const QRect& kept);

/// The shortcuts of the main window work in a companion, too: saving, undoing, finding. But Page Up and Page
/// Down belong to the companion's list, and Alt with a letter would press buttons that are not in view.
/// Returns whether `event` is such a decision, which is then made; the companion ends with it.
bool DecideShortcut(QEvent& event);

}  // namespace quorvantis
