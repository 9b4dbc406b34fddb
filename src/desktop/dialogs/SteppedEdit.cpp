// SPDX-License-Identifier: MIT
#include "desktop/dialogs/SteppedEdit.h"

#include "desktop/controls/QtText.h"
#include "text/NumberText.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace quorvantis {

void SteppedEdit::keyPressEvent(QKeyEvent* event) {
  const bool up = event->key() == Qt::Key_Up;
  if (!up && event->key() != Qt::Key_Down) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  Step(up ? 1 : -1);
}

void SteppedEdit::wheelEvent(QWheelEvent* event) {
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_ %= QWheelEvent::DefaultDeltasPerStep;
  Step(steps);
  event->accept();
}

void SteppedEdit::Step(int steps) {
  if (steps == 0 || isReadOnly()) return;
  setText(ToQString(FormatInteger(ParseInteger64(FromQString(text())) + steps)));
}

}  // namespace quorvantis
