// SPDX-License-Identifier: MIT
#include "desktop/controls/FieldKeys.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"

#include <QApplication>
#include <QToolTip>

namespace quorvantis {

bool IsHistoryKey(const QKeyEvent& event) {
  const bool isY = event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
  const bool isZ = event.key() == Qt::Key_Z &&
                   (event.modifiers() & ~Qt::ShiftModifier) == Qt::KeyboardModifiers(Qt::ControlModifier);
  return isY || isZ;
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
