// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <filesystem>

namespace quorvantis {

/// Writes the two-column page and the pages it shows side by side: questions and attached files. Deliberate:
/// enables media in both renderers for the rest of the run, since a print page has recorders only after such
/// a preview.
void WriteFrameset(FrameSetExam& exam, const std::filesystem::path& page);

}  // namespace quorvantis
