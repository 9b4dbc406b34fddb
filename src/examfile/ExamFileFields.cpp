// SPDX-License-Identifier: MIT
#include "examfile/ExamFileFields.h"

#include "text/NumberText.h"

namespace quorvantis {

FieldReader::FieldReader(ByteSource& source, FieldEncoding encoding, const CodePage& codePage)
    : source_(source), unit_(UnitOf(encoding)), decoder_(codePage) {
  decoder_.SetWide(encoding != FieldEncoding::EightBit);
}

std::u16string FieldReader::Decode(ExamFileField field) {
  return decoder_.Decode(source_.Take(field.Bytes(unit_)));
}

std::int64_t FieldReader::DecodeNumber(ExamFileField field) {
  return ParseInteger64(Decode(field));
}

void FieldReader::Score(float& score, ExamFileField field) {
  if (!source_.Ended()) score = ParseScoreText(Decode(field));
}

void FieldReader::WholeScore(float& score, ExamFileField field) {
  if (!source_.Ended()) score = static_cast<float>(DecodeNumber(field));
}

void FieldReader::OralFlag(int& flag) {
  const std::string_view bytes = source_.Take(2);
  if (!bytes.empty()) flag = bytes[0] == '\x01' ? 1 : 0;
}

void FieldWriter::Text(std::u16string_view text, ExamFileField field) {
  text = text.substr(0, field.units);
  const std::size_t begin = bytes_.size();
  bytes_.resize(begin + field.Bytes(kWrittenUnit));
  char* byte = bytes_.data() + begin;
  for (const char16_t unit : text) {
    *byte++ = static_cast<char>(unit & 0xFF);
    *byte++ = static_cast<char>(unit >> 8);
  }
}

void FieldWriter::NumberText(std::int64_t number, ExamFileField field) {
  Text(FormatInteger(number), field);
}

void FieldWriter::Score(float score, ExamFileField field) {
  Text(FormatScore(score), field);
}

void FieldWriter::OralFlag(int flag) {
  bytes_.append(flag == 1 ? std::string_view("\x01\0", 2) : std::string_view("\0\0", 2));
}

float ParseScoreText(std::u16string_view text) {
  constexpr std::size_t kMaxCharacters = 256;
  return static_cast<float>(ParseReal(text.substr(0, kMaxCharacters)));
}

}  // namespace quorvantis
