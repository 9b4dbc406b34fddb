/* SPDX-License-Identifier: MIT
 *
 * What a language library exports. The program looks for libraries in the folder language/Quorvantis of its
 * application folder: dynamic libraries of the platform whose file names end in ".dll".
 *
 * Libraries are usually built from a text file (see docs/LANGUAGES.md), and nobody has to read this. To write
 * one by hand, in any language that can export C functions, define GetLanguageID and as many of the others as
 * there is something to say: where a function or a text is missing the program uses its own. For example
 *
 *   #include <quorvantis/LanguageLibrary.h>
 *
 *   int GetLanguageID(void) { return 0x040C; }
 *   const char* GetLanguageText(int number) { return number == 158 ? "Français" : 0; }
 *
 * built by
 *
 *   cc -shared -fPIC -I languages/include -o French.dll french.c
 *
 * All functions are called on one thread. Texts are UTF-8 and end with a zero byte; texts and pictures belong
 * to the library and stay valid until it is unloaded.
 */
#ifndef QUORVANTIS_LANGUAGE_LIBRARY_H
#define QUORVANTIS_LANGUAGE_LIBRARY_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

#define QUORVANTIS_EXPORT __attribute__((visibility("default")))

/* The identifier of the language, as Windows numbers languages: 0x0409 is English, 0x0804 simplified Chinese.
 * Only the low 16 bits count. A library that does not export this is no language. */
QUORVANTIS_EXPORT int GetLanguageID(void);

/* The text of that number, or null. An empty text is used as it is. The languages/ folder of the sources
 * tells the numbers; 158 is the name of the language in the language itself. The placeholders %s and %d must
 * stand in the order of the English text; numbered ones, %1 to %9, may stand in any order. */
QUORVANTIS_EXPORT const char* GetLanguageText(int number);

/* The text of a control in a dialog, or null. Control 0 is the caption of the dialog. An empty text counts as
 * none. */
QUORVANTIS_EXPORT const char* GetLanguageDialogText(int dialog, int control);

/* The picture of that name ("NextQuestionU"; "206" for a numbered one) as a PNG file in memory of *size
 * bytes, or null. The name is found without regard to the case of ASCII letters. scale is 1, or 2 for a
 * picture with twice the pixels. */
QUORVANTIS_EXPORT const unsigned char* GetLanguageBitmap(const char* name, int scale, size_t* size);

#ifdef __cplusplus
}
#endif

#endif
