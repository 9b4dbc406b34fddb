// SPDX-License-Identifier: MIT
#include "render/ComposedPages.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

std::filesystem::path Key(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(file, error);
  return (error ? file : absolute).lexically_normal();
}

}  // namespace

void ComposedPages::Add(const std::filesystem::path& file, std::u16string text) {
  pages_.insert_or_assign(Key(file), std::move(text));
}

const std::u16string* ComposedPages::Find(const std::filesystem::path& file) const {
  const auto found = pages_.find(Key(file));
  return found == pages_.end() ? nullptr : &found->second;
}

void ComposedPages::AddSource(PageSource source) {
  longestSource_ = std::max(longestSource_, source.text.size());
  sourceOfFile_.insert_or_assign(source.file, source.text);
  sources_.insert_or_assign(source.text, source);
}

const PageSource* ComposedPages::FindSource(std::u16string_view text) const {
  const auto found = sources_.find(text);
  return found == sources_.end() ? nullptr : &found->second;
}

const PageSource* ComposedPages::FindFile(const std::filesystem::path& file) const {
  const auto found = sourceOfFile_.find(file);
  return found == sourceOfFile_.end() ? nullptr : FindSource(found->second);
}

std::vector<std::filesystem::path> ComposedPages::SourceFiles() const {
  std::vector<std::filesystem::path> files;
  files.reserve(sourceOfFile_.size());
  for (const auto& [file, text] : sourceOfFile_) files.push_back(file);
  return files;
}

void ComposedPages::Clear() {
  pages_.clear();
  sources_.clear();
  sourceOfFile_.clear();
  longestSource_ = 0;
  notWritten_.clear();
}

}  // namespace quorvantis
