// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileEncoding.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The settings of the program, in the application folder.
inline constexpr const char* kSettingsFile = "system.ini";

/// A profile file in memory: "[section]" lines with "key=value" lines below them. Sections and keys are found
/// without regard to the case of ASCII letters; lines that begin with ";" are comments. A change touches no
/// byte of other lines.
class ProfileFile {
 public:
  /// Reads `file`; a missing one has no values. `codePage`, which must outlive this, is that of 8-bit text;
  /// without one, only its ASCII characters are known.
  explicit ProfileFile(const std::filesystem::path& file, const CodePage* codePage = nullptr);

  /// The same of a file's bytes.
  ProfileFile(std::string bytes, const CodePage* codePage);

  /// The file could be read, or does not exist, so this may replace it. Otherwise there are no values. Files
  /// of more than 16 MiB are not read.
  bool IsWhole() const { return whole_; }

  /// The value without blanks and one pair of quotes around it; the first one if a key occurs more than
  /// once.
  std::optional<std::u16string> Value(std::u16string_view section, std::u16string_view key) const;

  /// The value of a key in each section that has it, by the name of the section as written in the file.
  std::map<std::u16string, std::u16string> ValuesOf(std::u16string_view key) const;

  /// The names of all sections, as written in the file, in its order.
  std::vector<std::u16string> Sections() const;

  /// Sets the value that `Value` finds. A new key goes to the end of its section, a new section to the end of
  /// the file. False, and nothing is changed, if the file's encoding lacks one of its characters, or if it
  /// contains a line break or NUL.
  bool SetValue(std::u16string_view section, std::u16string_view key, std::u16string_view value);

  /// Replaces the digits that a value begins with, and leaves alone what follows them, such as a comment.
  /// False if there is no such value.
  bool SetDigits(std::u16string_view section, std::u16string_view key, int number);

  /// Adds lines at the end of the file. LF ends a line; in the file it becomes what ends its lines, or
  /// stays LF if it has no line end. False, and nothing is changed, if the file's encoding lacks a character.
  bool Append(std::u16string_view lines);

  const std::string& Bytes() const { return bytes_; }

 private:
  /// Offsets into the bytes: the line without its line break, and the start of the next line.
  struct Line {
    std::size_t begin;
    std::size_t end;
    std::size_t next;
  };
  struct Place {
    std::optional<Line> entry;              ///< the key's line
    std::optional<std::size_t> sectionEnd;  ///< after the last line of the section that is not blank
  };

  Line LineAt(std::size_t begin) const;
  std::u16string TextOf(const Line& line) const;
  Place Find(std::u16string_view section, std::u16string_view key) const;
  bool Replace(const Line& line, std::u16string_view value);
  bool InsertLines(std::size_t position, std::u16string lines);
  std::u16string LineBreak() const;
  void Take(std::string bytes, const CodePage* codePage);

  bool whole_;
  std::string bytes_;
  ProfileEncoding encoding_;
};

}  // namespace quorvantis
