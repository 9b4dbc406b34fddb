// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

class FrameSetExam;

/// Tells the page store which files are attached to the exam and its counted questions, and by which texts
/// the current pages name them. In these texts a path may lack its beginning, may contain quotes, and starts
/// in the wrong place if the path of the application folder has a "~".
void AddPageSources(const FrameSetExam& exam);

}  // namespace quorvantis
