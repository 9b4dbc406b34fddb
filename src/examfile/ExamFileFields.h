// SPDX-License-Identifier: MIT
// The visitors of ExamFileLayout.h for reading and writing.
#pragma once

#include "examfile/ByteSource.h"
#include "examfile/ExamFileLayout.h"
#include "examfile/FileTextDecoder.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quorvantis {

/// Reads fields from a source. After the end of the data it leaves the fields unchanged.
class FieldReader {
 public:
  FieldReader(ByteSource& source, FieldEncoding encoding, const CodePage& codePage);

  void Text(std::u16string& text, ExamFileField field) {
    if (!source_.Ended()) text = Decode(field);
  }
  template <class Integer>
  void Number(Integer& number, ExamFileField field) {
    if (!source_.Ended()) number = static_cast<Integer>(DecodeNumber(field));
  }
  void Score(float& score, ExamFileField field);
  void WholeScore(float& score, ExamFileField field);
  void Reserved(ExamFileField field) { source_.Take(field.Bytes(unit_)); }
  void OralFlag(int& flag);

 private:
  std::u16string Decode(ExamFileField field);
  std::int64_t DecodeNumber(ExamFileField field);

  ByteSource& source_;
  CharUnit unit_;
  FileTextDecoder decoder_;
};

/// Encodes fields in the UTF-16 form into a buffer of the caller.
class FieldWriter {
 public:
  explicit FieldWriter(std::string& bytes) : bytes_(bytes) {}

  /// The text cut to the field's width; a shorter one is padded with zeros.
  void Text(std::u16string_view text, ExamFileField field);
  template <class Integer>
  void Number(const Integer& number, ExamFileField field) {
    NumberText(static_cast<std::int64_t>(number), field);
  }
  void Score(float score, ExamFileField field);
  void WholeScore(float score, ExamFileField field) { NumberText(static_cast<std::int64_t>(score), field); }
  void Reserved(ExamFileField field) { bytes_.append(field.Bytes(kWrittenUnit), '\0'); }
  void OralFlag(int flag);

 private:
  static constexpr CharUnit kWrittenUnit = CharUnit::TwoBytes;

  void NumberText(std::int64_t number, ExamFileField field);

  std::string& bytes_;
};

/// Parses a score by the rules of atof; only the first 256 characters count.
float ParseScoreText(std::u16string_view text);

}  // namespace quorvantis
