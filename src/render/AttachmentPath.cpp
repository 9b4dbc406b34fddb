// SPDX-License-Identifier: MIT
#include "render/AttachmentPath.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kPrefix = 3;

std::u16string_view FromMarkOrWithoutPrefix(std::u16string_view path, std::u16string_view mark) {
  const std::size_t at = path.find(mark);
  return path.substr(at != std::u16string_view::npos ? at : std::min(kPrefix, path.size()));
}

}  // namespace

std::u16string_view RelativeSource(std::u16string_view path) {
  return FromMarkOrWithoutPrefix(path, u"~");
}

std::u16string_view PlayerSource(std::u16string_view path) {
  return FromMarkOrWithoutPrefix(path, u"~Ans");
}

}  // namespace quorvantis
