// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFiles.h"
#include "shell/commands/ExportCommand.h"
#include "shell/commands/ExportParagraphs.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

using Paragraphs = std::vector<std::u16string>;

/// Ranges that the score setup left unused are all zeros, and are exported like the others.
TEST(ExportParagraphs, OfQuestionsAndScores) {
  ExamPaper exam;
  exam.title = u"Title";
  exam.questionCount = 11;
  exam.Question(1).text = u"Why?\r\nSay ";
  exam.Question(1).options = {u"a", u"", u" c", u"", u"e"};
  exam.Question(1).answerLetters = u"ac";
  exam.Question(3).text = u"3.";
  exam.Question(3).answerText = u"red<@>blue<@>";
  exam.Question(3).essayAnswer = u"long";
  exam.Question(4).options[3] = u"without a text";
  exam.Question(5).kind = exam.Question(6).kind = QuestionKind::Oral;
  exam.Question(5).text = u"Tell";
  exam.Question(6).answerText = u"oral without a text";
  exam.Question(12).text = u"not counted";
  Paragraphs expected{u"Title", u"Score Distribution", u"Each question has the same scores"};
  const Paragraphs questions{u"1.Why?\r\nSay ",
                             u"A. a",
                             u"C.  c",
                             u"E. e",
                             u"3.3.",
                             u"red<@>blue<@>",
                             u"long",
                             u"D. without a text",
                             u"5.Tell",
                             u"(Oral subject)",
                             u"oral without a text"};
  expected.insert(expected.end(), questions.begin(), questions.end());
  EXPECT_EQ(ExportParagraphs(exam, BuiltInStrings()), expected);
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreValue[0] = 12.345F;
  exam.scoreFrom[9] = exam.scoreTo[9] = 0;
  exam.scoreValue[9] = 0;
  expected = {u"Title", u"Score Distribution", u"Question1-----Question10,score12.35",
              u"Question11-----Question20,score1.00", u"Question0-----Question0,score0.00"};
  expected.insert(expected.end(), questions.begin(), questions.end());
  EXPECT_EQ(ExportParagraphs(exam, BuiltInStrings()), expected);
}

/// A writer whose result the test chooses.
struct RecordingWriter : WordWriter {
  WordWriteOutcome outcome;
  std::vector<WordWriteJob> jobs;
  WordWriteOutcome Write(const WordWriteJob& job) override {
    jobs.push_back(job);
    return outcome;
  }
};

TEST(ExportCommand, TellsHowItWent) {
  const TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world(folder / "app", files);
  FrameSetExam exam(world.services);
  exam.Question(2).text = u"t";
  RecordingWriter writer;
  const auto check = [&](WordWriteOutcome outcome, const Paragraphs& errors) {
    world.dialogs.errors.clear();
    writer.outcome = std::move(outcome);
    ExportCommand(exam, writer, nullptr).ExportWordDocument("/x/a.doc");
    EXPECT_EQ(world.dialogs.errors, errors);
  };
  check({}, {});
  EXPECT_EQ(world.dialogs.done, Paragraphs{u"[118 %s]"});
  EXPECT_EQ(writer.jobs.at(0).paragraphs.back(), u"2.t") << "counted anew";
  check({WordWriteResult::WordProcessorMissing}, {u"[104 %s]"});
  check({WordWriteResult::WordProcessorFailed}, {u"[1002 /x/a.doc]"});
  check({WordWriteResult::CannotWrite, "/tmp/b", std::make_error_code(std::errc::io_error)},
        {u"[1062 /tmp/b]"});
  EXPECT_EQ(world.dialogs.done.size(), 1U);
}

}  // namespace
}  // namespace quorvantis::test
