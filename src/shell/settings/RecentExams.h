// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileFile.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace quorvantis {

class CodePage;
class Files;

/// The exams that were opened or saved last, in "system.ini" in the application folder: keys "Exam1" to
/// "Exam10" of section "recent", the last one first. The file is read again each time.
class RecentExams {
 public:
  static constexpr std::size_t kMost = 10;

  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  RecentExams(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  /// Full paths; the files may be gone.
  std::vector<std::filesystem::path> Read() const;

  /// Puts `exam`, a full path, at the top. Failing to write the list is ignored, here and below.
  void Add(const std::filesystem::path& exam) const;
  void Drop(const std::filesystem::path& exam) const;
  void Clear() const;

 private:
  void Write(const std::vector<std::filesystem::path>& exams) const;

  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis
