// SPDX-License-Identifier: MIT
// The content of one language library. Both tables are made by the build: the texts from the language's text
// file (languages/compiler), the list of pictures from cmake/Bitmaps.cmake.
#pragma once

#include <span>
#include <string_view>

namespace quorvantis::language {

struct TextEntry {
  int dialog;  ///< 0: the text is one of the string table
  int number;  ///< of the text, or of a control in the dialog
  const char* text;
};

struct BitmapEntry {
  std::string_view name;
  int scale;
  const unsigned char* begin;
  const unsigned char* end;
};

extern const int kIdentifier;
extern const std::span<const TextEntry> kTexts;
extern const std::span<const BitmapEntry> kBitmaps;

}  // namespace quorvantis::language
