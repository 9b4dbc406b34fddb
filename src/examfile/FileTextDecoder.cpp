// SPDX-License-Identifier: MIT
#include "examfile/FileTextDecoder.h"

namespace quorvantis {
namespace {

char16_t UnitAt(std::string_view field, std::size_t index) {
  const auto low = static_cast<unsigned char>(field[2 * index]);
  const auto high = static_cast<unsigned char>(field[2 * index + 1]);
  return static_cast<char16_t>(low | (high << 8));
}

std::size_t WideLength(std::string_view field) {
  std::size_t length = 0;
  while (length < field.size() / 2 && UnitAt(field, length) != 0) ++length;
  return length;
}

}  // namespace

std::u16string FileTextDecoder::Decode(std::string_view field) const {
  if (!wide_) return codePage_.Decode(field.substr(0, field.find('\0')));
  std::u16string text(WideLength(field), u'\0');
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = UnitAt(field, i);
  return text;
}

}  // namespace quorvantis
