// SPDX-License-Identifier: MIT
#include "examfile/ExamFileTag.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The bytes of a tag field as 8-bit text equal `tag`.
bool HoldsEightBitTag(std::string_view field, std::u16string_view tag) {
  return std::ranges::equal(field.substr(0, field.find('\0')), tag);
}

/// The bytes of a tag field as UTF-16LE text equal `tag`.
bool HoldsWideTag(std::string_view field, std::u16string_view tag) {
  if (field.size() < 2 * tag.size()) return false;
  for (std::size_t i = 0; i < field.size() / 2; ++i) {
    const char16_t unit = i < tag.size() ? tag[i] : u'\0';
    if (field[2 * i] != static_cast<char>(unit) || field[2 * i + 1] != '\0') return false;
    if (unit == u'\0') break;
  }
  return true;
}

}  // namespace

std::optional<FieldEncoding> EncodingByTag(ByteSource& source, const ExamFileVersion& version) {
  constexpr std::size_t kWideTag = kTagField.Bytes(CharUnit::TwoBytes);
  std::string_view start = source.Peek(kByteOrderMark.size() + kWideTag);
  if (start.starts_with(kByteOrderMark)) {
    start.remove_prefix(kByteOrderMark.size());
    // Only the current version is written with a byte-order mark.
    const bool isCurrent = &version == &kCurrentVersion && HoldsWideTag(start, version.tag);
    return isCurrent ? std::optional(FieldEncoding::Utf16) : std::nullopt;
  }
  // In older files tag and fields are 8-bit text: a UTF-16 tag does not fit the field.
  const std::string_view field = start.substr(0, kTagField.Bytes(CharUnit::OneByte));
  return HoldsEightBitTag(field, version.tag) ? std::optional(FieldEncoding::EightBit) : std::nullopt;
}

std::size_t BytesBeforeTitle(const ExamFileForm& form) {
  if (form.version->tag.empty()) return 0;
  const std::size_t mark = form.encoding == FieldEncoding::Utf16 ? kByteOrderMark.size() : 0;
  return mark + kTagField.Bytes(UnitOf(form.encoding));
}

}  // namespace quorvantis
