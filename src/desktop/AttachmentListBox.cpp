// SPDX-License-Identifier: MIT
#include "desktop/AttachmentListBox.h"

#include "desktop/Controls.h"
#include "desktop/QtText.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace quorvantis {
namespace {

constexpr int kEntrySpacing = 2;

}  // namespace

AttachmentListBox::AttachmentListBox(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setUniformItemSizes(true);
  setSpacing(kEntrySpacing);
}

void AttachmentListBox::Show(const ShownAttachments& attachments) {
  const QSignalBlocker silent(this);
  if (names_ != attachments.names) {
    names_ = attachments.names;
    clear();
    for (const std::u16string& name : names_) {
      auto* entry = new QListWidgetItem(ToQString(name), this);
      entry->setToolTip(PlainTip(ToQString(name)));
    }
  }
  if (Selected() != attachments.selected) {
    setCurrentRow(attachments.selected ? static_cast<int>(*attachments.selected) : -1);
  }
  setVisible(attachments.visible);
}

std::optional<std::size_t> AttachmentListBox::Selected() const {
  const auto rows = selectionModel()->selectedRows();
  if (rows.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(rows.front().row());
}

QSize AttachmentListBox::sizeHint() const {
  return minimumSizeHint();
}

/// Room for two entries.
QSize AttachmentListBox::minimumSizeHint() const {
  return {120, 2 * (fontMetrics().height() + 2 * kEntrySpacing) + 2 * kEntrySpacing + 2 * frameWidth()};
}

void AttachmentListBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) emit DeletePressed();
  QListWidget::keyPressEvent(event);
}

}  // namespace quorvantis
