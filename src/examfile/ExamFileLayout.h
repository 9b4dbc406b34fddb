// SPDX-License-Identifier: MIT
// The layout of exam files, told once. The functions below walk the fields of a record in file order and hand
// each to a visitor; reading, writing and sizing are visitors, and the older versions are rows of a table.
// docs/FILE-FORMAT.md shows the result as bytes.
//
// A visitor has
//   Text(std::u16string&, ExamFileField)    text, ended by NUL unless it fills the field
//   Number(T&, ExamFileField)               decimal text of an int or an enum
//   Score(float&, ExamFileField)            text with two decimals
//   WholeScore(float&, ExamFileField)       decimal text of a whole number
//   Reserved(ExamFileField)                 zeros, skipped on reading
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

/// The unit in which the widths of a file's fields are counted. Its value is its size in bytes.
enum class CharUnit : std::size_t { OneByte = 1, TwoBytes = 2 };

constexpr CharUnit UnitOf(FieldEncoding encoding) {
  return encoding == FieldEncoding::Utf16 ? CharUnit::TwoBytes : CharUnit::OneByte;
}

/// A text field of fixed width. What is in it, and how it is written, is the visitor's business.
struct ExamFileField {
  std::size_t units = 0;

  constexpr std::size_t Bytes(CharUnit unit) const { return units * static_cast<std::size_t>(unit); }
};

/// One version of the format.
struct ExamFileVersion {
  std::string_view name;
  std::u16string_view tag{};        ///< first field of the file; empty when the version has none
  bool hasAttachments = false;      ///< and with them the boundary question and the reserved areas
  ExamFileField attachmentName{};   ///< an attachment's display name
  ExamFileField score{};            ///< a score
  bool decimalScores = false;       ///< scores have two decimals; whole numbers otherwise
  bool hasOralFlag = false;         ///< before a question's first attachment, in UTF-16 files
  bool hasLongAnswers = false;      ///< fill-in answers over the field's width, behind the attachments
  bool notesOralQuestions = false;  ///< the reader records whether there are oral questions
};

inline constexpr ExamFileField kTagField{16};
inline constexpr ExamFileField kNumberField{4};
inline constexpr ExamFileField kLongTextField{4096};  ///< question texts and essay answers
inline constexpr ExamFileField kShortTextField{256};

inline constexpr ExamFileVersion kCurrentVersion{.name = "current",
                                                 .tag = u"Tarnwick_DB823",
                                                 .hasAttachments = true,
                                                 .attachmentName = {128},
                                                 .score = {7},
                                                 .decimalScores = true,
                                                 .hasOralFlag = true,
                                                 .hasLongAnswers = true,
                                                 .notesOralQuestions = true};
inline constexpr ExamFileVersion kVersion202{
    .name = "v202", .tag = u"Tarnwick_v202", .hasAttachments = true, .attachmentName = {128}, .score = {4}};
inline constexpr ExamFileVersion kVersion0214{
    .name = "0214", .tag = u"Tarnwick0214m3", .hasAttachments = true, .attachmentName = {32}, .score = {4}};
inline constexpr ExamFileVersion kUntaggedVersion{.name = "untagged", .score = {4}};

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
  visitor.Text(exam.title, kShortTextField);
  visitor.Number(exam.questionCount, kNumberField);
  visitor.Number(exam.randomMode, kNumberField);
  visitor.Number(exam.scoreMode, kNumberField);
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    visitor.Number(exam.scoreFrom[i], kNumberField);
    visitor.Number(exam.scoreTo[i], kNumberField);
    if (version.decimalScores) {
      visitor.Score(exam.scoreValue[i], version.score);
    } else {
      visitor.WholeScore(exam.scoreValue[i], version.score);
    }
  }
  if (!version.hasAttachments) return;
  visitor.Number(exam.boundaryQuestion, kNumberField);
  visitor.Reserved(ExamFileField{1020});
}

/// From a question's text to the last field before its attachments. `shortAnswer` is the fill-in answer or
/// the marker of a long one.
template <class Question, class Answer, class Visitor>
void VisitQuestion(const ExamFileVersion& version, Question& question, Answer& shortAnswer,
                   Visitor& visitor) {
  visitor.Text(question.text, kLongTextField);
  for (auto& option : question.options) visitor.Text(option, kShortTextField);
  visitor.Text(question.answerLetters, ExamFileField{16});
  visitor.Text(shortAnswer, kShortTextField);
  visitor.Text(question.essayAnswer, kLongTextField);
  visitor.Number(question.kind, kNumberField);
  if (version.hasAttachments) visitor.Reserved(ExamFileField{64});
}

/// The number of attached files, of the exam or of a question.
template <class Count, class Visitor>
void VisitAttachmentCount(Count& count, Visitor& visitor) {
  visitor.Number(count, kNumberField);
}

/// The fields before an attached file's content. The oral flag is a 16-bit number: the visitor's
/// OralFlag(int&).
template <class Entry, class Visitor>
void VisitAttachment(const ExamFileVersion& version, Entry& entry, bool withOralFlag, Visitor& visitor) {
  visitor.Text(entry.name, version.attachmentName);
  if (withOralFlag) visitor.OralFlag(entry.oralFlag);
  visitor.Number(entry.size, ExamFileField{16});
}

/// The long fill-in answer, behind the question's attachments.
template <class Answer, class Visitor>
void VisitLongAnswer(Answer& answer, Visitor& visitor) {
  visitor.Text(answer, ExamFileField{1024});
}

}  // namespace quorvantis
