// SPDX-License-Identifier: MIT
// The exam in an editor at one moment: everything that a step of the history can take back. It is kept in
// parts that change together.
#pragma once

#include "editor/ExamEditor.h"
#include "model/LongAnswerFlags.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

struct ExamReadOutcome;

/// The exam without its questions.
struct ExamHeader {
  std::u16string title;
  RandomMode randomMode = RandomMode::Off;
  ScoreMode scoreMode = ScoreMode::Same;
  std::array<int, kScoreRanges> scoreFrom{};
  std::array<int, kScoreRanges> scoreTo{};
  std::array<float, kScoreRanges> scoreValue{};
  int boundaryQuestion = 0;
  int firstOralQuestion = 0;
  int hasOralQuestion = 0;
  int questionFilesUnpacked = 0;
  int examFilesUnpacked = 0;
  AttachmentList paths;
  AttachmentList names;
  AttachmentList copies;
  std::vector<std::u16string> displayNamesAmongPaths;
  std::set<std::u16string> pathsWithoutContent;

  bool operator==(const ExamHeader&) const = default;
};

ExamHeader HeaderOf(const FrameSetExam& exam);
void StoreHeader(const ExamHeader& header, FrameSetExam& exam);

/// What stays with a slot when questions are inserted, deleted or moved by the commands of the form.
struct SlotPart {
  AttachmentList copies;
  int oralFlag = 0;
  std::u16string responseText;
  int responseValue = 0;

  bool operator==(const SlotPart&) const = default;
};

SlotPart SlotPartOf(const ExamQuestion& question);
void StoreSlotPart(const SlotPart& part, ExamQuestion& question);

/// Where the exam comes from. A save changes this, too, but that is not a step.
struct ExamOrigin {
  std::filesystem::path fileName;
  ReadDoubt readDoubt = ReadDoubt::None;
  int filesNotUnpacked = 0;
  std::shared_ptr<const ExamReadOutcome> lastRead;
};

ExamOrigin OriginOf(const EditorState& state);

struct ExamMoment {
  ExamHeader header;
  std::vector<ExamQuestion> questions;  ///< 501 slots, without their SlotPart
  std::vector<SlotPart> slotParts;      ///< 501
  LongAnswerFlags longAnswers;
  ExamOrigin origin;
  int current = 1;  ///< the question that is shown
  QuestionKind kind = kNoKind;
  QuestionForm form;
};

/// The form as showing the current question would fill it.
QuestionForm LoadedForm(const ExamMoment& moment);
QuestionForm LoadedForm(const FrameSetExam& exam, int number);

/// A question as a file would get it: with the form stored, if it is the current one.
ExamQuestion StoredQuestion(const ExamMoment& moment, std::size_t slot);
ExamQuestion StoredQuestion(const ExamEditor& editor, std::size_t slot);

/// The exam in the editor, all of it.
ExamMoment MomentOf(const ExamEditor& editor);

/// Visits the content of questions side by side: all but their SlotPart.
template <class Visitor, class... Question>
void VisitContent(Visitor&& visit, Question&... question) {
  visit(question.text...);
  for (std::size_t i = 0; i < kOptionCount; ++i) visit(question.options[i]...);
  visit(question.answerLetters...);
  visit(question.answerText...);
  visit(question.essayAnswer...);
  visit(question.kind...);
  visit(question.answerMask...);
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    visit(question.attachmentPaths[i]...);
    visit(question.attachmentNames[i]...);
  }
}

/// The same for forms.
template <class Visitor, class... Form>
void VisitForm(Visitor&& visit, Form&... form) {
  visit(form.title...);
  visit(form.text...);
  for (std::size_t i = 0; i < kOptionCount; ++i) visit(form.options[i]...);
  visit(form.answer...);
  visit(form.essay...);
  for (std::size_t i = 0; i < kOptionCount; ++i) visit(form.checks[i]...);
  visit(form.random...);
  visit(form.number...);
}

bool SameContent(const ExamQuestion& a, const ExamQuestion& b);

}  // namespace quorvantis
