// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis {

/// Takes every page that is composed, whole, beside the file that it is written to.
class PageStore {
 public:
  virtual ~PageStore() = default;

  /// The page that has just been written to `file`; takes the place of an earlier one.
  virtual void Add(const std::filesystem::path& file, std::u16string text) = 0;

  /// The page that was added last is not, or not whole, in its file.
  virtual void NotWritten(const std::filesystem::path& file) = 0;

  /// A new preview or print begins: earlier pages are no longer shown.
  virtual void Clear() = 0;
};

}  // namespace quorvantis
