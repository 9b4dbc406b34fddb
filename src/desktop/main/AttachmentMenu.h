// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "model/document/ExamServices.h"

#include <QMenu>

#include <functional>
#include <optional>

namespace quorvantis {

/// Makes the context menu of a list of attached files: Open, Save a copy and Remove for the selected entry,
/// if there is one. It deletes itself when it has closed. `services` must outlive it.
QMenu* MakeAttachmentMenu(const std::optional<AttachedFile>& selected, const std::function<void()>& remove,
                          const ExamServices& services, QWidget* parent);

/// Adds the switch for the oral flag. The oral toggle shows only sometimes, so this is where it is always
/// found.
void AddOralSwitch(QMenu& menu, AttachmentEditor& attachments);

}  // namespace quorvantis
