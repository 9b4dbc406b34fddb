// SPDX-License-Identifier: MIT
#include "EditorTest.h"

#include <functional>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::u16string>;

class SavingCheckTest : public EditorTest {
 protected:
  /// The message before a save, and the file after it.
  Lines Save(LossAnswer answer) {
    world.dialogs.lossAnswer = answer;
    world.dialogs.losses.clear();
    editor.files.SaveExam();
    return world.dialogs.losses;
  }
  void Reopen() {
    editor.state.MarkSaved();
    editor.files.OpenExam(file);
  }

  const fs::path file = folder / "a.exm";
};

TEST_F(SavingCheckTest, StoresWholeOnTheUsersWord) {
  Type(FormField::Text, u"one");
  SaveAs(file);
  const std::string before = ReadBytes(file);
  exam.Question(2).text = u"two";
  exam.Question(2).kind = QuestionKind::FillIn;
  exam.Question(2).answerText = std::u16string(300, u'x');  // as loaded and not stored again
  exam.Question(4).kind = QuestionKind::Essay;
  exam.Question(4).essayAnswer = u"answer";
  const Lines losses{u"[1200 2]", u"[1200 4]", u"(can be stored)"};

  editor.state.MarkModified();
  EXPECT_EQ(Save(LossAnswer::GoBack), losses);
  EXPECT_EQ(ReadBytes(file), before);
  EXPECT_TRUE(Modified());

  EXPECT_EQ(Save(LossAnswer::StoreWhole), losses);
  EXPECT_FALSE(Modified());
  Reopen();
  EXPECT_EQ(exam.Question(2).answerText.size(), 300U);
  EXPECT_EQ(exam.Question(4).text, u"[1244 %s]");
  EXPECT_EQ(exam.Question(4).essayAnswer, u"answer");

  exam.Question(6).answerLetters = u"a";
  EXPECT_EQ(Save(LossAnswer::SaveAnyway), (Lines{u"[1200 6]", u"(can be stored)"}));
  EXPECT_FALSE(Modified());

  editor.files.SetLongAnswersWhole(true);
  exam.Question(2).answerText.assign(1025, u'x');
  exam.Question(3).kind = QuestionKind::FillIn;
  exam.Question(3).answerText.assign(1024, u'x');
  exam.Question(6).answerLetters.clear();
  EXPECT_EQ(Save(LossAnswer::SaveAnyway), Lines{u"[1200 2]"}) << "what the long form cuts";
  Reopen();
  EXPECT_EQ(exam.Question(3).answerText.size(), 1024U);
}

TEST_F(SavingCheckTest, AsksWhoWantsToSaveAndChangesNothingBefore) {
  struct Row {
    SaveAnswer save;
    LossAnswer loss;
    bool asksAboutLosses, goesOn;
  };
  const Row rows[] = {{SaveAnswer::No, LossAnswer::GoBack, false, true},
                      {SaveAnswer::Cancel, LossAnswer::GoBack, false, false},
                      {SaveAnswer::Yes, LossAnswer::GoBack, true, false},
                      {SaveAnswer::Yes, LossAnswer::SaveAnyway, true, true}};
  const auto isLeft = [&](auto command) { return command(), exam.Question(4).essayAnswer.empty(); };
  const std::function<bool()> commands[] = {[&] { return isLeft([&] { editor.files.NewExam(); }); },
                                            [&] { return isLeft([&] { editor.files.OpenExam(file); }); },
                                            [&] { return editor.files.ConfirmClose(); }};
  editor.files.SetLongAnswersWhole(true);
  for (const auto& command : commands) {
    for (const Row& row : rows) {
      editor.files.StartNewExam();
      SaveAs(file);
      exam.Question(4).essayAnswer = u"not stored by a file";
      Type(FormField::Title, u"typed");
      Type(FormField::Text, u"typed");
      const std::u16string longAnswer(300, u'x');
      Type(FormField::Answer, longAnswer);
      Turn();
      const bool flagged = world.longAnswerFlags.IsSet(1);
      const auto isAsItWas = [&] {
        return exam.title.empty() && exam.Question(1).answerText.empty() && Modified() &&
               world.longAnswerFlags.IsSet(1) == flagged;
      };
      world.dialogs.answers = {row.save};
      world.dialogs.lossAnswer = row.loss;
      world.dialogs.losses.clear();
      EXPECT_EQ(command(), row.goesOn);
      EXPECT_EQ(world.dialogs.questions.back(), u"[105 " + AsText(file) + u"]");
      EXPECT_EQ(!world.dialogs.losses.empty(), row.asksAboutLosses);
      EXPECT_TRUE(row.goesOn || isAsItWas());
      editor.files.StartNewExam();
    }
  }
}

TEST_F(SavingCheckTest, AnEmptyFileIsNotLostButOneThatIsGone) {
  Type(FormField::Text, u"one");
  editor.attachments.AttachQuestionFile(WriteBytes(folder / "empty.txt", ""));
  editor.attachments.AttachQuestionFile(WriteBytes(folder / "note.txt", "the note"));
  editor.attachments.AttachExamFile(WriteBytes(folder / "full.txt", "full"));
  SaveAs(file);
  for (int i = 0; i < 2; ++i) {
    Reopen();
    EXPECT_EQ(editor.attachments.QuestionList().missing, (std::vector{false, false}));
    EXPECT_EQ(Save(LossAnswer::GoBack), Lines());
  }
  for (const auto& path : {exam.examAttachmentPaths[0], exam.Question(1).attachmentPaths[1]}) {
    EXPECT_TRUE(fs::remove(path));
  }
  EXPECT_EQ(Save(LossAnswer::GoBack), (Lines{u"[1209 full.txt]", u"[1200 1]"}));
}

TEST_F(SavingCheckTest, TellsOfFilesThatAreNotWhatWasRead) {
  Type(FormField::Text, u"one");
  SaveAs(file);
  WriteBytes(file, "another program");
  EXPECT_EQ(Save(LossAnswer::GoBack), Lines{u"[1245 %s]"});
  EXPECT_EQ(ReadBytes(file), "another program");

  Reopen();  // it is not an exam
  EXPECT_EQ(Save(LossAnswer::GoBack), Lines{u"[1211 %s]"});
  EXPECT_EQ(ReadBytes(file), "another program");
  Type(FormField::Text, u"an exam");
  Save(LossAnswer::SaveAnyway);
  EXPECT_EQ(Save(LossAnswer::GoBack), Lines());

  fs::resize_file(file, fs::file_size(file) - 10);
  Reopen();
  EXPECT_EQ(Save(LossAnswer::GoBack), Lines{u"[1210 %s]"});
  fs::remove(file);
  EXPECT_EQ(Save(LossAnswer::GoBack), Lines()) << "nothing is left to lose";
}

}  // namespace
}  // namespace quorvantis::test
