// SPDX-License-Identifier: MIT
#include "text/Utf.h"

namespace quorvantis {
namespace {

constexpr bool IsSurrogate(char32_t codePoint) {
  return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

/// Returns the code point at `index` and moves `index` past it; a lone surrogate is returned as it is.
char32_t TakeCodePoint(std::u16string_view text, std::size_t& index) {
  const char16_t unit = text[index++];
  if (!IsHighSurrogate(unit) || index == text.size() || !IsLowSurrogate(text[index])) return unit;
  return 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) + (text[index++] - 0xDC00u);
}

/// Appends the ASCII characters at the front of `text`, often all of it, and returns their number.
template <class Result>
std::size_t AppendAscii(Result& result, std::u16string_view text) {
  std::size_t length = 0;
  while (length < text.size() && text[length] < 0x80) ++length;
  const std::size_t end = result.size();
  result.resize(end + length);
  for (std::size_t i = 0; i < length; ++i)
    result[end + i] = static_cast<typename Result::value_type>(text[i]);
  return length;
}

/// `text` code point by code point as UTF-8 or UTF-16, lone surrogates replaced.
template <class Result>
Result Recode(std::u16string_view text) {
  Result result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    i += AppendAscii(result, text.substr(i));
    if (i == text.size()) break;
    const char32_t codePoint = TakeCodePoint(text, i);
    AppendCodePoint(result, IsSurrogate(codePoint) ? kReplacementCharacter : codePoint);
  }
  return result;
}

}  // namespace

void AppendCodePoint(std::u16string& text, char32_t codePoint) {
  if (codePoint < 0x10000) {
    text.push_back(static_cast<char16_t>(codePoint));
    return;
  }
  text.push_back(static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
  text.push_back(static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
}

void AppendCodePoint(std::string& bytes, char32_t codePoint) {
  const auto tail = [&](int shift) {
    bytes.push_back(static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F)));
  };
  if (codePoint < 0x80) {
    bytes.push_back(static_cast<char>(codePoint));
  } else if (codePoint < 0x800) {
    bytes.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
    tail(0);
  } else if (codePoint < 0x10000) {
    bytes.push_back(static_cast<char>(0xE0 | (codePoint >> 12)));
    tail(6), tail(0);
  } else {
    bytes.push_back(static_cast<char>(0xF0 | (codePoint >> 18)));
    tail(12), tail(6), tail(0);
  }
}

Utf8Step DecodeUtf8(std::string_view bytes) {
  constexpr Utf8Step kInvalid{0, 1, false};
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return {lead, 1, true};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return kInvalid;
  char32_t codePoint = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return kInvalid;
    codePoint = (codePoint << 6) | (byte(i) & 0x3Fu);
  }
  constexpr char32_t kSmallestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
  if (codePoint < kSmallestOfLength[length] || codePoint > 0x10FFFF || IsSurrogate(codePoint))
    return kInvalid;
  return {codePoint, length, true};
}

std::u16string Utf8ToUtf16(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const Utf8Step step = DecodeUtf8(bytes);
    AppendCodePoint(text, step.valid ? step.codePoint : kReplacementCharacter);
    bytes.remove_prefix(step.length);
  }
  return text;
}

std::string Utf16ToUtf8(std::u16string_view text) {
  return Recode<std::string>(text);
}

std::u16string ReplaceLoneSurrogates(std::u16string_view text) {
  return Recode<std::u16string>(text);
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const Utf8Step step = DecodeUtf8(bytes);
    if (!step.valid) return false;
    bytes.remove_prefix(step.length);
  }
  return true;
}

}  // namespace quorvantis
