// SPDX-License-Identifier: MIT
#include "editor/EditorTest.h"
#include "editor/WorkCopies.h"
#include "taking/PeekedQuestion.h"
#include "text/PathText.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class PeekingTest : public EditorTest {
 protected:
  PeekingTest() {
    exam.Question(1).text = u"first";
    exam.Question(2).text = u"second";
    exam.Question(3).text = u"third";
    ShowQuestion(1);
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "other.png", "of another question"));
    ShowQuestion(2);
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "leaf.PNG", "pixels"));
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "sound.mp3", "noise"));
    editor.attachments.AttachQuestionFile(WriteBytes(folder / "empty.gif", ""));
    SaveAs(file);
    editor.files.NewExam();
  }
  PeekedQuestion Peek(int number) { return PeekedQuestion(world.services, place, file, number); }

  const fs::path file = folder / "other.exm";
  const fs::path place = AttachmentWorkRoot(folder / "app") / ".looked-at-7";
};

TEST_F(PeekingTest, UnpacksThePicturesOfOneQuestionForAWhile) {
  {
    const PeekedQuestion peeked = Peek(2);
    ASSERT_TRUE(peeked.IsThere());
    const ExamQuestion& question = peeked.Question();
    EXPECT_EQ(question.text, u"second");
    EXPECT_EQ(ReadBytes(TextToPath(question.attachmentPaths[0])), "pixels");
    EXPECT_EQ(TextToPath(question.attachmentPaths[0]).extension(), ".png");
    for (const std::size_t slot : {1U, 2U}) {
      EXPECT_FALSE(question.attachmentPaths[slot].empty());
      EXPECT_FALSE(fs::exists(TextToPath(question.attachmentPaths[slot])));
    }
    EXPECT_EQ(question.attachmentNames[1], u"sound.mp3");
    EXPECT_EQ(std::distance(fs::directory_iterator(place), {}), 1);
  }
  EXPECT_FALSE(fs::exists(place));
  EXPECT_TRUE(world.dialogs.errors.empty());
}

TEST_F(PeekingTest, ShowsNothingThatTheFileDoesNotHoldWhole) {
  EXPECT_FALSE(Peek(4).IsThere());
  const std::string bytes = ReadBytes(file);
  for (std::size_t size = 0; size < bytes.size(); size += 641) {
    WriteBytes(file, bytes.substr(0, size));
    EXPECT_FALSE(Peek(3).IsThere()) << size;
    const PeekedQuestion second = Peek(2);
    const bool isThere = second.IsThere();
    const std::string picture = isThere ? ReadBytes(TextToPath(second.Question().attachmentPaths[0])) : "";
    EXPECT_EQ(picture, isThere ? "pixels" : "") << size;
  }
  WriteBytes(file, "a letter to my aunt");
  EXPECT_FALSE(Peek(1).IsThere());
  fs::remove(file);
  EXPECT_FALSE(Peek(1).IsOpened());
  EXPECT_FALSE(fs::exists(place));
}

}  // namespace
}  // namespace quorvantis::test
