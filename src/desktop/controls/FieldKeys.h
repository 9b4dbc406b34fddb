// SPDX-License-Identifier: MIT
// What text fields of one and of several lines do alike.
#pragma once

#include <QKeyEvent>
#include <QWidget>

#include <string_view>

namespace quorvantis {

/// Ctrl+Y, which Qt knows as the key for Redo on other desktops only.
bool IsOtherRedo(const QKeyEvent& event);

/// Beeps and shows `message` for a while at `cursor`, a place in `field`, without getting in the way of
/// typing.
void TellAtCursor(QWidget* field, const QRect& cursor, std::u16string_view message);

}  // namespace quorvantis
