// SPDX-License-Identifier: MIT
#include "model/MediaKinds.h"

#include "text/PathText.h"

namespace quorvantis {

bool IsOneOf(std::u16string_view list, std::u16string_view extension) {
  while (!list.empty()) {
    const std::u16string_view word = list.substr(0, list.find(u','));
    if (word == extension) return true;
    list.remove_prefix(word.size() == list.size() ? word.size() : word.size() + 1);
  }
  return false;
}

bool IsFoundIn(std::u16string_view list, std::u16string_view extension) {
  return list.find(extension) != std::u16string_view::npos;
}

bool HasVideoExtension(std::u16string_view path) {
  return IsOneOf(kVideoExtensions, ExtensionOrNothing(path));
}

}  // namespace quorvantis
