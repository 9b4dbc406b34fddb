// SPDX-License-Identifier: MIT
#include "shell/language/LanguageId.h"

#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace quorvantis {
namespace {

constexpr int kHexadecimal = 16;
constexpr int kDecimal = 10;
constexpr int kLargestId = 0xFFFF;
constexpr int kLanguageBits = 0x3FF;

/// Arabic, Hebrew, Urdu, Persian, Sindhi, Syriac, Pashto, Divehi, Uyghur, Dari, Central Kurdish.
constexpr int kRightToLeft[] = {0x01, 0x0D, 0x20, 0x29, 0x59, 0x5A, 0x63, 0x65, 0x80, 0x8C, 0x92};

}  // namespace

std::optional<int> ParseLanguageId(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  int id = -1;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, id, hexadecimal ? kHexadecimal : kDecimal);
  const bool valid = result.ec == std::errc() && result.ptr == end && id >= 0 && id <= kLargestId;
  return valid ? std::optional(id) : std::nullopt;
}

std::string FormatLanguageId(int languageId) {
  constexpr std::size_t kDigits = 4;
  const std::string digits = Utf16ToUtf8(FormatHexadecimal(static_cast<std::uint32_t>(languageId)));
  return "0x" + std::string(kDigits - std::min(kDigits, digits.size()), '0') + digits;
}

bool IsRightToLeft(int languageId) {
  return std::ranges::find(kRightToLeft, languageId & kLanguageBits) != std::end(kRightToLeft);
}

}  // namespace quorvantis
