// SPDX-License-Identifier: MIT
// The layout of exam files. The functions below visit the fields of a record (model/ExamFields.h) in file
// order and pass each with its width to a visitor; reading, writing and measuring are visitors.
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

#include "examfile/ExamFileVersions.h"
#include "model/ExamFields.h"
#include "model/document/FrameSetExam.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace quorvantis {

/// What the exam file stores about an attached file before its content.
struct AttachmentEntry {
  std::u16string name;
  int oralFlag = 0;
  std::int64_t size = 0;  ///< bytes of content; a negative size in a file means none
};

/// Passes the fields that a version has to a visitor as above, with their widths.
template <class Visitor>
class FieldsInFile {
 public:
  FieldsInFile(const ExamFileVersion& version, Visitor& visitor) : version_(version), visitor_(visitor) {}

  template <class Value>
  void operator()(const FieldRow& field, Value& value) const {
    const ExamFileField width = version_.Width(field.name);
    if (width.units > 0) Visit(value, width);
  }

 private:
  template <class Value>
  void Visit(Value& value, ExamFileField width) const {
    using Plain = std::remove_const_t<Value>;
    if constexpr (std::is_same_v<Plain, std::u16string>) {
      visitor_.Text(value, width);
    } else if constexpr (std::is_same_v<Plain, OptionTexts>) {
      for (auto& option : value) visitor_.Text(option, width);
    } else if constexpr (!std::is_same_v<Plain, float>) {
      visitor_.Number(value, width);
    } else if (version_.decimalScores) {
      visitor_.Score(value, width);
    } else {
      visitor_.WholeScore(value, width);
    }
  }

  const ExamFileVersion& version_;
  Visitor& visitor_;
};

/// From the title to the last field before the exam's attachments.
template <class Exam, class Visitor>
void VisitHeader(const ExamFileVersion& version, Exam& exam, Visitor& visitor) {
  const FieldsInFile fields(version, visitor);
  VisitPaperFields(fields, exam);
  for (std::size_t i = 0; i < kScoreRanges; ++i) VisitScoreRange(i, fields, exam);
  VisitDocumentFields(fields, exam);
  if (version.HasAttachments()) visitor.Reserved(kReservedInHeader);
}

/// From a question's text to the last field before its attachments. `shortAnswer` is the fill-in answer or
/// the marker of a long one.
template <class Question, class Answer, class Visitor>
void VisitQuestion(const ExamFileVersion& version, Question& question, Answer& shortAnswer,
                   Visitor& visitor) {
  const FieldsInFile fields(version, visitor);
  const auto visit = [&](const FieldRow& field, auto& value) {
    if (field.name == ExamFieldName::FillInAnswer) {
      fields(field, shortAnswer);
    } else {
      fields(field, value);
    }
  };
  VisitQuestionFields(visit, question);
  if (version.HasAttachments()) visitor.Reserved(kReservedInQuestion);
}

/// The number of attached files of the exam or of a question.
template <class Count, class Visitor>
void VisitAttachmentCount(Count& count, Visitor& visitor) {
  visitor.Number(count, kAttachmentCount);
}

/// The fields before an attached file's content. The oral flag is a 16-bit number: the visitor's
/// OralFlag(int&).
template <class Entry, class Visitor>
void VisitAttachment(const ExamFileVersion& version, Entry& entry, bool withOralFlag, Visitor& visitor) {
  visitor.Text(entry.name, version.Width(ExamFieldName::AttachmentName));
  if (withOralFlag) visitor.OralFlag(entry.oralFlag);
  visitor.Number(entry.size, kAttachmentSize);
}

/// The long fill-in answer, after the question's attachments.
template <class Answer, class Visitor>
void VisitLongAnswer(const ExamFileVersion& version, Answer& answer, Visitor& visitor) {
  visitor.Text(answer, version.Width(ExamFieldName::LongFillInAnswer));
}

}  // namespace quorvantis
