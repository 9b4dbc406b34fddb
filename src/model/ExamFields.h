// SPDX-License-Identifier: MIT
// The fields of an exam and of its questions, described once: the JSON key, the limit in the window and the
// width in exam files. Code that goes through all fields (files, recovery copies, JSON, losses of a save,
// moving a question) calls one of the Visit functions below, which pass each field to a visitor:
//
//     VisitQuestionFields([](const FieldRow& field, auto& value) { ... }, question);
//
// A value is a text, the texts of the options, a number (an int or an enum) or a score (a float). With
// several records a visitor gets their values of the same field side by side. Attached files have lists and
// rules of their own and do not count as fields.
//
// To add a field, add a member, a name, a row and a line in a Visit function.
#pragma once

#include "model/ExamQuestion.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <type_traits>

namespace quorvantis {

enum class ExamFieldName {
  Title,
  QuestionCount,
  RandomMode,
  ScoreMode,
  RangeStart,
  RangeEnd,
  RangeScore,
  BoundaryQuestion,
  QuestionText,
  Options,
  AnswerLetters,
  FillInAnswer,
  LongFillInAnswer,  ///< a second field for the fill-in answer in files, with room for long ones
  EssayAnswer,
  Kind,
  AnswerMask,
  OralFlag,
  AttachmentName,
};

/// The versions of the exam file. Only the current one is written.
enum class FileVersion { Current, V202, V0214, Untagged };
inline constexpr std::size_t kFileVersions = 4;

struct FieldRow {
  ExamFieldName name;
  const char* key;    ///< in JSON; null if JSON stores it in another form
  std::size_t limit;  ///< of user input, in UTF-16 units; 0 if the user cannot type it
  std::array<std::size_t, kFileVersions>
      units;  ///< width by file version; 0 if the version has no such field

  constexpr std::size_t Units(FileVersion version) const { return units[static_cast<std::size_t>(version)]; }
};

// clang-format off
inline constexpr FieldRow kExamFields[] = {
    // name                           key                 limit   units: current, v202, v0214, untagged
    {ExamFieldName::Title,            "title",            256,    {256, 256, 256, 256}},
    {ExamFieldName::QuestionCount,    "questionCount",    0,      {4, 4, 4, 4}},
    {ExamFieldName::RandomMode,       "randomMode",       0,      {4, 4, 4, 4}},
    {ExamFieldName::ScoreMode,        "scoreMode",        0,      {4, 4, 4, 4}},
    {ExamFieldName::RangeStart,       "from",             0,      {4, 4, 4, 4}},
    {ExamFieldName::RangeEnd,         "to",               0,      {4, 4, 4, 4}},
    {ExamFieldName::RangeScore,       "score",            0,      {7, 4, 4, 4}},
    {ExamFieldName::BoundaryQuestion, "boundaryQuestion", 0,      {4, 4, 4, 0}},
    {ExamFieldName::QuestionText,     "text",             4096,   {4096, 4096, 4096, 4096}},
    {ExamFieldName::Options,          "options",          256,    {256, 256, 256, 256}},  // each of the five
    {ExamFieldName::AnswerLetters,    "answerLetters",    0,      {16, 16, 16, 16}},
    {ExamFieldName::FillInAnswer,     "answerText",       1024,   {256, 256, 256, 256}},
    {ExamFieldName::LongFillInAnswer, nullptr,            0,      {1024, 0, 0, 0}},
    {ExamFieldName::EssayAnswer,      "essayAnswer",      4096,   {4096, 4096, 4096, 4096}},
    {ExamFieldName::Kind,             "kindValue",        0,      {4, 4, 4, 4}},
    {ExamFieldName::AnswerMask,       "answerMask",       0,      {0, 0, 0, 0}},  // readers make it of the letters
    {ExamFieldName::OralFlag,         "oralFlag",         0,      {0, 0, 0, 0}},  // is stored with the attached files
    {ExamFieldName::AttachmentName,   nullptr,            0,      {128, 128, 32, 0}},
};
// clang-format on

constexpr const FieldRow& FieldNamed(ExamFieldName name) {
  return kExamFields[static_cast<std::size_t>(name)];
}

constexpr bool HasARowForEveryName() {
  for (std::size_t i = 0; i < std::size(kExamFields); ++i) {
    if (kExamFields[i].name != static_cast<ExamFieldName>(i)) return false;
  }
  return FieldNamed(ExamFieldName::AttachmentName).key == nullptr;
}
static_assert(HasARowForEveryName(), "in the order of the names");

/// A fill-in answer with more UTF-16 units than this is long (see LongAnswerFlags).
inline constexpr std::size_t kMaxShortAnswer =
    FieldNamed(ExamFieldName::FillInAnswer).Units(FileVersion::Current);

/// The fields of an ExamPaper, without its score ranges.
template <class Visitor, class... Paper>
void VisitPaperFields(Visitor&& visit, Paper&... paper) {
  visit(FieldNamed(ExamFieldName::Title), paper.title...);
  visit(FieldNamed(ExamFieldName::QuestionCount), paper.questionCount...);
  visit(FieldNamed(ExamFieldName::RandomMode), paper.randomMode...);
  visit(FieldNamed(ExamFieldName::ScoreMode), paper.scoreMode...);
}

/// The fields of score range `index`, 0 to 9.
template <class Visitor, class... Paper>
void VisitScoreRange(std::size_t index, Visitor&& visit, Paper&... paper) {
  visit(FieldNamed(ExamFieldName::RangeStart), paper.scoreFrom[index]...);
  visit(FieldNamed(ExamFieldName::RangeEnd), paper.scoreTo[index]...);
  visit(FieldNamed(ExamFieldName::RangeScore), paper.scoreValue[index]...);
}

/// The additional fields of a FrameSetExam.
template <class Visitor, class... Exam>
void VisitDocumentFields(Visitor&& visit, Exam&... exam) {
  visit(FieldNamed(ExamFieldName::BoundaryQuestion), exam.boundaryQuestion...);
}

/// The fields of an ExamQuestion, in the order of exam files.
template <class Visitor, class... Question>
void VisitQuestionFields(Visitor&& visit, Question&... question) {
  visit(FieldNamed(ExamFieldName::QuestionText), question.text...);
  visit(FieldNamed(ExamFieldName::Options), question.options...);
  visit(FieldNamed(ExamFieldName::AnswerLetters), question.answerLetters...);
  visit(FieldNamed(ExamFieldName::FillInAnswer), question.answerText...);
  visit(FieldNamed(ExamFieldName::EssayAnswer), question.essayAnswer...);
  visit(FieldNamed(ExamFieldName::Kind), question.kind...);
  visit(FieldNamed(ExamFieldName::AnswerMask), question.answerMask...);
  visit(FieldNamed(ExamFieldName::OralFlag), question.oralFlag...);
}

/// Whether a field has been filled in. Numbers never count: every question has them.
inline bool HoldsText(const std::u16string& text) {
  return !text.empty();
}
inline bool HoldsText(const OptionTexts& options) {
  return std::ranges::any_of(options, [](const std::u16string& option) { return !option.empty(); });
}
template <class Number>
requires(std::is_arithmetic_v<Number> || std::is_enum_v<Number>) constexpr bool HoldsText(Number) {
  return false;
}

}  // namespace quorvantis
