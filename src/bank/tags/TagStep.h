// SPDX-License-Identifier: MIT
#pragma once

#include "bank/tags/TagFile.h"

#include <filesystem>
#include <vector>

namespace quorvantis {

/// What is to become of the tags of questions in one folder.
struct FolderChange {
  std::filesystem::path folder;
  std::vector<TagChange> changes;
};

/// What a user does to tags at once; the questions may lie in several folders.
using TagStep = std::vector<FolderChange>;

/// A part of a step that was not made.
struct FailedChange {
  FolderChange change;
  TagResult result;
};

struct TagStepResult {
  TagStep undo;                      ///< takes back what was made; empty if nothing has changed
  std::vector<FailedChange> failed;  ///< folders in which nothing was changed
};

/// Makes the step in each folder in which it can be made. Waits for other programs, at most ten seconds for
/// each folder.
TagStepResult MakeTagStep(const TagStep& step, Files& files);

/// All tags that a step gives or takes, each once, in the order in which they come.
std::vector<std::u16string> TagsIn(const TagStep& step);

}  // namespace quorvantis
