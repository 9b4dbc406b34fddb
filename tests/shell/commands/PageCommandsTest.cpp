// SPDX-License-Identifier: MIT
// The Preview and Print commands, up to the page that is shown.
#include "editor/EditorTest.h"
#include "shell/commands/PreviewCommand.h"
#include "shell/commands/PrintCommand.h"

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

TEST_F(PageCommandsTest, PrintShowsWhatIsTyped) {
  Print();
  EXPECT_EQ(shown, std::vector{print});
  EXPECT_TRUE(Shows(print, u"Typed<br>"));
}

}  // namespace
}  // namespace quorvantis::test
