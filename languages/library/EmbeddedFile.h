// SPDX-License-Identifier: MIT
#pragma once

/// Puts the content of a file into the program: afterwards `symbol` and `symbol##_end` are the beginning and
/// the end of its bytes. Use it outside any namespace or function.
#define QUORVANTIS_EMBED_FILE(symbol, file)                                            \
  extern "C" __attribute__((visibility("hidden"))) const unsigned char symbol[];       \
  extern "C" __attribute__((visibility("hidden"))) const unsigned char symbol##_end[]; \
  __asm__(".pushsection .rodata\n" #symbol ":\n.incbin \"" file "\"\n" #symbol         \
          "_end:\n.byte 0\n.popsection\n")
