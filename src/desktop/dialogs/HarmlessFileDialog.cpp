// SPDX-License-Identifier: MIT
#include "desktop/dialogs/HarmlessFileDialog.h"

#include <QAbstractItemView>
#include <QAction>
#include <QEvent>
#include <QShortcut>

namespace quorvantis {

void MakeHarmless(QFileDialog& dialog) {
  if (dialog.acceptMode() == QFileDialog::AcceptOpen) dialog.setOption(QFileDialog::ReadOnly);
  for (QShortcut* shortcut : dialog.findChildren<QShortcut*>()) {
    if (shortcut->key().matches(QKeySequence(Qt::Key_Delete)) == QKeySequence::ExactMatch)
      shortcut->setEnabled(false);
  }
  // The dialog enables the entry of its menu each time the menu opens.
  if (auto* entry = dialog.findChild<QAction*>("qt_delete_action")) {
    entry->disconnect();
    entry->setVisible(false);
  }
  for (auto* list : dialog.findChildren<QAbstractItemView*>())
    list->setDragDropMode(QAbstractItemView::NoDragDrop);
}

bool HarmlessFileDialogs::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show) return QObject::eventFilter(watched, event);
  if (auto* dialog = qobject_cast<QFileDialog*>(watched)) MakeHarmless(*dialog);
  return QObject::eventFilter(watched, event);
}

}  // namespace quorvantis
