// SPDX-License-Identifier: MIT
// The least that a language library can be.
extern "C" __attribute__((visibility("default"))) unsigned short GetLanguageID() {
  return 0x040C;
}
