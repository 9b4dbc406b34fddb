// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileFile.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

class CodePage;
class Files;

/// A wish for a draw from the bank as it is typed. Lists of tags have commas between them.
struct TypedWish {
  int count = 5;
  int kind = -1;  ///< a QuestionKind; -1 for any
  std::u16string tags = {};
  std::u16string withoutTags = {};
  std::u16string spreadOver = {};

  bool operator==(const TypedWish&) const = default;
};

/// All that is typed into the window that draws from the bank.
struct TypedDraw {
  static constexpr std::size_t kMostWishes = 20;

  std::vector<TypedWish> wishes = {TypedWish()};  ///< one at least
  std::u16string notUsedSince = {};               ///< "2024-08-01", or empty for any time
  std::filesystem::path folder = {};              ///< empty for all folders
  bool leavesOutOpenExam = true;
  std::u16string seed = {};

  bool operator==(const TypedDraw&) const = default;
};

/// Remembers what was typed: section "draw" of "system.ini" in the application folder.
class DrawSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  DrawSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  /// What is missing is as in TypedDraw.
  TypedDraw Read() const;

  /// Failing to write it is ignored.
  void Write(const TypedDraw& typed) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis
