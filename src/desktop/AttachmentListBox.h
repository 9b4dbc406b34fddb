// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"

#include <QListWidget>

#include <optional>

namespace quorvantis {

/// A list of attached files. It is there only while it has entries, and takes no room otherwise.
class AttachmentListBox : public QListWidget {
  Q_OBJECT

 public:
  explicit AttachmentListBox(QWidget* parent);

  /// Shows the entries, the selection and the list itself as the editor has them.
  void Show(const ShownAttachments& attachments);

  /// Index of the selected entry.
  std::optional<std::size_t> Selected() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The Delete key was pressed.
  void DeletePressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::vector<std::u16string> names_;
};

}  // namespace quorvantis
