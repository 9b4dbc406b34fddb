// SPDX-License-Identifier: MIT
#include "desktop/controls/FieldKeys.h"

#include "desktop/controls/QtText.h"

#include <QApplication>
#include <QToolTip>

namespace quorvantis {

Keys UndoKeys() {
  return {Qt::CTRL | Qt::Key_Z};
}

Keys RedoKeys() {
  return {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y};
}

bool IsHistoryKey(const QKeyEvent& event) {
  const QKeySequence key(event.keyCombination());
  return UndoKeys().contains(key) || RedoKeys().contains(key);
}

void RemoveFieldHistory(QMenu& menu) {
  constexpr int kUndoRedoAndSeparator = 3;
  for (QAction* action : menu.actions().first(kUndoRedoAndSeparator)) menu.removeAction(action);
}

void TellAtCursor(QWidget* field, const QRect& cursor, std::u16string_view message) {
  constexpr int kMilliseconds = 4000;
  QApplication::beep();
  const QPoint position = field->mapToGlobal(cursor.bottomLeft());
  QToolTip::showText(position, PlainTip(ToQString(message)), field, {}, kMilliseconds);
}

}  // namespace quorvantis
