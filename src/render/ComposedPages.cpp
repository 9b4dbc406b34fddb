// SPDX-License-Identifier: MIT
#include "render/ComposedPages.h"

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

void ComposedPages::Clear() {
  pages_.clear();
  notWritten_.clear();
}

}  // namespace quorvantis
