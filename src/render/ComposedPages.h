// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PageStore.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {

/// The pages of one preview or print, whole, by the absolute, lexically normal path that each was written to.
/// The files on disk are what other programs expect to find, and some of them are cut; the browser shows
/// these.
class ComposedPages : public PageStore {
 public:
  void Add(const std::filesystem::path& file, std::u16string text) override;

  void NotWritten(const std::filesystem::path& file) override { notWritten_.push_back(file); }

  /// The page written to `file`, or null.
  const std::u16string* Find(const std::filesystem::path& file) const;

  /// The files that do not hold their page, as they were named when it was added.
  const std::vector<std::filesystem::path>& Unwritten() const { return notWritten_; }

  void Clear() override;

 private:
  std::map<std::filesystem::path, std::u16string> pages_;
  std::vector<std::filesystem::path> notWritten_;
};

}  // namespace quorvantis
