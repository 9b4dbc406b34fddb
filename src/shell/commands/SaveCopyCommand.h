// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "model/document/ExamServices.h"

namespace quorvantis {

/// Lets the user choose where a copy of an attached file goes, and writes it there. Tells the user if the
/// attached file is missing or the copy cannot be written; an existing file then stays unchanged.
void SaveCopyOf(const AttachedFile& file, const ExamServices& services);

/// True if the work copy of an attached file can be read; otherwise the user has been told.
bool HasWorkCopy(const AttachedFile& file, const ExamServices& services);

}  // namespace quorvantis
