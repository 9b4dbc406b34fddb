// SPDX-License-Identifier: MIT
#pragma once

/// Puts the content of a file into the program: afterwards `symbol` and `symbol##_end` are the begin and the
/// end of its bytes. Stands outside of any namespace and function.
#define QUORVANTIS_EMBED_FILE(symbol, file)                                            \
  extern "C" __attribute__((visibility("hidden"))) const unsigned char symbol[];       \
  extern "C" __attribute__((visibility("hidden"))) const unsigned char symbol##_end[]; \
  __asm__(".pushsection .rodata\n" #symbol ":\n.incbin \"" file "\"\n" #symbol         \
          "_end:\n.byte 0\n.popsection\n")
