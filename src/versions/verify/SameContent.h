// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamQuestion.h"

#include <filesystem>

namespace quorvantis {

/// Whether two files have the same bytes. A file that does not exist equals only another such.
bool HaveSameContent(const std::filesystem::path& file, const std::filesystem::path& other);

/// Whether two lists of attached files have the same content, one by one. Empty entries are passed over, as a
/// file passes over them.
bool HaveSameFiles(const AttachmentList& paths, const AttachmentList& others);

}  // namespace quorvantis
