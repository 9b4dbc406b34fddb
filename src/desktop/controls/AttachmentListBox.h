// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"

#include <QListWidget>

#include <optional>

namespace quorvantis {

/// A list of attached files, shown only while it has entries. Tabbing into it selects an entry, so that it
/// can be used from the keyboard.
class AttachmentListBox : public QListWidget {
  Q_OBJECT

 public:
  /// `missing` is the tooltip of an entry without a file, with "%1" for its name.
  AttachmentListBox(QString missing, QWidget* parent);

  /// Shows the entries, the selection and the list itself as the editor has them.
  void Show(const ShownAttachments& attachments);

  /// Index of the selected entry.
  std::optional<std::size_t> Selected() const;

 signals:
  /// The Delete key was pressed.
  void DeletePressed();

  /// The context menu was requested, at this place on the screen.
  void MenuRequested(const QPoint& position);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void ShowEntry(const QString& name, bool isMissing);

  QString missing_;
  ShownAttachments shown_;
};

}  // namespace quorvantis
