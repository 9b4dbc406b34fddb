// SPDX-License-Identifier: MIT
// Common behaviour of text fields of one and of several lines.
#pragma once

#include "desktop/controls/Controls.h"

#include <QKeyEvent>
#include <QMenu>
#include <QWidget>

#include <string_view>

namespace quorvantis {

/// The keys of Undo and Redo, in every window that has them.
Keys UndoKeys();
Keys RedoKeys();

/// A key of Undo or Redo, which are those of the menu (WindowMenus::Undo, Redo). The fields leave them to the
/// window, whose history has the typing in all fields.
bool IsHistoryKey(const QKeyEvent& event);

/// Takes Undo and Redo of the field itself out of its own context menu, where they come first.
void RemoveFieldHistory(QMenu& menu);

/// Beeps and shows `message` for a while at `cursor`, a place in `field`, without interrupting typing.
void TellAtCursor(QWidget* field, const QRect& cursor, std::u16string_view message);

}  // namespace quorvantis
