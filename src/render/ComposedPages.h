// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PageStore.h"

#include <filesystem>
#include <map>
#include <string>

namespace quorvantis {

/// The pages of one preview or print, whole, by the absolute, lexically normal path that each was written to.
/// The files on disk are what other programs expect to find, and some of them are cut; the browser shows
/// these.
class ComposedPages : public PageStore {
 public:
  void Add(const std::filesystem::path& file, std::u16string text) override;

  /// The page written to `file`, or null.
  const std::u16string* Find(const std::filesystem::path& file) const;

  void Clear() override { pages_.clear(); }

 private:
  std::map<std::filesystem::path, std::u16string> pages_;
};

}  // namespace quorvantis
