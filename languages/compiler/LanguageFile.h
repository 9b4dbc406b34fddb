// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace quorvantis::language {

/// A text file that describes a language; docs/LANGUAGES.md tells how it is written.
struct LanguageFile {
  /// A dialog and a control in it; dialog 0 stands for the string table.
  using Place = std::pair<int, int>;

  std::uint16_t identifier = 0;
  std::map<Place, std::string> texts;  ///< UTF-8
};

/// What is wrong with a language file, and in which line.
class LanguageFileError : public std::runtime_error {
 public:
  LanguageFileError(int line, const std::string& problem) : runtime_error(problem), line_(line) {}

  /// Counted from 1.
  int Line() const { return line_; }

 private:
  int line_;
};

/// Reads a whole file. Throws LanguageFileError at the first line that makes no sense.
LanguageFile ReadLanguageFile(std::istream& in);

/// Puts the texts of a second file in place of those of `file`. Throws LanguageFileError at the first one
/// that `file` lacks or has in the same words; so a list of exceptions stays exact.
void ReplaceTexts(LanguageFile& file, std::istream& exceptions);

}  // namespace quorvantis::language
