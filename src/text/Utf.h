// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// UTF-8 to UTF-16. Bytes that are not UTF-8 become U+FFFD, one for each byte that does not start a
/// character.
std::u16string Utf8ToUtf16(std::string_view bytes);

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD (EF BF BD), so the result is always valid UTF-8.
std::string Utf16ToUtf8(std::u16string_view text);

constexpr char16_t kReplacementCharacter = u'\uFFFD';

constexpr bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Appends one code point (0 to 10FFFF) as UTF-16.
void AppendCodePoint(std::u16string& text, char32_t codePoint);

/// Appends one code point (0 to 10FFFF) as UTF-8, surrogates included (three bytes, as any other value).
void AppendCodePoint(std::string& bytes, char32_t codePoint);

/// One code point decoded from the front of UTF-8 bytes.
struct Utf8Step {
  char32_t codePoint;  ///< meaningless when `valid` is false
  std::size_t length;  ///< bytes taken, at least 1
  bool valid;
};

/// Decodes the code point at the front of `bytes`, which must not be empty. Overlong forms, surrogates and
/// values above 10FFFF are not valid.
Utf8Step DecodeUtf8(std::string_view bytes);

/// Whether all of `bytes` is valid.
bool IsUtf8(std::string_view bytes);

/// What programs put in front of a text to say that it is UTF-8.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// The same text with every lone surrogate replaced by U+FFFD.
std::u16string ReplaceLoneSurrogates(std::u16string_view text);

}  // namespace quorvantis
