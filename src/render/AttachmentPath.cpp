// SPDX-License-Identifier: MIT
#include "render/AttachmentPath.h"

#include "text/AsciiCase.h"

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

std::u16string ExtensionOrPath(std::u16string_view path) {
  return AsciiLower(path.substr(path.rfind(u'.') + 1));  // npos + 1 is 0
}

std::u16string ExtensionOrNothing(std::u16string_view path) {
  return path.find(u'.') == std::u16string_view::npos ? std::u16string() : ExtensionOrPath(path);
}

bool IsFoundIn(std::u16string_view list, std::u16string_view extension) {
  return list.find(extension) != std::u16string_view::npos;
}

}  // namespace quorvantis
