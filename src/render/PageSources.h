// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

class FrameSetExam;

/// Tells the page store which files are attached to the exam and to its counted questions, and by which texts
/// the pages that are written now name them. In those texts a path may have lost its beginning, may hold
/// quotes, and begins at the wrong place where the application folder has a "~" in its path.
void AddPageSources(const FrameSetExam& exam);

}  // namespace quorvantis
