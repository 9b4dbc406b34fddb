// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/AttachmentPane.h"

#include <algorithm>
#include <set>

namespace quorvantis::test {
namespace {

const std::string kHead =
    "<HTML>\r\n<HEAD>\r\n<meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\r\n"
    "<TITLE></TITLE>\r\n</HEAD>\r\n";
const std::string kEnd = "</HTML>\r\n";

std::string Image(const std::string& source) {
  return "<img src=\"" + source + "\" ></img><br>";
}
std::string Frame(const std::string& source) {
  return "<FRAME  SRC=\"" + source + "\">\r\n";
}

class AttachmentPaneTest : public RenderTest {
 protected:
  /// The pane for files below "/f/", between its head and its end.
  std::string Pane(const std::vector<std::u16string>& names) {
    exam.examAttachmentPaths.fill({});
    Attach(names);
    for (std::size_t i = 0; i < names.size(); ++i) exam.examAttachmentPaths[i].insert(0, u"/pr/f/");
    AttachmentPane(exam).WriteAttachmentPane(pages / "SEE2.htm");
    const std::string page = Page(pages / "SEE2.htm");
    EXPECT_TRUE(page.starts_with(kHead) && page.ends_with(kEnd));
    return page.substr(kHead.size(), page.size() - kHead.size() - kEnd.size());
  }
  std::string Group(int frame) const { return (pages / ("SEE2_" + std::to_string(frame) + ".htm")).string(); }
};

TEST_F(AttachmentPaneTest, DistributesFilesOverFrames) {
  const struct {
    std::vector<std::u16string> names;
    int frames;
    std::vector<int> types;
    std::vector<int> kinds;
  } rows[] = {
      {{u"a.jpg", u"b.wav"}, 0, {1, 1}, {}},
      {{u"a.DOC"}, 1, {1}, {1}},
      {{u"doc"}, 1, {1}, {1}},  // a path without a dot is its own extension
      {{u"x.doc", u"p.jpg"}, 2, {1, 2}, {1, 2}},
      {{u"p.jpg", u"x.doc", u"q.swf", u"r.mp3", u"y.xls"}, 4, {1, 2, 3, 3, 4}, {2, 1, 2, 1}},
      {{u"x.rtf", u"y.doc", u"z.png"}, 1, {0, 1, 0}, {1}},
      {{u"p.jp", u"p.peg", u"a/doc", u"x.doc"}, 1, {0, 0, 0, 1}, {1}},  // whole words only
      {std::vector<std::u16string>(10, u"a.doc"), 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {}},
  };
  exam.attachmentPageWriter.SetMediaSuppressed(0);
  for (const auto& row : rows) {
    exam.Reset();
    Attach(row.names);
    EXPECT_EQ(AttachmentPane(exam).CountFrames(), row.frames);
    EXPECT_TRUE(std::equal(row.types.begin(), row.types.end(), exam.examAttachmentTypes.begin()));
    EXPECT_TRUE(std::equal(row.kinds.begin(), row.kinds.end(), exam.attachmentPageWriter.frameKinds.begin()));
  }
}

TEST_F(AttachmentPaneTest, LeavesSuppressedMediaOut) {
  EXPECT_EQ(Pane({u"a.wav", u"b.gif", u"c.avi"}), "<BODY>\r\n" + Image("/f/b.gif") + "</BODY>\r\n");
  exam.attachmentPageWriter.SetMediaSuppressed(0);
  EXPECT_NE(Pane({u"a.wav", u"b.gif"}).find("</script>\r\n" + Image("/f/b.gif")), std::string::npos);
}

TEST_F(AttachmentPaneTest, DividesTheHeightInWholePercent) {
  EXPECT_EQ(Pane({u"x.doc", u"y.doc", u"z.doc"}), "<FRAMESET  ROWS=\"33%,33%,34%\">\r\n" + Frame("/f/x.doc") +
                                                      Frame("/f/y.doc") + Frame("/f/z.doc") +
                                                      "</FRAMESET>\r\n");
}

TEST_F(AttachmentPaneTest, ShowsTheFirstFileThatIsNoMediaInASingleFrame) {
  EXPECT_EQ(Pane({u"a.doc"}), "<FRAMESET ROWS=\"*\">\r\n" + Frame("/f/a.doc") + "</FRAMESET>\r\n");
  EXPECT_EQ(Pane({u"a.wav", u"x.rtf", u"y.doc"}),
            "<FRAMESET ROWS=\"*\">\r\n" + Frame("/f/x.rtf") + "</FRAMESET>\r\n");
}

TEST_F(AttachmentPaneTest, WritesAPageForEachGroup) {
  EXPECT_EQ(Pane({u"a.jpg", u"x.doc", u"b.gif", u"c.swf"}), "<FRAMESET  ROWS=\"33%,33%,34%\">\r\n" +
                                                                Frame(Group(1)) + Frame("/f/x.doc") +
                                                                Frame(Group(3)) + "</FRAMESET>\r\n");
  const std::string page = Page(Group(3));
  EXPECT_TRUE(page.starts_with("<HTML>\r\n<HEAD>\r\n<TITLE></TITLE>\r\n</HEAD>\r\n<BODY>\r\n" +
                               Image("/f/b.gif") + "<div align=\"Left\">\r\n<embed src=\"/f/c.swf\""));
  EXPECT_TRUE(page.ends_with("</BODY>\r\n</HTML>\r\n"));
  EXPECT_EQ(fs::file_size(Group(3)), page.size() + 1);
  EXPECT_EQ(exam.attachmentPageWriter.locationMode, 1);
}

/// A file of no class keeps the frame number that a file had in its place.
TEST_F(AttachmentPaneTest, KeepsOldFrameNumbers) {
  Pane({u"x.doc", u"y.doc"});
  EXPECT_EQ(Pane({u"a.png", u"b.rtf", u"x.doc", u"y.doc"}),
            "<FRAMESET  ROWS=\"50%,50%\">\r\n" + Frame("/f/a.png") + Frame("/f/b.rtf") + "</FRAMESET>\r\n");
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
  EXPECT_EQ(Page(pages / "SEE.htm"), kHead +
                                         "<FRAMESET COLS=\"50,50\">\r\n<FRAME SRC=\"SEE1.htm\"  NOSIZE>\r\n"
                                         "<FRAME SRC=\"SEE2.htm\"  NOSIZE>\r\n</FRAMESET>\r\n" +
                                         kEnd);
  EXPECT_NE(Page(pages / "SEE1.htm").find("[147 %s]"), std::string::npos);
  EXPECT_NE(Page(pages / "SEE2.htm").find("embed src=\\\"/ap/app/TEMP/ExamPreview/~tt/a.wav\\\""),
            std::string::npos);
  for (const char* name : {"SEE.htm", "SEE1.htm", "SEE2.htm"}) {
    EXPECT_EQ(ReadBytes(pages / name), Page(pages / name) + '\0') << name;
  }
}

TEST_F(AttachmentPaneTest, StudentPagesLieUnderTheirNumbers) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  fs::create_directories("~BrelmStudent/ID7");
  exam.locationMode = 0;
  exam.workFolder = u"007x";
  exam.attachmentPageWriter.studentIdText = u" 7";
  Attach({u"~BrelmStudent/ID7/~tt/a.gif", u"~BrelmStudent/ID7/~tt/x.doc"});
  exam.WritePreview("~BrelmStudent/ID7/SEE.htm");
  fs::current_path(before);
  EXPECT_EQ(Page("~BrelmStudent/ID7/SEE2.htm"),
            kHead + "<FRAMESET  ROWS=\"50%,50%\">\r\n" + Frame("~BrelmStudent/ID7/SEE2_1.htm") +
                Frame("~BrelmStudent/ID7/~tt/x.doc") + "</FRAMESET>\r\n" + kEnd);
  EXPECT_TRUE(fs::exists(folder / "~BrelmStudent/ID7/SEE2_1.htm"));
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
