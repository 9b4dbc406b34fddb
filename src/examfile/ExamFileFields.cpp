// SPDX-License-Identifier: MIT
#include "examfile/ExamFileFields.h"

#include "text/NumberText.h"

namespace quorvantis {

FieldReader::FieldReader(ByteSource& source, FieldEncoding encoding, const CodePage& codePage)
    : source_(source), encoding_(encoding), decoder_(codePage) {
  decoder_.SetWide(encoding != FieldEncoding::EightBit);
}

std::u16string FieldReader::Decode(std::size_t units) {
  return decoder_.Decode(source_.Take(units * BytesPerUnit(encoding_)));
}

std::int64_t FieldReader::DecodeNumber(std::size_t units) {
  return ParseInteger64(Decode(units));
}

void FieldReader::Score(float& score, std::size_t units) {
  if (!source_.Ended()) score = ParseScoreText(Decode(units));
}

void FieldReader::WholeScore(float& score, std::size_t units) {
  if (!source_.Ended()) score = static_cast<float>(DecodeNumber(units));
}

void FieldReader::OralFlag(int& flag) {
  const std::string_view bytes = source_.Take(2);
  if (!bytes.empty()) flag = bytes[0] == '\x01' ? 1 : 0;
}

void FieldWriter::Text(std::u16string_view text, std::size_t units) {
  text = text.substr(0, units);
  const std::size_t begin = bytes_.size();
  bytes_.resize(begin + 2 * units);
  char* byte = bytes_.data() + begin;
  for (const char16_t unit : text) {
    *byte++ = static_cast<char>(unit & 0xFF);
    *byte++ = static_cast<char>(unit >> 8);
  }
}

void FieldWriter::NumberText(std::int64_t number, std::size_t units) {
  Text(FormatInteger(number), units);
}

void FieldWriter::Score(float score, std::size_t units) {
  Text(FormatScore(score), units);
}

void FieldWriter::OralFlag(int flag) {
  bytes_.append(flag == 1 ? std::string_view("\x01\0", 2) : std::string_view("\0\0", 2));
}

float ParseScoreText(std::u16string_view text) {
  constexpr std::size_t kMaxCharacters = 256;
  return static_cast<float>(ParseReal(text.substr(0, kMaxCharacters)));
}

}  // namespace quorvantis
