// SPDX-License-Identifier: MIT
#include "ExamFileTest.h"

namespace quorvantis::test {
namespace {

class WriteExamFile : public ExamFileTest {
 protected:
  WriteExamFile() {
    exam.randomMode = RandomMode::Sequence;
    exam.scoreMode = ScoreMode::Custom;
    exam.scoreFrom = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    exam.scoreTo = {51, 52, 53, 54, 55, 56, 57, 58, 59, 60};
    exam.scoreValue.fill(12345.67F);
    exam.boundaryQuestion = 7;
  }

  std::u16string Attached(const char* name, std::string_view content) {
    return PathToText(WriteBytes(folder / "attached" / name, content));
  }

  /// Byte for byte, with only zeros after a terminator.
  void ExpectWritten(TypedExam typed) {
    typed.score = u"12345.6";
    EXPECT_TRUE(exam.WriteExamFile(target));
    EXPECT_TRUE(ReadBytes(target) == Type(AllForms()[0], typed, '\0').bytes);
    exam.Reset();
    exam.ReadExamFile(target);
  }

  const std::filesystem::path target = folder / "saved.exm";
};

TEST_F(WriteExamFile, WritesEveryFieldWhereItBelongs) {
  TypedExam typed{.title = std::u16string(256, u'T')};
  typed.files = {{u"exam.doc", "exam level"}, {u"gone.doc", ""}, {u"folder", ""}};
  typed.questions = {
      {u"0", u"lone \xD800 and \xDC00", {u"A", u"B", u"C", u"D", std::u16string(256, u'E')}, u"ae"},
      {u"0"},
      {u"3", std::u16string(4096, u'x'), {}, std::u16string(16, u'l')}};
  TypedQuestion& third = typed.questions[2];
  third.essay = std::u16string(4096, u'\u8A66');
  third.answer = std::u16string(256, u'r');
  third.files = {{u"first", "1"}, {std::u16string(128, u'n'), std::string(1200000, 'x')}};
  third.oralFlag = "\x01\0"s;
  typed.questions[1].files = {{u"gone.avi", ""}};

  const std::u16string cut = u"cut off";
  exam.title = typed.title + cut;
  exam.examAttachmentNames = {u"exam.doc", u"gone.doc", u"folder", u"", u"behind the end"};
  exam.examAttachmentPaths = {Attached("exam", "exam level"), PathToText(folder / "gone"),
                              PathToText(application)};
  ExamQuestion &first = exam.Question(1), &last = exam.Question(3);
  first.text = typed.questions[0].text;
  first.options = typed.questions[0].options;
  first.options[4] += cut;
  first.answerLetters = u"ae";
  first.oralFlag = 1;  // cannot be stored without an attachment
  exam.Question(2).attachmentPaths[0] = PathToText(folder / "gone");
  exam.Question(2).attachmentNames[0] = u"gone.avi";
  exam.Question(2).oralFlag = 2;  // neither off nor on
  last.kind = QuestionKind::Oral;
  last.text = third.text + cut;
  last.answerLetters = third.letters + cut;
  last.answerText = third.answer + cut;
  last.essayAnswer = third.essay + cut;
  last.attachmentPaths = {Attached("1", "1"), u"", u"", Attached("2", third.files[1].content)};
  last.attachmentNames = {u"first", u"a name without a path", u"", third.files[1].name + cut};
  last.oralFlag = 1;
  exam.Question(4).essayAnswer = u"an answer alone is not saved";
  ExpectWritten(typed);
  EXPECT_EQ(exam.Question(1).text, u"lone \xD800 and \xDC00");
  EXPECT_EQ(exam.Question(3).attachmentPaths[1], PathToText(work / std::string(128, 'n')));
  EXPECT_EQ(exam.examAttachmentPaths[1], PathToText(work / "gone.doc"));
  EXPECT_FALSE(std::filesystem::exists(work / "gone.doc"));
}

TEST_F(WriteExamFile, TakesTheLongFormByTheFlagAndForTheMarkerItself) {
  const std::u16string whole(1024, u'w'), marker = u"ExcessTextAns";
  const std::u16string answers[] = {whole + u"cut off", u"short", marker, whole};
  for (int n = 1; n <= 4; ++n) {
    exam.Question(n).kind = QuestionKind::FillIn;
    exam.Question(n).answerText = answers[n - 1];
  }
  world.longAnswerFlags.Set(1);
  world.longAnswerFlags.Set(2);
  ExpectWritten({.questions = {{.kind = u"1", .answer = marker, .longAnswer = whole},
                               {.kind = u"1", .answer = marker, .longAnswer = u"short"},
                               {.kind = u"1", .answer = marker, .longAnswer = marker},
                               {.kind = u"1", .answer = whole.substr(0, 256)}}});
  EXPECT_EQ(exam.Question(3).answerText, marker);
}

TEST_F(WriteExamFile, LeavesTheOldFileWhenAnAttachedFileShrinksMeanwhile) {
  const std::filesystem::path large = Attached("large", std::string(1200000, 'x'));
  exam.Question(1).attachmentPaths[0] = exam.Question(1).text = PathToText(large);
  WriteBytes(target, "old");
  world.progress.whileWorking = [&] { std::filesystem::resize_file(large, 600000); };
  EXPECT_FALSE(exam.WriteExamFile(target));
  EXPECT_EQ(world.dialogs.errors, Messages{u"[102 " + PathToText(target) + u"]\n[1136 %s]"});
  EXPECT_EQ(ReadBytes(target), "old");
  EXPECT_TRUE(exam.WriteExamFile(target)) << "as it is now";
}

}  // namespace
}  // namespace quorvantis::test
