// SPDX-License-Identifier: MIT
#include "desktop/controls/FieldKeys.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"

#include <QApplication>
#include <QToolTip>

namespace quorvantis {

bool IsOtherRedo(const QKeyEvent& event) {
  return event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
}

void TellAtCursor(QWidget* field, const QRect& cursor, std::u16string_view message) {
  constexpr int kMilliseconds = 4000;
  QApplication::beep();
  const QPoint position = field->mapToGlobal(cursor.bottomLeft());
  QToolTip::showText(position, PlainTip(ToQString(message)), field, {}, kMilliseconds);
}

}  // namespace quorvantis
