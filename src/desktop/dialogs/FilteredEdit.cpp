// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FilteredEdit.h"

#include "desktop/controls/QtText.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace quorvantis {
namespace {

/// The characters of a key press; none for keys that move or delete. Some systems provide no control
/// characters for shortcuts, so those are derived from the key.
QString TypedBy(const QKeyEvent& event) {
  const bool isLetter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
  if (event.modifiers() == Qt::ControlModifier && isLetter) {
    return QString(QChar(static_cast<char16_t>(event.key() - Qt::Key_A + 1)));
  }
  return event.key() == Qt::Key_Delete ? QString() : event.text();
}

}  // namespace

void FilteredEdit::keyPressEvent(QKeyEvent* event) {
  const QString typed = TypedBy(*event);
  if (Taken(typed) == typed) QLineEdit::keyPressEvent(event);
}

void FilteredEdit::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent filtered(event->preeditString(), event->attributes());
  filtered.setCommitString(Taken(event->commitString()), event->replacementStart(),
                           event->replacementLength());
  QLineEdit::inputMethodEvent(&filtered);
}

QString FilteredEdit::Taken(const QString& typed) const {
  QString taken;
  for (const QChar c : typed) {
    if (takes_(c.unicode(), FromQString(text() + taken))) taken += c;
  }
  return taken;
}

}  // namespace quorvantis
