// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <filesystem>

namespace quorvantis {

/// Writes the two-column page, and the pages that it shows beside each other: questions, and attached files.
/// From here on media are enabled in both renderers, for the rest of the run, deliberately: a print page has
/// recorders only after such a preview.
void WriteFrameset(FrameSetExam& exam, const std::filesystem::path& page);

}  // namespace quorvantis
