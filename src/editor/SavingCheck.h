// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorState.h"
#include "examfile/SavingLosses.h"
#include "platform/UserDialogs.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// Tells the user before a save what it would lose: of the exam, which a file cannot hold as it is, and of
/// the file, which another program may have changed or of which only a part was read. Changes nothing.
class SavingCheck {
 public:
  /// `state` must outlive the check.
  explicit SavingCheck(const EditorState& state) : state_(state) {}

  /// The exam is what `file` holds now, as far as it could be read.
  void ExamIsThatOf(const std::filesystem::path& file);
  /// There is no file that the exam came from.
  void Forget() { known_.reset(); }

  /// Asks what to do about the losses of an exam that is to be saved to `file`, and about what that file
  /// loses. With nothing to lose the answer is SaveAnyway.
  LossAnswer Ask(const std::filesystem::path& file, const std::vector<SavingLoss>& losses) const;

 private:
  /// By which a change of a file shows.
  struct FileState {
    std::filesystem::path file;
    std::uintmax_t size;
    std::filesystem::file_time_type written;

    bool operator==(const FileState&) const = default;
  };

  static std::optional<FileState> StateOf(const std::filesystem::path& file);
  std::vector<std::u16string> LossesOfFile(const std::filesystem::path& file) const;

  const EditorState& state_;
  std::optional<FileState> known_;
};

}  // namespace quorvantis
