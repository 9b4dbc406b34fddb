// SPDX-License-Identifier: MIT
#include "text/PathText.h"

#include "text/AsciiCase.h"
#include "text/Utf.h"

#include <charconv>
#include <cstdint>

namespace quorvantis {
namespace {

constexpr char16_t kOddByteBase = 0xDC00;
constexpr std::size_t kMaxExtensionBytes = 16;

constexpr bool IsOddByte(char16_t unit) {
  return unit >= kOddByteBase + 0x80 && unit <= kOddByteBase + 0xFF;
}

std::string ToNativeBytes(std::u16string_view text) {
  std::string bytes;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = i > 0 && IsHighSurrogate(text[i - 1]) && i > begin;
    if (!IsOddByte(text[i]) || pair) continue;
    bytes += Utf16ToUtf8(text.substr(begin, i - begin));
    bytes.push_back(static_cast<char>(text[i] - kOddByteBase));
    begin = i + 1;
  }
  return bytes + Utf16ToUtf8(text.substr(begin));
}

std::uint64_t Fnv1a(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return hash;
}

/// The first bytes of `utf8`, at most `maxBytes`, ending between two characters.
std::string_view CutUtf8(std::string_view utf8, std::size_t maxBytes) {
  if (utf8.size() <= maxBytes) return utf8;
  while (maxBytes > 0 && (static_cast<unsigned char>(utf8[maxBytes]) & 0xC0) == 0x80) --maxBytes;
  return utf8.substr(0, maxBytes);
}

}  // namespace

std::u16string PathToText(const std::filesystem::path& path) {
  const auto native = path.string();
  std::string_view bytes = native;
  std::u16string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const Utf8Step step = DecodeUtf8(bytes);
    const auto oddByte = static_cast<char16_t>(kOddByteBase + static_cast<unsigned char>(bytes[0]));
    AppendCodePoint(text, step.valid ? step.codePoint : oddByte);
    bytes.remove_prefix(step.length);
  }
  return text;
}

std::filesystem::path TextToPath(std::u16string_view text) {
  return ToNativeBytes(text);
}

std::u16string FitFileName(std::u16string_view name, std::size_t maxBytes) {
  const std::string whole = ToNativeBytes(name);
  if (whole.size() <= maxBytes) return std::u16string(name);
  char hash[17] = "~";
  const auto end = std::to_chars(hash + 1, hash + sizeof hash, Fnv1a(whole), 16).ptr;
  const std::size_t dot = whole.rfind('.');
  const bool keepsExtension = dot != std::string::npos && whole.size() - dot <= kMaxExtensionBytes;
  const std::string tail = std::string(hash, end) + (keepsExtension ? whole.substr(dot) : "");
  return PathToText(std::string(CutUtf8(whole, maxBytes - tail.size())) + tail);
}

std::u16string ExtensionOrPath(std::u16string_view path) {
  return AsciiLower(path.substr(path.rfind(u'.') + 1));  // npos + 1 is 0
}

std::u16string ExtensionOrNothing(std::u16string_view path) {
  return path.find(u'.') == std::u16string_view::npos ? std::u16string() : ExtensionOrPath(path);
}

}  // namespace quorvantis
