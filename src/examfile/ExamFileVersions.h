// SPDX-License-Identifier: MIT
// The versions of the exam file format: their tags, and what sets them apart.
#pragma once

#include "model/ExamFields.h"

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// How the fields of a file are stored.
enum class FieldEncoding {
  Utf16,         ///< two bytes a unit, after a byte-order mark
  EightBit,      ///< one byte a unit, text in a code page
  Utf16InBytes,  ///< older files: widths in bytes, for UTF-16 text of half as many units
};

/// The unit in which the widths of a file's fields are counted. Its value is its size in bytes.
enum class CharUnit : std::size_t { OneByte = 1, TwoBytes = 2 };

constexpr CharUnit UnitOf(FieldEncoding encoding) {
  return encoding == FieldEncoding::Utf16 ? CharUnit::TwoBytes : CharUnit::OneByte;
}

/// A text field of fixed width. The visitor decides how it is read or written.
struct ExamFileField {
  std::size_t units = 0;

  constexpr std::size_t Bytes(CharUnit unit) const { return units * static_cast<std::size_t>(unit); }
};

/// One version of the format. The widths of its fields are in ExamFields.h.
struct ExamFileVersion {
  FileVersion version;
  std::string_view name;
  std::u16string_view tag{};        ///< first field of the file; empty if the version has none
  bool decimalScores = false;       ///< scores have two decimals; whole numbers otherwise
  bool hasOralFlag = false;         ///< before a question's first attachment, in UTF-16 files
  bool notesOralQuestions = false;  ///< the reader notes whether there are oral questions

  constexpr ExamFileField Width(ExamFieldName field) const { return {FieldNamed(field).Units(version)}; }
  /// A version with attachments has the reserved areas too.
  constexpr bool HasAttachments() const { return Width(ExamFieldName::AttachmentName).units > 0; }
  /// Stored after a question's attachments.
  constexpr bool HasLongAnswers() const { return Width(ExamFieldName::LongFillInAnswer).units > 0; }
};

// Fields that say nothing about the exam itself.
inline constexpr ExamFileField kTagField{16};
inline constexpr ExamFileField kAttachmentCount{4};
inline constexpr ExamFileField kAttachmentSize{16};
inline constexpr ExamFileField kReservedInHeader{1020};
inline constexpr ExamFileField kReservedInQuestion{64};

inline constexpr ExamFileVersion kCurrentVersion{.version = FileVersion::Current,
                                                 .name = "current",
                                                 .tag = u"Tarnwick_DB823",
                                                 .decimalScores = true,
                                                 .hasOralFlag = true,
                                                 .notesOralQuestions = true};
inline constexpr ExamFileVersion kVersion202{
    .version = FileVersion::V202, .name = "v202", .tag = u"Tarnwick_v202"};
inline constexpr ExamFileVersion kVersion0214{
    .version = FileVersion::V0214, .name = "0214", .tag = u"Tarnwick0214m3"};
inline constexpr ExamFileVersion kUntaggedVersion{.version = FileVersion::Untagged, .name = "untagged"};

inline constexpr std::string_view kByteOrderMark = "\xFF\xFE";

/// Fills the short answer field of a question whose fill-in answer has a long field.
inline constexpr std::u16string_view kLongAnswerMarker = u"ExcessTextAns";

}  // namespace quorvantis
