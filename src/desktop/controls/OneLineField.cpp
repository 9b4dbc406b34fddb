// SPDX-License-Identifier: MIT
#include "desktop/controls/OneLineField.h"

#include "desktop/controls/ControlPainting.h"
#include "desktop/controls/DroppedFiles.h"
#include "desktop/controls/FieldKeys.h"
#include "desktop/controls/QtText.h"

#include <QDropEvent>
#include <QValidator>

#include <algorithm>

namespace quorvantis {

/// Qt shows every new content to the validator, and reverts an invalid change completely, including history
/// and cursor: just what a refused change needs.
class OneLineField::Gate : public QValidator {
 public:
  explicit Gate(OneLineField& field) : QValidator(&field), field_(field) {}
  State validate(QString& content, int& cursor) const override {
    return field_.Takes(content, cursor) ? Acceptable : Invalid;
  }

 private:
  OneLineField& field_;
};

OneLineField::OneLineField(QuestionEditor& editor, const StringTable& strings, FormField field,
                           QWidget* parent)
    : QLineEdit(parent), ExamField(editor, strings, field, FieldLines::One) {
  setFrame(false);  // a style's frame would leave too little room in a field of 20 pixels
  setTextMargins(3, 0, 3, 0);
  setValidator(new Gate(*this));
}

void OneLineField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  PaintFieldEdge(painter, *this);
}

bool OneLineField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsHistoryKey(static_cast<QKeyEvent&>(*event))) {
    event->ignore();
    return true;
  }
  return QLineEdit::event(event);
}

void OneLineField::keyPressEvent(QKeyEvent* event) {
  if (IsHistoryKey(*event)) {
    event->ignore();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void OneLineField::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  RemoveFieldHistory(*menu);
  menu->popup(event->globalPos());
}

void OneLineField::Tell(const std::u16string& message) {
  TellAtCursor(this, cursorRect(), message);
}

void OneLineField::dragEnterEvent(QDragEnterEvent* event) {
  if (!HasLocalFiles(*event->mimeData())) QLineEdit::dragEnterEvent(event);
}

void OneLineField::dropEvent(QDropEvent* event) {
  refused_ = false;
  QLineEdit::dropEvent(event);
  if (!refused_) return;
  event->setDropAction(Qt::IgnoreAction);  // else the text would vanish where it was dragged from
  event->ignore();
}

void OneLineField::ShowAnew(const std::u16string& shown) {
  setText(ToQString(shown));
  setCursorPosition(0);
}

void OneLineField::ShowChange(const TextChange& change, const std::u16string& shown) {
  setSelection(static_cast<int>(change.start), static_cast<int>(change.removed));
  insert(ToQString(std::u16string_view(shown).substr(change.start, change.added)));
}

void OneLineField::SelectShown(int start, int end) {
  setSelection(start, end - start);
}

bool OneLineField::Takes(const QString& content, int cursor) {
  refused_ = !Edit(FromQString(content), cursor);
  return !refused_;
}

}  // namespace quorvantis
