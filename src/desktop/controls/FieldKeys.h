// SPDX-License-Identifier: MIT
// Common behaviour of text fields of one and of several lines.
#pragma once

#include <QKeyEvent>
#include <QWidget>

#include <string_view>

namespace quorvantis {

/// Ctrl+Y, which Qt uses for Redo only on other desktops.
bool IsOtherRedo(const QKeyEvent& event);

/// Beeps and shows `message` for a while at `cursor`, a place in `field`, without interrupting typing.
void TellAtCursor(QWidget* field, const QRect& cursor, std::u16string_view message);

}  // namespace quorvantis
