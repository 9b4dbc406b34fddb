// SPDX-License-Identifier: MIT
// The layout of exam files, told once. The functions below walk the fields of a record in file order and hand
// each to a visitor; reading, writing and sizing are visitors, and the older versions are rows of a table.
// Widths are in character units: two bytes in a UTF-16 file, one in every other. docs/FILE-FORMAT.md shows
// the result as bytes.
//
// A visitor has
//   Text(std::u16string&, units)    text, ended by NUL unless it fills the field
//   Number(T&, units)               decimal text of an int or an enum
//   Score(float&, units)            text with two decimals
//   WholeScore(float&, units)       decimal text of a whole number
//   Reserved(units)                 zeros, skipped on reading
// each taking const references when it only reads the exam.
#pragma once

#include "model/FrameSetExam.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvantis {

/// How the fields of a file are stored.
enum class FieldEncoding {
  Utf16,         ///< two bytes a unit, after a byte-order mark
  EightBit,      ///< one byte a unit, text in a code page
  Utf16InBytes,  ///< older files: widths in bytes, which hold UTF-16 text of half as many units
};

constexpr std::size_t BytesPerUnit(FieldEncoding encoding) {
  return encoding == FieldEncoding::Utf16 ? 2 : 1;
}

/// One version of the format.
struct ExamFileVersion {
  std::string_view name;
  std::u16string_view tag;     ///< first field of the file; empty when the version has none
  bool hasAttachments;         ///< and with them the boundary question and the reserved areas
  std::size_t attachmentName;  ///< units of an attachment's display name
  std::size_t score;           ///< units of a score
  bool decimalScores;          ///< scores have two decimals; whole numbers otherwise
  bool hasOralFlag;            ///< before a question's first attachment, in UTF-16 files
  bool hasLongAnswers;         ///< fill-in answers over the field's width, behind the attachments
  bool notesOralQuestions;     ///< the reader records whether there are oral questions
};

inline constexpr std::size_t kTagUnits = 16;
inline constexpr ExamFileVersion kCurrentVersion{"current", u"Tarnwick_DB823", true, 128, 7, true, true, true,
                                                 true};
inline constexpr ExamFileVersion kVersion202{"v202", u"Tarnwick_v202", true, 128, 4, false, false, false,
                                             false};
inline constexpr ExamFileVersion kVersion0214{"0214", u"Tarnwick0214m3", true, 32, 4, false, false, false,
                                              false};
inline constexpr ExamFileVersion kUntaggedVersion{"untagged", u"", false, 0, 4, false, false, false, false};

inline constexpr std::string_view kByteOrderMark = "\xFF\xFE";

/// Stands in the short answer field of a question whose fill-in answer has a field of its own.
inline constexpr std::u16string_view kLongAnswerMarker = u"ExcessTextAns";

/// What of an attached file stands in the exam file, before its content.
struct AttachmentEntry {
  std::u16string name;
  int oralFlag = 0;
  std::int64_t size = 0;  ///< bytes of content; a negative one in a file stands for none
};

/// From the title to the last field before the exam's attachments.
template <class Exam, class Visitor>
void VisitHeader(const ExamFileVersion& version, Exam& exam, Visitor& visitor) {
  visitor.Text(exam.title, 256);
  visitor.Number(exam.questionCount, 4);
  visitor.Number(exam.randomMode, 4);
  visitor.Number(exam.scoreMode, 4);
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    visitor.Number(exam.scoreFrom[i], 4);
    visitor.Number(exam.scoreTo[i], 4);
    if (version.decimalScores) {
      visitor.Score(exam.scoreValue[i], version.score);
    } else {
      visitor.WholeScore(exam.scoreValue[i], version.score);
    }
  }
  if (!version.hasAttachments) return;
  visitor.Number(exam.boundaryQuestion, 4);
  visitor.Reserved(1020);
}

/// From a question's text to the last field before its attachments. `shortAnswer` is the fill-in answer or
/// the marker of a long one.
template <class Question, class Answer, class Visitor>
void VisitQuestion(const ExamFileVersion& version, Question& question, Answer& shortAnswer,
                   Visitor& visitor) {
  visitor.Text(question.text, 4096);
  for (auto& option : question.options) visitor.Text(option, 256);
  visitor.Text(question.answerLetters, 16);
  visitor.Text(shortAnswer, 256);
  visitor.Text(question.essayAnswer, 4096);
  visitor.Number(question.kind, 4);
  if (version.hasAttachments) visitor.Reserved(64);
}

/// The number of attached files, of the exam or of a question.
template <class Count, class Visitor>
void VisitAttachmentCount(Count& count, Visitor& visitor) {
  visitor.Number(count, 4);
}

/// The fields before an attached file's content. The oral flag is a 16-bit number: the visitor's
/// OralFlag(int&).
template <class Entry, class Visitor>
void VisitAttachment(const ExamFileVersion& version, Entry& entry, bool withOralFlag, Visitor& visitor) {
  visitor.Text(entry.name, version.attachmentName);
  if (withOralFlag) visitor.OralFlag(entry.oralFlag);
  visitor.Number(entry.size, 16);
}

/// The long fill-in answer, behind the question's attachments.
template <class Answer, class Visitor>
void VisitLongAnswer(Answer& answer, Visitor& visitor) {
  visitor.Text(answer, 1024);
}

}  // namespace quorvantis
