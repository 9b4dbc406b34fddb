// SPDX-License-Identifier: MIT
#include "desktop/studio/PaperView.h"

#include "desktop/controls/QtText.h"
#include "desktop/studio/RoleLook.h"
#include "import/labels/LineText.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kMargin = 10;   // pixels around the text, with room for the bar
constexpr int kBarWidth = 4;  // pixels; beside the chosen question

std::optional<PaperRole> RoleOfKey(const QKeyEvent& event) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (!isPlain || event.key() < Qt::Key_1 || event.key() > Qt::Key_8) return std::nullopt;
  return static_cast<PaperRole>(event.key() - Qt::Key_0);
}

/// Whether most letters of a text are of a script that is written from right to left.
bool IsMostlyRightToLeft(const QString& text) {
  qsizetype balance = 0;
  for (const QChar unit : text) {
    const QChar::Direction direction = unit.direction();
    if (direction == QChar::DirR || direction == QChar::DirAL) ++balance;
    if (direction == QChar::DirL) --balance;
  }
  return balance > 0;
}

bool TakesBack(const QKeyEvent& event) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return isPlain && (event.key() == Qt::Key_0 || event.key() == Qt::Key_Delete);
}

}  // namespace

PaperView::PaperView(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  document()->setDocumentMargin(kMargin);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &PaperView::ColourVisible);
}

void PaperView::ShowPaper(std::shared_ptr<const Paper> paper, bool hasFormulas) {
  study_ = nullptr;
  chosen_.reset();
  paper_ = std::move(paper);
  shown_ = ShownPaper(*paper_, hasFormulas);
  const QString text = ToQString(shown_.Text());
  QTextOption option = document()->defaultTextOption();
  option.setAlignment(IsMostlyRightToLeft(text) ? Qt::AlignRight : Qt::AlignLeft);
  document()->setDefaultTextOption(option);
  setPlainText(text);
}

void PaperView::ShowStudy(const PaperStudy& study) {
  study_ = &study;
  lookup_ = RoleLookup(study.Roles());
  ColourAnew();
}

void PaperView::ShowChosen(std::optional<TextSpan> part) {
  chosen_ = part;
  viewport()->update();
}

void PaperView::BringIntoView(std::size_t place) {
  const QTextBlock block = document()->findBlock(static_cast<int>(shown_.ToShown(place)));
  const int top = firstVisibleBlock().blockNumber();
  const int bottom = cursorForPosition(viewport()->rect().bottomLeft()).blockNumber();
  if (block.blockNumber() < top || block.blockNumber() >= bottom) ScrollTo(place);
}

void PaperView::ScrollTo(std::size_t place) {
  const QTextBlock block = document()->findBlock(static_cast<int>(shown_.ToShown(place)));
  verticalScrollBar()->setValue(block.firstLineNumber());
}

std::size_t PaperView::TopPlace() const {
  return shown_.ToSource(static_cast<std::size_t>(firstVisibleBlock().position()));
}

void PaperView::Select(TextSpan part) {
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(shown_.ToShown(part.begin)));
  cursor.setPosition(static_cast<int>(shown_.ToShown(part.end)), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  BringIntoView(part.begin);
}

TextSpan PaperView::Selected() const {
  if (!paper_) return {};
  const QTextCursor cursor = textCursor();
  const TextSpan span{shown_.ToSource(static_cast<std::size_t>(cursor.selectionStart())),
                      shown_.ToSource(static_cast<std::size_t>(cursor.selectionEnd()))};
  return Trimmed(paper_->source.characters, span);
}

std::size_t PaperView::CursorPlace() const {
  return shown_.ToSource(static_cast<std::size_t>(textCursor().position()));
}

void PaperView::keyPressEvent(QKeyEvent* event) {
  if (const auto role = RoleOfKey(*event)) {
    emit RoleKeyPressed(*role);
  } else if (TakesBack(*event)) {
    emit TakeBackPressed();
  } else {
    QPlainTextEdit::keyPressEvent(event);
    if (!textCursor().hasSelection()) emit PlaceChosen(CursorPlace());
  }
}

void PaperView::mouseReleaseEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseReleaseEvent(event);
  if (!textCursor().hasSelection()) emit PlaceChosen(CursorPlace());
}

/// A bar beside the chosen question.
void PaperView::paintEvent(QPaintEvent* event) {
  QPlainTextEdit::paintEvent(event);
  if (!chosen_) return;
  QPainter painter(viewport());
  const auto begin = static_cast<int>(shown_.ToShown(chosen_->begin));
  const auto end = static_cast<int>(shown_.ToShown(chosen_->end));
  const int x = isRightToLeft() ? viewport()->width() - kBarWidth : 0;
  for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
    const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    if (place.top() > viewport()->height()) break;
    if (block.position() >= end || block.position() + block.length() <= begin) continue;
    painter.fillRect(QRectF(x, place.top(), kBarWidth, place.height()), palette().color(QPalette::Highlight));
  }
}

void PaperView::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  ColourVisible();
}

void PaperView::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) ColourAnew();
}

void PaperView::ColourAnew() {
  ++colouring_;
  ColourVisible();
}

void PaperView::ColourVisible() {
  if (study_ == nullptr || isColouring_) return;
  const QScopedValueRollback colouring(isColouring_, true);
  qreal top = contentOffset().y();
  for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
    if (block.userState() != colouring_) Colour(block);
    top += blockBoundingRect(block).height();
    if (top > viewport()->height()) break;
  }
}

/// Gives each run of units with the same look a format.
void PaperView::Colour(const QTextBlock& block) {
  const auto begin = static_cast<std::size_t>(block.position());
  const auto length = static_cast<std::size_t>(block.length()) - 1;
  QList<QTextLayout::FormatRange> ranges;
  std::optional<Look> last;
  for (std::size_t at = 0; at < length; ++at) {
    const Look look = LookAt(shown_.ToSource(begin + at));
    if (look != last) ranges.push_back({static_cast<int>(at), 0, FormatOf(look)});
    ++ranges.back().length;
    last = look;
  }
  block.layout()->setFormats(ranges);
  QTextBlock(block).setUserState(colouring_);
  document()->markContentsDirty(block.position(), block.length());
}

PaperView::Look PaperView::LookAt(std::size_t place) const {
  const PaperText& source = paper_->source;
  if (place >= source.Size()) return {};
  Look look{lookup_.RoleAt(place), source.emphasis[place], IsMarked(place)};
  look.isPlain = look.role == PaperRole::None && IsBlank(source.characters[place]);
  return look;
}

QTextCharFormat PaperView::FormatOf(const Look& look) const {
  QTextCharFormat format = look.isPlain ? QTextCharFormat() : LookOf(look.role, palette());
  AddEmphasis(format, look.emphasis, palette());
  if (look.isMarked) AddMarkLook(format, palette());
  return format;
}

bool PaperView::IsMarked(std::size_t place) const {
  const auto& marks = study_->Marks();
  return std::any_of(marks.begin(), marks.end(),
                     [place](const PaperMark& mark) { return mark.span.Contains(place); });
}

}  // namespace quorvantis
