// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorState.h"
#include "editor/FileState.h"
#include "examfile/SavingLosses.h"
#include "platform/UserDialogs.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// Tells the user before a save what would be lost: from the exam, parts that a file cannot hold; from the
/// file, changes by another program, or the part of it that was not read. Changes nothing.
class SavingCheck {
 public:
  /// `state` must outlive the check.
  explicit SavingCheck(const EditorState& state) : state_(state) {}

  /// The exam is now what `file` holds, as far as it could be read.
  void ExamIsThatOf(const std::filesystem::path& file);
  /// The exam does not come from a file.
  void Forget() { known_.reset(); }

  /// Asks what to do if a save to `file` would lose parts of the exam or of what is in the file. Without
  /// losses the answer is SaveAnyway.
  LossAnswer Ask(const std::filesystem::path& file, const std::vector<SavingLoss>& losses) const;

 private:
  std::vector<std::u16string> LossesOfFile(const std::filesystem::path& file) const;

  const EditorState& state_;
  std::optional<FileState> known_;
};

}  // namespace quorvantis
