// SPDX-License-Identifier: MIT
#include "desktop/controls/MultiLineField.h"

#include "desktop/controls/ControlPainting.h"
#include "desktop/controls/DroppedFiles.h"
#include "desktop/controls/FieldKeys.h"
#include "desktop/controls/QtText.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextDocument>

#include <algorithm>
#include <memory>

namespace quorvantis {
namespace {

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// The text that a key press would insert; empty for other keys.
QString TextOf(const QKeyEvent& event) {
  if (IsEnter(event)) return QString(QChar::LineFeed);
  const QString text = event.text();
  const bool command =
      event.modifiers().testFlag(Qt::ControlModifier) && !event.modifiers().testFlag(Qt::AltModifier);
  return command || text.isEmpty() || text.front().category() == QChar::Other_Control ? QString() : text;
}

/// Line ends in the form of a field's document.
QString AsShown(QString text) {
  text.replace("\r\n", QString(QChar::ParagraphSeparator));
  text.replace('\r', QChar::ParagraphSeparator);
  return text.replace('\n', QChar::ParagraphSeparator);
}

}  // namespace

MultiLineField::MultiLineField(QuestionEditor& editor, const StringTable& strings, FormField field,
                               QWidget* parent)
    : QPlainTextEdit(parent), ExamField(editor, strings, field, FieldLines::Many) {
  setFont(QApplication::font());  // lines of any height fit here, unlike in the window
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(2);
  setTabChangesFocus(true);
  setUndoRedoEnabled(false);
  connect(document(), &QTextDocument::contentsChanged, this, &MultiLineField::TakeContents);
  connect(this, &MultiLineField::Overran, this, &MultiLineField::Restore, Qt::QueuedConnection);
}

/// Called before the window's shortcuts: what is accepted here does not trigger them.
bool MultiLineField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && ScrollsWith(static_cast<QKeyEvent&>(*event))) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::ShortcutOverride && IsHistoryKey(static_cast<QKeyEvent&>(*event))) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::Paint) {  // for the frame; the text is on the viewport
    QPainter painter(this);
    PaintFieldEdge(painter, *this);
    return true;
  }
  return QPlainTextEdit::event(event);
}

bool MultiLineField::ScrollsWith(const QKeyEvent& event) const {
  const bool isPageKey = event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
  const bool overflows = verticalScrollBar()->maximum() > verticalScrollBar()->minimum();
  const bool isAlone = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return isPageKey && overflows && isAlone;
}

void MultiLineField::Tell(const std::u16string& message) {
  TellAtCursor(this, cursorRect(), message);
}

void MultiLineField::keyPressEvent(QKeyEvent* event) {
  const QString text = TextOf(*event);
  if (!text.isEmpty() && RefusesInsertion(text)) return;
  if (IsHistoryKey(*event)) {
    event->ignore();
    return;
  }
  if (IsEnter(*event) && event->modifiers().testFlag(Qt::ShiftModifier)) {
    // Qt would insert a line separator instead of a line end.
    QKeyEvent enter(QEvent::KeyPress, event->key(), Qt::NoModifier, event->text());
    QPlainTextEdit::keyPressEvent(&enter);
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void MultiLineField::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu(event->pos());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  RemoveFieldHistory(*menu);
  menu->popup(event->globalPos());
}

void MultiLineField::inputMethodEvent(QInputMethodEvent* event) {
  const QString& text = event->commitString();
  if (!text.isEmpty() && RefusesInsertion(text, event->replacementStart(), event->replacementLength())) {
    QInputMethodEvent withoutText(event->preeditString(), event->attributes());
    QPlainTextEdit::inputMethodEvent(&withoutText);
    return;
  }
  QPlainTextEdit::inputMethodEvent(event);
}

void MultiLineField::dropEvent(QDropEvent* event) {
  refused_ = false;
  QPlainTextEdit::dropEvent(event);
  if (!refused_) return;
  event->setDropAction(Qt::IgnoreAction);  // else the text would vanish where it was dragged from
  event->ignore();
}

bool MultiLineField::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText() && !HasLocalFiles(*source);
}

void MultiLineField::insertFromMimeData(const QMimeData* source) {
  if (!RefusesInsertion(source->text())) QPlainTextEdit::insertFromMimeData(source);
}

/// Qt's own copying turns no-break spaces into blanks.
QMimeData* MultiLineField::createMimeDataFromSelection() const {
  auto copy = std::make_unique<QMimeData>();
  copy->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, '\n'));
  return copy.release();
}

void MultiLineField::ShowAnew(const std::u16string& shown) {
  setPlainText(ToQString(shown));
}

void MultiLineField::ShowChange(const TextChange& change, const std::u16string& shown) {
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(change.start));
  cursor.setPosition(static_cast<int>(change.start + change.removed), QTextCursor::KeepAnchor);
  cursor.insertText(ToQString(std::u16string_view(shown).substr(change.start, change.added)));
}

void MultiLineField::SelectShown(int start, int end) {
  QTextCursor cursor(document());
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

/// Called before the document changes: afterwards there is no way back.
bool MultiLineField::RefusesInsertion(const QString& inserted, int offset, int replaced) {
  const QTextCursor cursor = textCursor();
  const int start = cursor.selectionStart();
  QString content = document()->toRawText();
  content.remove(start, cursor.selectionEnd() - start);
  content.replace(std::max(start + offset, 0), replaced, AsShown(inserted));
  refused_ = Refuses(FromQString(content));
  return refused_;
}

/// Called however a change has come about. If one is refused only here, a Qt menu has made it; the
/// document is in the middle of it and must not be touched until it is done.
void MultiLineField::TakeContents() {
  const QString content = document()->toRawText();
  AlignText(content);
  if (Edit(FromQString(content), textCursor().position())) return;
  emit Overran();
}

/// A plain-text field aligns all lines to the left, even right-to-left ones.
void MultiLineField::AlignText(const QString& content) {
  const Qt::Alignment alignment = content.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  QTextOption option = document()->defaultTextOption();
  if (option.alignment() == alignment) return;
  option.setAlignment(alignment);
  document()->setDefaultTextOption(option);
}

void MultiLineField::Restore() {
  if (FromQString(document()->toRawText()) == Shown()) return;
  const int position = textCursor().position();
  ShowAnew(Shown());
  QTextCursor cursor = textCursor();
  cursor.setPosition(std::min(position, document()->characterCount() - 1));
  setTextCursor(cursor);
}

}  // namespace quorvantis
