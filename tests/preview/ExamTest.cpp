// SPDX-License-Identifier: MIT
// Exams in the browser, composed the way the window does it.
#include "AttachmentFiles.h"
#include "PreviewTest.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"

#include <random>

namespace quorvantis::test {
namespace {

class ExamTest : public PreviewTest {
 protected:
  ExamTest() {
    // Sources in pages begin at the first "~" of a path.
    app = std::filesystem::canonical(folder.Path()) / "a~b" / "c~d";
    previewFolder = app / "TEMP" / "ExamPreview";
    std::filesystem::create_directories(previewFolder);
    exam.SetHostMode(1);
  }

  /// A copy whose name differs from the name that the user sees.
  std::u16string Copy(const std::string& name, std::string_view bytes) {
    const std::string copy = std::to_string(++copies);
    return PathToText(WriteBytes(app / "~TEMP" / copy / ("0" + name), bytes));
  }

  ExamQuestion& AddQuestion() { return exam.Question(++exam.questionCount); }

  void ShowPrint() {
    pages.Clear();
    exam.WritePrintPage(app / "exam_Print.htm");
    Preview(app / "exam_Print.htm");
  }
  void ShowPreview() {
    exam.PrefixAttachmentPaths(1);
    pages.Clear();
    exam.WritePreview(previewFolder / "SEE.htm");
    Preview(previewFolder / "SEE.htm");
  }

  PosixFiles files;
  InterruptedProgress progress;
  RecordingWorld world{folder / "a~b" / "c~d", files, pages, progress};
  FrameSetExam exam{world.services};
  int copies = 0;
};

/// All characters that are special in a page, a script or a URL.
std::string StrangeName(std::mt19937& random) {
  static const std::vector<std::string> pieces{
      "\"", "'", "<",       ">",  "%", "#",   "?",    "&",     "&quot;", "\\", "\n", "\t",   " ",      "=",
      "~",  "a", "\" x=\"", "打", ";", "%41", "</b>", "`${1}", "\\\"",   "//", "..", ".jpg", "~TEMP/", "*"};
  std::string name;
  for (int length = std::uniform_int_distribution(1, 12)(random); length > 0; --length) {
    name += pieces[std::uniform_int_distribution<std::size_t>(0, pieces.size() - 1)(random)];
  }
  std::erase(name, '/');
  return name;
}

TEST_F(ExamTest, FilesOfAnyNameAppearOnPaperAndInPreviews) {
  constexpr int kQuestions = 25;
  std::mt19937 random(GTEST_FLAG_GET(random_seed));
  QStringList names;
  for (int n = 1; n <= kQuestions; ++n) {
    ExamQuestion& question = AddQuestion();
    const std::string name = StrangeName(random);
    question.attachmentNames = {PathToText(name + ".bmp"), PathToText(name + ".wav")};
    question.attachmentPaths = {Copy(name + ".bmp", SmallBitmap()), Copy(name + ".wav", Silence())};
    names << QString::fromStdU16String(question.attachmentNames[1]).toUtf8();
  }
  const QString count = QString::number(kQuestions);
  const auto allAppear = [&](const QString& frame) {
    const auto all = [&](const char* tag, const char* condition) {
      const QString found = "Array.from(%1.document.querySelectorAll('%2')).filter(e => %3).length === %4";
      return Becomes(found.arg(frame, tag, condition, count));
    };
    EXPECT_TRUE(all("img", "e.naturalWidth === 2"));
    EXPECT_TRUE(all("audio", "e.readyState > 0"));
    const QString told =
        "Array.from(" + frame + ".document.querySelectorAll('.quorvantis-name'), e => e.textContent)";
    EXPECT_EQ(Evaluate(told).toStringList(), names);
  };
  ShowPrint();
  allAppear("window");
  ShowPreview();
  allAppear("window");
  ShowPrint();
  allAppear("window");

  // The exam's files, one in a frame of its own and one in a group; the other files have two prefixes now.
  exam.examAttachmentNames = {u"\"text\".txt", u"\"picture\".bmp"};
  exam.examAttachmentPaths = {Copy("\"text\".txt", "lines"), Copy("\"#?picture\".bmp", SmallBitmap())};
  ShowPreview();
  allAppear("window.frames[0]");
  EXPECT_EQ(Evaluate("window.frames[1].frames[0].document.body.innerText.trim()").toString(), "lines");
  EXPECT_TRUE(Becomes("window.frames[1].frames[1].document.images[0].naturalWidth === 2"));
}

TEST_F(ExamTest, TheOralFlagMutesWhatItsQuestionPlays) {
  for (const int oralFlag : {0, 1}) {
    ExamQuestion& question = AddQuestion();
    question.kind = QuestionKind::Oral;
    question.oralFlag = oralFlag;
    question.attachmentNames = {u"a.wav", u"clip.swf"};
    question.attachmentPaths = {Copy("a.wav", Silence()), Copy("clip.swf", RedFlash())};
  }
  flashPlayer = QUORVANTIS_FLASH_PLAYER;
  ShowPreview();
  ASSERT_TRUE(Becomes("document.querySelectorAll('audio').length === 2"));
  Evaluate("document.querySelectorAll('audio').forEach(a => { a.muted = false; a.volume = 0.5; a.play() })");
  EXPECT_TRUE(Becomes("document.querySelectorAll('audio')[1].muted"));
  EXPECT_FALSE(Evaluate("document.querySelectorAll('audio')[0].muted").toBool());
  if (!std::filesystem::exists(flashPlayer / "ruffle.js")) GTEST_SKIP() << "see scripts/install-flash-player";
  EXPECT_TRUE(Becomes("document.querySelectorAll('ruffle-embed')[1].volume === 0"));
  EXPECT_EQ(Evaluate("document.querySelectorAll('ruffle-embed')[0].volume").toInt(), 1);
}

TEST_F(ExamTest, PicturesFitAndAreShownWholeByAClick) {
  ExamQuestion& question = AddQuestion();
  question.attachmentNames[0] = u"photo.bmp";
  QImage photo(4000, 3000, QImage::Format_RGB32);
  photo.fill(Qt::red);
  const std::u16string copy = Copy("photo.bmp", "");
  photo.save(QString::fromStdU16String(copy), "BMP");
  question.attachmentPaths[0] = copy;
  ShowPreview();
  ASSERT_TRUE(Becomes("document.images[0].naturalWidth === 4000"));
  const QString fits =
      "document.documentElement.scrollWidth <= innerWidth && "
      "Math.abs(document.images[0].width / document.images[0].height - 4 / 3) < 0.01";
  EXPECT_TRUE(Becomes(fits));
  Evaluate("document.images[0].click()");
  EXPECT_TRUE(Becomes("document.images[1].width === 4000"));
  Evaluate("document.images[1].click()");
  EXPECT_TRUE(Becomes("document.images.length === 1 && " + fits));
}

}  // namespace
}  // namespace quorvantis::test
