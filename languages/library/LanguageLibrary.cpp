// SPDX-License-Identifier: MIT
// The functions that every language library exports, over the tables that its text file became.
#include "LanguageTables.h"

#include <quorvantis/LanguageLibrary.h>

#include <algorithm>

namespace quorvantis::language {
namespace {

const char* Find(int dialog, int number) {
  const auto isWanted = [&](const TextEntry& entry) {
    return entry.dialog == dialog && entry.number == number;
  };
  const auto found = std::ranges::find_if(kTexts, isWanted);
  return found == kTexts.end() ? nullptr : found->text;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace
}  // namespace quorvantis::language

using namespace quorvantis::language;

int GetLanguageID() {
  return kIdentifier;
}

const char* GetLanguageText(int number) {
  return Find(0, number);
}

const char* GetLanguageDialogText(int dialog, int control) {
  return Find(dialog, control);
}

const unsigned char* GetLanguageBitmap(const char* name, int scale, size_t* size) {
  const auto isWanted = [&](const BitmapEntry& entry) {
    return entry.scale == scale && EqualIgnoringCase(entry.name, name);
  };
  const auto found = std::ranges::find_if(kBitmaps, isWanted);
  if (found == kBitmaps.end()) return nullptr;
  *size = static_cast<size_t>(found->end - found->begin);
  return found->begin;
}
