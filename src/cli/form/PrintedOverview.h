// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <iosfwd>

namespace quorvantis::cli {

/// Prints the overview of an exam: a line for each question under a line of headings.
void PrintOverview(std::ostream& out, const FrameSetExam& exam);

}  // namespace quorvantis::cli
