// SPDX-License-Identifier: MIT
#include "model/AnswerLetters.h"
#include "model/ExamPaper.h"
#include "model/document/FrameSetExam.h"
#include "text/NumberText.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvantis {

/// Here the document only keeps the address.
struct ExamServices {};

namespace {

auto Moving(const ExamQuestion& q) {
  return std::tie(q.text, q.options, q.answerLetters, q.answerText, q.essayAnswer, q.kind, q.answerMask);
}
auto Staying(const ExamQuestion& q) {
  return std::tie(q.attachmentPaths, q.attachmentNames, q.responseText, q.responseValue);
}
auto Lasting(const ExamQuestion& q) {
  return std::tie(q.attachmentCopies, q.oralFlag);
}

/// A value in every field, different for every number.
ExamQuestion Filled(int number) {
  const std::u16string id = FormatInteger(number);
  ExamQuestion q;
  q.text = q.answerLetters = q.answerText = q.essayAnswer = q.responseText = id;
  q.options = {u"a" + id, u"b" + id, u"c" + id, u"d" + id, u"e" + id};
  q.kind = static_cast<QuestionKind>(1 + number % 3);
  q.attachmentPaths = q.attachmentNames = q.attachmentCopies = {id, id};
  q.responseValue = q.answerMask = q.oralFlag = 1 + number;
  return q;
}

void FillSlots(ExamPaper& exam) {
  for (int n = 0; n <= kMaxQuestions; ++n) exam.Question(n) = Filled(n);
}

/// Every slot n has the moving fields of question `origin(n)`, or empty ones if that is -1, and has kept all
/// others.
template <class Origin>
void ExpectSlots(const ExamPaper& exam, Origin origin) {
  for (int n = 0; n <= kMaxQuestions; ++n) {
    const ExamQuestion& question = exam.Question(n);
    ASSERT_EQ(Moving(question), Moving(origin(n) < 0 ? ExamQuestion() : Filled(origin(n)))) << "slot " << n;
    ASSERT_EQ(Staying(question), Staying(Filled(n))) << "slot " << n;
    ASSERT_EQ(Lasting(question), Lasting(Filled(n))) << "slot " << n;
  }
}

TEST(ExamPaper, DeleteClosesTheGapAndLeavesAKindInTheLastSlot) {
  for (const int deleted : {1, 3, 499, 500}) {
    ExamPaper exam;
    FillSlots(exam);
    exam.DeleteQuestion(deleted);
    EXPECT_EQ(exam.Question(500).kind, Filled(500).kind);
    exam.Question(500).kind = QuestionKind::Choice;
    ExpectSlots(exam, [&](int n) { return n == 500 ? -1 : n < deleted ? n : n + 1; });
  }
}

TEST(ExamPaper, InsertOpensAnEmptyChoiceAndLosesTheLastQuestion) {
  for (const int inserted : {0, 1, 3, 499}) {
    ExamPaper exam;
    FillSlots(exam);
    exam.InsertQuestion(inserted);
    ExpectSlots(exam, [&](int n) { return n == inserted ? -1 : n < inserted ? n : n - 1; });
  }
}

TEST(ExamPaper, IgnoresQuestionsThatAreNotThere) {
  ExamPaper exam;
  FillSlots(exam);
  for (const int n : {-1, 0, 501, 1 << 30}) exam.DeleteQuestion(n);
  for (const int n : {-1, 500, 501, 1 << 30}) exam.InsertQuestion(n);
  ExpectSlots(exam, [](int n) { return n; });
}

TEST(ExamPaper, CountsUpToTheLastTextOptionOrFillInAnswer) {
  ExamPaper exam;
  const auto expectCount = [&](int count) {
    exam.CountQuestions();
    EXPECT_EQ(exam.questionCount, count);
  };
  exam.questions[0].text = u"x";
  exam.questions[7] = Filled(7);
  exam.questions[7].text = exam.questions[7].answerText = u"";
  exam.questions[7].options = {};
  expectCount(0);
  exam.questions[1].text = u"x";
  expectCount(1);
  exam.questions[3].options[4] = u" ";
  expectCount(3);
  exam.questions[500].answerText = u"x";
  expectCount(500);
}

TEST(FrameSetExam, ResetEmptiesTheExamButKeepsWhatIsStillToBeDeleted) {
  ExamServices services;
  FrameSetExam exam(services);
  FillSlots(exam);
  exam.SetHostMode(1);
  exam.title = u"title";
  exam.randomMode = RandomMode::Sequence;
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreFrom.fill(9), exam.scoreTo.fill(9), exam.scoreValue.fill(9);
  exam.questionState.assign(kQuestionSlots, 3);
  for (auto* list : {&exam.examAttachmentPaths, &exam.examAttachmentNames, &exam.examAttachmentCopies})
    list->fill(u"x");
  exam.examAttachmentTypes.fill(4), exam.attachmentPageWriter.frameKinds.fill(4);
  exam.boundaryQuestion = exam.questionCount = exam.examFilesUnpacked = exam.questionFilesUnpacked = 1;
  exam.workFolder = u"17";

  exam.Reset();

  for (int n = 1; n <= kMaxQuestions; ++n) {
    ASSERT_EQ(Moving(exam.Question(n)), Moving({})) << "slot " << n;
    ASSERT_EQ(Staying(exam.Question(n)), Staying({})) << "slot " << n;
    ASSERT_EQ(Lasting(exam.Question(n)), Lasting(Filled(n))) << "slot " << n;
  }
  const auto emptied = [](const FrameSetExam& e) {
    return std::tie(e.title, e.questionCount, e.boundaryQuestion, e.randomMode, e.scoreMode, e.scoreFrom,
                    e.scoreTo, e.scoreValue, e.examAttachmentPaths, e.examAttachmentNames,
                    e.examAttachmentTypes, e.attachmentPageWriter.frameKinds, e.questionState);
  };
  EXPECT_TRUE(emptied(exam) == emptied(FrameSetExam(services)));
  EXPECT_EQ(std::tie(exam.scoreFrom[9], exam.scoreTo[9], exam.scoreValue[9]), std::make_tuple(91, 100, 1.F));
  EXPECT_EQ(exam.examAttachmentCopies[9], u"x");
  EXPECT_EQ(std::tie(exam.examFilesUnpacked, exam.questionFilesUnpacked), std::make_tuple(1, 1));
  EXPECT_EQ(std::tie(exam.hostMode, exam.locationMode, exam.workFolder), std::make_tuple(1, 1, u"17"));
}

TEST(AnswerLetters, AddUpToTheMask) {
  const std::pair<std::u16string_view, int> rows[] = {
      {u"", 0}, {u"null", 0}, {u"ACE", 21}, {u"ba", 24}, {u"aa", 32}, {u"a,\u00E1 f", 16}, {u"\uFF41", 0}};
  for (const auto& [letters, mask] : rows) EXPECT_EQ(AnswerLettersToMask(letters), mask);
  for (int mask = 0; mask < 32; ++mask) EXPECT_EQ(AnswerLettersToMask(AnswerMaskToLetters(mask)), mask);
  EXPECT_EQ(AnswerMaskToLetters(21), u"ace");
}

}  // namespace
}  // namespace quorvantis
