// SPDX-License-Identifier: MIT
// Finds the recovery copies that editors have left, and puts one back into an editor.
#pragma once

#include "editor/ExamEditor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// A recovery copy that was found, as it is offered to the user.
struct RecoveryCopy {
  std::filesystem::path folder;
  std::int64_t time = 0;           ///< when it was made: seconds since 1970, UTC
  std::filesystem::path fileName;  ///< of the exam, or kUntitled
  std::u16string title;
  int questions = 0;
  bool hasAnything = true;  ///< otherwise there is no title, nothing in a question and no attached file
};

struct FoundRecoveryCopies {
  std::vector<RecoveryCopy> copies;            ///< the newest first
  std::vector<std::filesystem::path> damaged;  ///< folders that no exam can be read from
};

/// Looks for copies in the application folder, which no other editor may use. Removes folders of unfinished
/// copies, and copies with nothing to restore.
FoundRecoveryCopies FindRecoveryCopies(ExamServices& services);

/// Moves a damaged copy where later searches do not find it, and returns its new folder.
std::filesystem::path SetAside(const std::filesystem::path& damaged);

/// Puts a copy into the editor, whose exam is lost. The restored exam is modified, under its own file name,
/// its attached files are work copies again, and the question that was shown is shown. Returns the display
/// names of attached files that are missing from the copy. Nothing when the copy cannot be read; the editor
/// then has an empty exam. The copy itself stays as it is.
std::optional<std::vector<std::u16string>> RestoreExam(const std::filesystem::path& copy, ExamEditor& editor);

}  // namespace quorvantis
