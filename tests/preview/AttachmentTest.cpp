// SPDX-License-Identifier: MIT
// Every class of attached files appears, or the page says why it does not.
#include "AttachmentFiles.h"
#include "PreviewTest.h"

namespace quorvantis::test {
namespace {

class AttachmentTest : public PreviewTest {
 protected:
  void PreviewWith(const std::string& body) { Preview(Compose("SEE.htm", body)); }
  QString FrameText() {
    return Evaluate("window.frames[0].document.body ? window.frames[0].document.body.innerText.trim() : ''")
        .toString();
  }
  /// All text of the page and its frames.
  std::string Said() {
    return Evaluate("[window, ...Array.from(window.frames)].map(w => w.document.body.innerText).join('\\n')")
        .toString()
        .toStdString();
  }
  bool Says(const std::string& text) {
    return WaitFor([&] { return Said().find(text) != std::string::npos; }, 5000);
  }
};

TEST_F(AttachmentTest, DocumentsAsPicturesOfTheirPages) {
  if (programs.office.isEmpty() || programs.pdfImages.isEmpty())
    GTEST_SKIP() << "no LibreOffice or poppler-utils";
  Attach("paper.doc", RichText("Photosynthesis"));
  PreviewWith("<iframe width=690 height=350 src=\"~TEMP/home/paper.doc\" ></iframe><br>");
  EXPECT_EQ(FrameText(), QString("Preparing paper.doc"));
  EXPECT_TRUE(
      Becomes("window.frames[0].document.images.length > 0 && "
              "window.frames[0].document.images[0].naturalWidth > 500"));
  // Now the content is known, under any name.
  Attach("copy.doc", RichText("Photosynthesis"));
  PreviewWith("<iframe width=690 height=350 src=\"~TEMP/home/copy.doc\" ></iframe><br>");
  EXPECT_EQ(Evaluate("window.frames[0].document.images.length").toInt(), 1);
}

TEST_F(AttachmentTest, FilmsOfOldKindsPlayAndPdfPagesArePictures) {
  if (programs.media.isEmpty() || programs.pdfImages.isEmpty()) GTEST_SKIP() << "no ffmpeg or poppler-utils";
  ASSERT_TRUE(MakeOldFilm(AttachMissing("film.avi")));
  Attach("paper.pdf", kPortable);
  PreviewWith(ItemOf("~TEMP/home/film.avi") + ItemOf("~TEMP/home/paper.pdf"));
  const QString all = "[window, ...Array.from(window.frames)].some(w => w.document.querySelector('%1')?.%2)";
  EXPECT_TRUE(Becomes(all.arg("video", "videoWidth > 0")));
  EXPECT_TRUE(Becomes(all.arg("img", "naturalWidth > 500")));
}

TEST_F(AttachmentTest, WhatIsMissingOrDamagedIsNamed) {
  if (programs.media.isEmpty()) GTEST_SKIP() << "no ffmpeg";
  std::string body;
  for (const std::string name : {"noise.xls", "noise.jpg", "noise.avi", "noise.xyz"}) {
    Attach(name, "neither this nor that");
    body += ItemOf("~TEMP/home/" + name);
  }
  const std::vector<std::string> gone{"a.ppt", "a.txt", "a.avi", "a.wav", "a.xyz", "a.swf", "50%#1?.jpg"};
  for (const std::string& name : gone) {
    AttachMissing(name);
    body += ItemOf("~TEMP/home/" + name);
  }
  PreviewWith(body);
  for (const char* name : {"noise.xls", "noise.jpg", "noise.avi", "noise.xyz"}) {
    EXPECT_TRUE(Says(name + std::string(" cannot appear"))) << Said();
  }
  for (const std::string& name : gone) EXPECT_TRUE(Says(name + " is gone")) << Said();
  EXPECT_EQ(Evaluate("document.images.length").toInt(), 0) << "no picture of a broken picture";
}

TEST_F(AttachmentTest, WithoutTheProgramsTheirNamesAreTold) {
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "/nowhere");
  programs = ConverterPrograms::Find();
  qputenv("PATH", path);
  std::string body;
  for (const std::string name : {"a.doc", "a.pptx", "a.pdf", "a.avi", "a.wma", "a.swf"}) {
    Attach(name, "content");
    body += ItemOf("~TEMP/home/" + name);
  }
  PreviewWith(body);
  for (const char* text : {"a.doc needs LibreOffice", "a.pptx needs LibreOffice", "a.pdf needs poppler-utils",
                           "a.avi needs ffmpeg", "a.wma needs ffmpeg", "a.swf needs Ruffle"}) {
    EXPECT_TRUE(Says(text)) << Said();
  }
}

TEST_F(AttachmentTest, SoundsPlayByThemselvesOnlyWhereThePageSaysSo) {
  Attach("a.wav", Silence());
  PreviewWith(PlayerScript("~TEMP\\\\home\\\\a.wav", 1));
  EXPECT_TRUE(Becomes("document.querySelector('audio').currentTime > 0.1"));
  PreviewWith(PlayerScript("~TEMP/home/a.wav", 0));
  EXPECT_TRUE(Becomes("document.querySelector('audio').readyState > 0"));
  EXPECT_TRUE(Evaluate("document.querySelector('audio').paused").toBool());
}

TEST_F(AttachmentTest, LargeFilesAreNotReadIntoMemory) {
  const auto residentMegabytes = [] {
    long long total = 0;
    long long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * 4096 >> 20;
  };
  constexpr std::uint32_t kSize = 3'000'000'000;
  const auto file = Attach("large.wav", RecordingHead(kSize));
  std::filesystem::resize_file(file, kSize);
  const auto before = residentMegabytes();
  PreviewWith(PlayerScript("~TEMP/home/large.wav"));
  EXPECT_TRUE(Becomes("document.querySelector('audio').readyState > 0"));
  EXPECT_LT(residentMegabytes() - before, 200);
}

}  // namespace
}  // namespace quorvantis::test
