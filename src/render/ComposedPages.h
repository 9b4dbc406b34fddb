// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PageStore.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The pages of one preview or print, whole, by the absolute, lexically normal path that each was written to.
/// The files on disk are what other programs expect, and some are cut. The browser shows these pages, which
/// also know the files they show: a source text alone does not identify a file.
class ComposedPages : public PageStore {
 public:
  void Add(const std::filesystem::path& file, std::u16string text) override;

  void NotWritten(const std::filesystem::path& file) override { notWritten_.push_back(file); }

  /// The page written to `file`, or null.
  const std::u16string* Find(const std::filesystem::path& file) const;

  void AddSource(PageSource source) override;

  /// The file that pages name by exactly this text, or null.
  const PageSource* FindSource(std::u16string_view text) const;

  /// The same for a full path of a file.
  const PageSource* FindFile(const std::filesystem::path& file) const;

  /// The full paths of the files that pages show.
  std::vector<std::filesystem::path> SourceFiles() const;

  /// The length of the longest text, in UTF-16 units.
  std::size_t LongestSource() const { return longestSource_; }

  /// The files that do not hold their whole page, as named when it was added.
  const std::vector<std::filesystem::path>& Unwritten() const { return notWritten_; }

  void Clear() override;

 private:
  std::map<std::filesystem::path, std::u16string> pages_;
  std::vector<std::filesystem::path> notWritten_;
  std::map<std::u16string, PageSource, std::less<>> sources_;
  std::map<std::filesystem::path, std::u16string> sourceOfFile_;  ///< one of them
  std::size_t longestSource_ = 0;
};

}  // namespace quorvantis
