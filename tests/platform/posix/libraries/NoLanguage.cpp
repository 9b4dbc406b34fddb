// SPDX-License-Identifier: MIT
// A library that is no language.
extern "C" __attribute__((visibility("default"))) const char* GetLanguageText(int) {
  return "text of no language";
}
