// SPDX-License-Identifier: MIT
// Many previews with every kind of file: everything appears, every time. QUORVANTIS_PREVIEWS=200 for more.
#include "AttachmentFiles.h"
#include "PreviewTest.h"

#include <QImage>

namespace quorvantis::test {
namespace {

class EveryKindTest : public PreviewTest {
 protected:
  void AttachEveryKind() {
    const auto file = [&](const char* name) { return (app / "~TEMP/home" / name).string(); };
    for (const char* name : {"q.wav", "exam.wav"}) Attach(name, Silence());
    Attach("exam.txt", "a text");
    Attach("clip.swf", RedFlash());
    Attach("paper.doc", RichText("a document"));
    Attach("paper.pdf", kPortable);
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    for (const char* name : {"q.png", "exam.jpg"}) {
      ASSERT_TRUE(picture.save(QString::fromStdString(file(name))));
    }
    ASSERT_TRUE(MakeOldFilm(file("film.avi")));
    ASSERT_EQ(QProcess::execute("ffmpeg", {"-nostdin", "-v", "error", "-i", file("q.wav").c_str(),
                                           file("song.mp3").c_str()}),
              0);
  }

  /// Questions on the left; a group and a text on the right, as the page writers arrange them.
  std::filesystem::path ComposeExam() {
    std::string questions;
    for (const char* name :
         {"q.wav", "song.mp3", "film.avi", "clip.swf", "q.png", "paper.doc", "paper.pdf"}) {
      questions += ItemOf(std::string("~TEMP/home/") + name);
    }
    Compose("SEE1.htm", questions);
    Compose("SEE2_1.htm", ItemOf("~TEMP/home/exam.jpg") + ItemOf("~TEMP/home/exam.wav"));
    pages.Add(previewFolder / "SEE2.htm",
              u"<HTML><FRAMESET  ROWS=\"50%,25%,25%\"><FRAME  SRC=\"SEE2_1.htm\"><FRAME  "
              u"SRC=\"~TEMP/home/exam.txt\"><FRAME  SRC=\"~TEMP/home/q.wav\"></FRAMESET></HTML>");
    const auto main = previewFolder / "SEE.htm";
    pages.Add(main,
              u"<HTML><FRAMESET COLS=\"50,50\"><FRAME SRC=\"SEE1.htm\"><FRAME SRC=\"SEE2.htm\"></FRAMESET>");
    return main;
  }
};

TEST_F(EveryKindTest, AppearsEveryTime) {
  if (programs.media.isEmpty() || programs.office.isEmpty() || programs.pdfImages.isEmpty())
    GTEST_SKIP() << "no ffmpeg, LibreOffice or poppler-utils";
  flashPlayer = QUORVANTIS_FLASH_PLAYER;
  AttachEveryKind();
  const auto exam = ComposeExam();
  const auto script = QString::fromStdString(ReadBytes(QUORVANTIS_PROJECT "/tests/preview/pages/missing.js"));
  const int previews = qEnvironmentVariable("QUORVANTIS_PREVIEWS", "12").toInt();
  for (int i = 1; i <= previews; ++i) {
    Preview(exam);
    QString missing = "everything";
    EXPECT_TRUE(WaitFor([&] { return (missing = Evaluate(script).toString()).isEmpty(); }))
        << "preview " << i << ": " << missing.toStdString();
    if (i % 20 == 1) SaveLook(QString("every-kind-%1").arg(i));
    if (HasFailure()) break;
    Window().Leave();
  }
}

}  // namespace
}  // namespace quorvantis::test
