// SPDX-License-Identifier: MIT
#include "desktop/controls/AttachmentListBox.h"

#include "desktop/controls/ControlPainting.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace quorvantis {

AttachmentListBox::AttachmentListBox(QString missing, QWidget* parent)
    : QListWidget(parent), missing_(std::move(missing)) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(2);
  setUniformItemSizes(true);
  setIconSize(QSize(fontMetrics().ascent(), fontMetrics().ascent()));
}

void AttachmentListBox::Show(const ShownAttachments& attachments) {
  const QSignalBlocker silent(this);
  if (shown_.names != attachments.names || shown_.missing != attachments.missing) {
    shown_ = attachments;
    clear();
    for (std::size_t i = 0; i < shown_.names.size(); ++i)
      ShowEntry(ToQString(shown_.names[i]), shown_.missing[i]);
  }
  if (Selected() != attachments.selected) {
    setCurrentRow(attachments.selected ? static_cast<int>(*attachments.selected) : -1);
  }
  setVisible(attachments.visible);
}

void AttachmentListBox::ShowEntry(const QString& name, bool isMissing) {
  auto* entry = new QListWidgetItem(name, this);
  entry->setToolTip(PlainTip(isMissing ? missing_.arg(name) : name));
  if (isMissing) entry->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this));
}

std::optional<std::size_t> AttachmentListBox::Selected() const {
  const auto rows = selectionModel()->selectedRows();
  if (rows.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(rows.front().row());
}

bool AttachmentListBox::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QListWidget::event(event);
  QPainter painter(this);  // for the frame; the entries are on the viewport
  PaintFieldEdge(painter, *this);
  return true;
}

void AttachmentListBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) emit DeletePressed();
  QListWidget::keyPressEvent(event);
}

void AttachmentListBox::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (byTab && !Selected() && count() > 0)
    setCurrentRow(std::max(currentRow(), 0), QItemSelectionModel::Select);
}

void AttachmentListBox::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard && currentItem() != nullptr;
  emit MenuRequested(byKey ? viewport()->mapToGlobal(visualItemRect(currentItem()).center())
                           : event->globalPos());
}

}  // namespace quorvantis
