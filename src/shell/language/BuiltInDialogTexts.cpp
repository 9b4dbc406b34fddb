// SPDX-License-Identifier: MIT
#include "shell/language/BuiltInDialogTexts.h"

#include "shell/language/BuiltInTable.h"

namespace quorvantis {

std::u16string BuiltInDialogText(int dialog, int control) {
  return std::u16string(FindBuiltInText(dialog, control));
}

std::u16string DialogTextOf(const LanguageLibrary* library, int dialog, int control) {
  const std::u16string text = library == nullptr ? std::u16string() : library->DialogText(dialog, control);
  return text.empty() ? BuiltInDialogText(dialog, control) : text;
}

std::vector<std::pair<int, int>> BuiltInDialogControls() {
  std::vector<std::pair<int, int>> places;
  for (const BuiltInText& text : BuiltInTexts()) {
    if (text.place.first != 0) places.push_back(text.place);
  }
  return places;
}

}  // namespace quorvantis
