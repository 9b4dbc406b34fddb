// SPDX-License-Identifier: MIT
#pragma once

#include "editor/QuestionEditor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// Tells the user before a save what it would lose: of the exam, which a file cannot hold as it is, and of
/// the file, which another program may have changed or of which only a part was read.
class SavingCheck {
 public:
  /// Both must outlive the check.
  SavingCheck(EditorState& state, QuestionEditor& questions) : state_(state), questions_(questions) {}

  /// The exam is what `file` holds now, as far as it could be read.
  void ExamIsThatOf(const std::filesystem::path& file);
  /// There is no file that the exam came from.
  void Forget() { known_.reset(); }

  /// Stores the form and asks if there is something to ask; false when the user goes back. The document is
  /// changed where the user wants it to be stored whole.
  bool MayWrite(const std::filesystem::path& file);

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

  EditorState& state_;
  QuestionEditor& questions_;
  std::optional<FileState> known_;
};

}  // namespace quorvantis
