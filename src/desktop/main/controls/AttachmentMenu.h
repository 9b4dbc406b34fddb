// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "model/document/ExamServices.h"

#include <QMenu>

#include <functional>
#include <optional>

namespace quorvantis {

/// Creates the context menu of a list of attached files: Open, Save a copy and Remove for the selected entry,
/// if there is one. The menu deletes itself when it closes. `services` must outlive it.
QMenu* MakeAttachmentMenu(const std::optional<AttachedFile>& selected, const std::function<void()>& remove,
                          const ExamServices& services, QWidget* parent);

/// Adds the switch for the oral flag. The oral toggle is sometimes hidden; this switch can always be reached.
void AddOralSwitch(QMenu& menu, AttachmentEditor& attachments);

}  // namespace quorvantis
