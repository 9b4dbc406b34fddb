// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis {

/// A file that pages show, and how they name it.
struct PageSource {
  std::u16string text;         ///< as it stands in the pages; by itself it need not lead to the file
  std::filesystem::path file;  ///< the full path
  std::u16string name;         ///< what the user calls the file; empty for a page
  bool muted = false;          ///< plays without sound
};

/// Takes every page that is composed, whole, beside the file that it is written to.
class PageStore {
 public:
  virtual ~PageStore() = default;

  /// The page that has just been written to `file`; takes the place of an earlier one.
  virtual void Add(const std::filesystem::path& file, std::u16string text) = 0;

  /// The page that was added last is not, or not whole, in its file.
  virtual void NotWritten(const std::filesystem::path& file) = 0;

  /// Pages of this preview or print may show the file.
  virtual void AddSource(PageSource source) = 0;

  /// A new preview or print begins: earlier pages and files are no longer shown.
  virtual void Clear() = 0;
};

}  // namespace quorvantis
