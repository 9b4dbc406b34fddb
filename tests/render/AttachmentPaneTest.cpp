// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/AttachmentPane.h"

#include <algorithm>
#include <set>

namespace quorvantis::test {
namespace {

using AttachmentPaneTest = RenderTest;

/// A file of no class keeps the frame number of the previous file in its place, so the order matters.
TEST_F(AttachmentPaneTest, ArrangesFilesInFrames) {
  const std::vector<std::u16string> rows[] = {{u"a.wav", u"b.gif", u"c.avi"},
                                              {u"x.doc", u"y.doc", u"z.doc"},
                                              {u"a.DOC"},
                                              {u"doc"},  // a path without a dot is its own extension
                                              {u"a.wav", u"x.rtf", u"y.doc"},
                                              {u"a.jpg", u"x.doc", u"b.gif", u"c.swf"},
                                              {u"p.jpg", u"x.doc", u"q.swf", u"r.mp3", u"y.xls"},
                                              {u"p.jp", u"p.peg", u"a/doc", u"x.doc"},  // whole words only
                                              {u"x.doc", u"y.doc"},
                                              {u"a.png", u"b.rtf", u"x.doc", u"y.doc"},
                                              std::vector<std::u16string>(10, u"a.doc")};
  std::string all;
  const auto write = [&](const std::vector<std::u16string>& names) {
    exam.examAttachmentPaths.fill({});
    Attach(names);
    for (std::size_t i = 0; i < names.size(); ++i) exam.examAttachmentPaths[i].insert(0, u"/pr/f/");
    world.pages.Clear();
    AttachmentPane(exam).WriteAttachmentPane(pages / "SEE2.htm");
    for (const int type : exam.examAttachmentTypes) all += std::to_string(type) + " ";
    for (const int kind : exam.attachmentPageWriter.frameKinds) all += std::to_string(kind) + " ";
    for (const auto& [file, text] : world.pages.pages) {
      all += "\n== " + file.filename().string() + "\n" + Utf16ToUtf8(text);
      EXPECT_EQ(fs::file_size(file), text.size() + 1) << file;
    }
  };
  for (const auto& names : rows) write(names);
  EXPECT_EQ(exam.attachmentPageWriter.locationMode, 1);
  exam.attachmentPageWriter.SetMediaSuppressed(0);
  write(rows[0]);
  EXPECT_EQ(ReadBytes(pages / "SEE2.htm"), Page(pages / "SEE2.htm") + '\0');
  ExpectGolden("panes.htm", Replaced(all, App(), "APP"));
}

TEST_F(AttachmentPaneTest, HasNoItemsForNewerDocuments) {
  Attach({u"/pr/f/report.docx", u"/pr/f/report.doc", u"/pr/f/clip.swf"});
  std::fill_n(exam.examAttachmentTypes.begin(), 2, 1);
  EXPECT_EQ(AttachmentPane(exam).BuildPaneBody(0),
            u"<BODY>\r\n<iframe width=690 height=350 src=\"/f/report.doc\" ></iframe><br></BODY>\r\n");
}

TEST_F(AttachmentPaneTest, FramesetEnablesMediaAfterTheQuestionPage) {
  Add(QuestionKind::Oral, u"Q");
  Attach({u"/ap/app/TEMP/ExamPreview/~tt/a.wav"});
  exam.PrefixAttachmentPaths(1);
  exam.WritePreview(pages / "SEE.htm");
  EXPECT_TRUE(Page(pages / "SEE.htm")
                  .ends_with("<FRAMESET COLS=\"50,50\">\r\n<FRAME SRC=\"SEE1.htm\"  NOSIZE>\r\n"
                             "<FRAME SRC=\"SEE2.htm\"  NOSIZE>\r\n</FRAMESET>\r\n</HTML>\r\n"));
  EXPECT_NE(Page(pages / "SEE1.htm").find("[147 %s]"), std::string::npos);
  EXPECT_NE(Page(pages / "SEE2.htm").find("embed src=\\\"/ap/app/TEMP/ExamPreview/~tt/a.wav\\\""),
            std::string::npos);
}

TEST_F(RenderTest, ShowsNoFileThatADisplayNameNames) {
  Attach({u"/etc/hostname", u"/home/a.gif"});
  exam.displayNamesAmongPaths = {u"/etc/hostname"};
  exam.WritePreview(pages / "SEE.htm");
  std::set<fs::path> shown;
  for (const PageSource& source : world.pages.sources) shown.insert(source.file);
  EXPECT_TRUE(shown.contains("/home/a.gif") && !shown.contains("/etc/hostname"));
}

TEST_F(RenderTest, EachPathCountsTheUnfinishedPreviewsThatShowedIt) {
  Attach({u"/home/a", u"abc"});
  const std::pair<int, std::u16string> rows[] = {{1, u"/ho/home/a"}, {1, u"/ho/ho/home/a"},
                                                 {0, u"/ho/home/a"}, {0, u"/home/a"},
                                                 {0, u"/home/a"},    {1, u"/ho/home/a"}};
  for (const auto& [on, path] : rows) {
    exam.PrefixAttachmentPaths(on);
    EXPECT_EQ(exam.PathOnPages(u"/home/a"), path);
    EXPECT_EQ(exam.PathOnPages(u"abc"), u"abc");
  }
  Add(QuestionKind::Essay).attachmentPaths[0] = u"/tmp/b";
  exam.Question(2).attachmentPaths[0] = u"/tmp/not counted";
  exam.PrefixAttachmentPaths(1);
  EXPECT_EQ(exam.PathOnPages(u"/home/a"), u"/ho/ho/home/a");
  EXPECT_EQ(exam.PathOnPages(u"/tmp/b"), u"/tm/tmp/b") << "attached after the first preview";
  EXPECT_EQ(exam.PathOnPages(u"/tmp/not counted"), u"/tmp/not counted");
  exam.PrefixAttachmentPaths(0);
  EXPECT_EQ(exam.PathOnPages(u"/home/a"), u"/ho/home/a");
  EXPECT_EQ(exam.PathOnPages(u"/tmp/b"), u"/tmp/b");
  exam.Reset();
  EXPECT_EQ(exam.PathOnPages(u"/home/a"), u"/home/a");
}

}  // namespace
}  // namespace quorvantis::test
