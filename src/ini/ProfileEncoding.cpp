// SPDX-License-Identifier: MIT
#include "ini/ProfileEncoding.h"

#include "platform/CodePage.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::string_view kLowByteFirstMark = "\xFF\xFE";
constexpr std::string_view kHighByteFirstMark = "\xFE\xFF";

}  // namespace

ProfileEncoding ProfileEncoding::Of(std::string_view bytes, const CodePage* codePage) {
  if (bytes.starts_with(kUtf8Mark)) return {Form::Utf8, kUtf8Mark.size()};
  const bool highByteFirst = bytes.starts_with(kHighByteFirstMark);
  if (highByteFirst || bytes.starts_with(kLowByteFirstMark)) {
    ProfileEncoding utf16(Form::Utf16, kLowByteFirstMark.size());
    utf16.highByteFirst_ = highByteFirst;
    return utf16;
  }
  if (codePage == nullptr || IsUtf8(bytes)) return {Form::Utf8, 0};
  ProfileEncoding eightBit(Form::EightBit, 0);
  eightBit.codePage_ = codePage;
  return eightBit;
}

char16_t ProfileEncoding::UnitAt(std::string_view bytes, std::size_t position) const {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  if (form_ != Form::Utf16) return at(position);
  const unsigned char high = at(highByteFirst_ ? position : position + 1);
  const unsigned char low = at(highByteFirst_ ? position + 1 : position);
  return static_cast<char16_t>((high << 8) | low);
}

std::u16string ProfileEncoding::Decode(std::string_view bytes) const {
  if (form_ == Form::EightBit) return codePage_->Decode(bytes);
  if (form_ == Form::Utf8) return Utf8ToUtf16(bytes);
  std::u16string text(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = UnitAt(bytes, 2 * i);
  return text;
}

std::optional<std::string> ProfileEncoding::Encode(std::u16string_view text) const {
  if (form_ == Form::EightBit) return codePage_->Encode(text);
  if (form_ == Form::Utf8) return Utf16ToUtf8(text);
  std::string bytes;
  for (const char16_t unit : text) {
    const char pair[] = {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    bytes.push_back(pair[highByteFirst_ ? 1 : 0]);
    bytes.push_back(pair[highByteFirst_ ? 0 : 1]);
  }
  return bytes;
}

}  // namespace quorvantis
