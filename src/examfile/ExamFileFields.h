// SPDX-License-Identifier: MIT
// The visitors of ExamFileLayout.h that read and write.
#pragma once

#include "examfile/ByteSource.h"
#include "examfile/ExamFileLayout.h"
#include "examfile/FileTextDecoder.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quorvantis {

/// Takes fields from a source. Past the end of the data the fields are left as they are.
class FieldReader {
 public:
  FieldReader(ByteSource& source, FieldEncoding encoding, const CodePage& codePage);

  void Text(std::u16string& text, std::size_t units) {
    if (!source_.Ended()) text = Decode(units);
  }
  template <class Integer>
  void Number(Integer& number, std::size_t units) {
    if (!source_.Ended()) number = static_cast<Integer>(DecodeNumber(units));
  }
  void Score(float& score, std::size_t units);
  void WholeScore(float& score, std::size_t units);
  void Reserved(std::size_t units) { source_.Take(units * BytesPerUnit(encoding_)); }
  void OralFlag(int& flag);

 private:
  std::u16string Decode(std::size_t units);
  std::int64_t DecodeNumber(std::size_t units);

  ByteSource& source_;
  FieldEncoding encoding_;
  FileTextDecoder decoder_;
};

/// Composes fields of the UTF-16 form. The bytes gather in a buffer of the caller's.
class FieldWriter {
 public:
  explicit FieldWriter(std::string& bytes) : bytes_(bytes) {}

  /// The text cut to the field's width; a shorter one is followed by zeros.
  void Text(std::u16string_view text, std::size_t units);
  template <class Integer>
  void Number(const Integer& number, std::size_t units) {
    NumberText(static_cast<std::int64_t>(number), units);
  }
  void Score(float score, std::size_t units);
  void WholeScore(float score, std::size_t units) { NumberText(static_cast<std::int64_t>(score), units); }
  void Reserved(std::size_t units) { bytes_.append(2 * units, '\0'); }
  void OralFlag(int flag);

 private:
  void NumberText(std::int64_t number, std::size_t units);

  std::string& bytes_;
};

/// Reads a score by the rules of atof; at most 256 characters of the text count.
float ParseScoreText(std::u16string_view text);

}  // namespace quorvantis
