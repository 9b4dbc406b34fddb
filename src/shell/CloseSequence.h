// SPDX-License-Identifier: MIT
#pragma once

#include "model/FrameSetExam.h"

namespace quorvantis {

/// Removes what an editor leaves in its work folders: the unpacked files of the exam that was open, and the
/// folder of attached files with everything in it. Runs when the editor ends, however it ends. Failures are
/// ignored.
void RemoveWorkCopies(FrameSetExam& exam);

}  // namespace quorvantis
