// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis {

/// A file that pages show, and how they name it.
struct PageSource {
  std::u16string text;         ///< as written in the pages; need not be a valid path to the file
  std::filesystem::path file;  ///< the full path
  std::u16string name;         ///< what the user calls the file; empty for a page
  bool muted = false;          ///< plays without sound
};

/// Keeps every composed page whole, in addition to the file it is written to.
class PageStore {
 public:
  virtual ~PageStore() = default;

  /// The page that has just been written to `file`; replaces an earlier one.
  virtual void Add(const std::filesystem::path& file, std::u16string text) = 0;

  /// The page added last could not be written to its file, or not all of it.
  virtual void NotWritten(const std::filesystem::path& file) = 0;

  /// Pages of this preview or print may show the file.
  virtual void AddSource(PageSource source) = 0;

  /// A new preview or print begins: forgets earlier pages and files.
  virtual void Clear() = 0;
};

}  // namespace quorvantis
