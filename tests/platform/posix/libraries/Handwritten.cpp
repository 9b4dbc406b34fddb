// SPDX-License-Identifier: MIT
// A language library with few texts, some of them invalid.
#include <quorvantis/LanguageLibrary.h>

int GetLanguageID() {
  return 0x1234040D;
}

const char* GetLanguageText(int number) {
  return number == 101 ? "" : number == 133 ? "\xD7\xA9\xFF" : nullptr;
}

const char* GetLanguageDialogText(int dialog, int control) {
  return dialog == 100 && control == 1 ? "Good" : nullptr;
}

const unsigned char* GetLanguageBitmap(const char*, int, size_t*) {
  return nullptr;
}
