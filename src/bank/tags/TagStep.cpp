// SPDX-License-Identifier: MIT
#include "bank/tags/TagStep.h"

#include <utility>

namespace quorvantis {

TagStepResult MakeTagStep(const TagStep& step, Files& files) {
  TagStepResult made;
  for (const FolderChange& change : step) {
    FolderChange undo{change.folder, {}};
    TagResult result = TagFile(change.folder, files).Change(change.changes, &undo.changes);
    if (!result.IsDone()) {
      made.failed.push_back({change, std::move(result)});
    } else if (!undo.changes.empty()) {
      made.undo.push_back(std::move(undo));
    }
  }
  return made;
}

std::vector<std::u16string> TagsIn(const TagStep& step) {
  std::vector<std::u16string> tags;
  const auto add = [&tags](const std::vector<std::u16string>& some) {
    for (const std::u16string& tag : some) {
      if (!HasTag(tags, tag)) tags.push_back(tag);
    }
  };
  for (const FolderChange& folder : step) {
    for (const TagChange& change : folder.changes) {
      add(change.add);
      add(change.remove);
    }
  }
  return tags;
}

}  // namespace quorvantis
