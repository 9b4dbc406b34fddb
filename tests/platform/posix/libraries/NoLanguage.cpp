// SPDX-License-Identifier: MIT
// A library that is not a language library.
extern "C" __attribute__((visibility("default"))) const char* GetLanguageText(int) {
  return "text of no language";
}
