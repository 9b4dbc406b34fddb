// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// A profile file: "[section]" lines with "key=value" lines below them. Sections and keys are found without
/// regard to the case of ASCII letters; lines that begin with ";" are comments.
class ProfileFile {
 public:
  /// Reads `file`, UTF-8 with or without a mark or UTF-16LE with one. A missing or unreadable one has no
  /// values; of a large one only the first megabyte counts.
  explicit ProfileFile(const std::filesystem::path& file);

  /// The value without blanks and one pair of quotes around it; the first one where a key stands more than
  /// once.
  std::optional<std::u16string> Value(std::u16string_view section, std::u16string_view key) const;

 private:
  std::u16string content_;
};

}  // namespace quorvantis
