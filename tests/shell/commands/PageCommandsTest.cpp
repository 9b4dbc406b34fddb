// SPDX-License-Identifier: MIT
// The Preview and Print commands, up to the page that is shown.
#include "editor/EditorTest.h"
#include "shell/commands/PreviewCommand.h"
#include "shell/commands/PrintCommand.h"
#include "text/PathText.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class PageCommandsTest : public EditorTest {
 protected:
  PageCommandsTest() { Type(FormField::Text, u"Typed"); }

  void Preview(int languageId = 0x0409) { PreviewCommand(editor, nullptr, languageId, Show()).Run(); }
  void Print() { PrintCommand(editor, Show()).Run(); }

  bool Shows(const fs::path& page, std::u16string_view text) {
    return world.pages.pages[page].find(text) != std::u16string::npos;
  }

  ShowPage Show() {
    return [this](const fs::path& page) {
      EXPECT_TRUE(fs::exists(page));
      shown.push_back(page);
    };
  }

  const fs::path preview = folder / "app" / "TEMP" / "ExamPreview" / "SEE.htm";
  const fs::path print = folder / "app" / "exam_Print.htm";
  std::vector<fs::path> shown;
};

TEST_F(PageCommandsTest, PreviewStoresCountsAndShows) {
  world.pages.Add("earlier", u"page");
  Preview(0x0804);
  EXPECT_EQ(exam.Question(1).text, u"Typed");
  EXPECT_EQ(exam.questionCount, 1);
  EXPECT_EQ(exam.pageRenderer.renderOption, 0x0804);
  EXPECT_EQ(shown, std::vector{preview});
  EXPECT_TRUE(Shows(preview, u"Typed<br>"));
  EXPECT_EQ(world.pages.pages.size(), 1);
}

/// Pages reflect the previews that were not finished; a saved file does not.
TEST_F(PageCommandsTest, PrefixesStayOutOfFiles) {
  const std::u16string path = PathToText(WriteBytes(folder / "map.gif", "picture"));
  exam.Question(1).attachmentPaths[0] = path;
  exam.Question(1).attachmentNames[0] = u"map.gif";
  const std::u16string source = u"<img src=\"";
  Print();
  EXPECT_EQ(shown, std::vector{print});
  EXPECT_TRUE(Shows(print, u"Typed<br>"));
  EXPECT_TRUE(Shows(print, source + path.substr(3) + u"\""));
  Preview();
  EXPECT_TRUE(Shows(preview, source + path + u"\""));
  Preview();
  EXPECT_TRUE(Shows(preview, source + path.substr(0, 3) + path + u"\""));
  exam.PrefixAttachmentPaths(0);
  Print();
  EXPECT_TRUE(Shows(print, source + path + u"\""));
  ASSERT_TRUE(exam.WriteExamFile(folder / "saved.exm"));
  EXPECT_EQ(exam.Question(1).attachmentPaths[0], path);
  exam.Reset();
  exam.ReadExamFile(folder / "saved.exm");
  EXPECT_EQ(ReadBytes(TextToPath(exam.Question(1).attachmentPaths[0])), "picture");
  EXPECT_TRUE(exam.previewPrefixes.empty());
}

}  // namespace
}  // namespace quorvantis::test
