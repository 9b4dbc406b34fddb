// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/PageFile.h"
#include "render/TextToHtml.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

/// Exams with lone LFs have always lost these characters.
TEST(TextToHtml, TakesOneMoreCharacterWithEachLineEnd) {
  const std::pair<std::u16string_view, std::u16string_view> rows[] = {
      {u"", u""},
      {u"<b>&\"", u"<b>&\"<br>"},
      {u"one\r\ntwo\r\n", u"one<br>two<br>"},
      {u"\r\n\r\n", u"<br><br>"},
      {u"one\ntwo\rthree", u"one<br>wo<br>hree<br>"},
      {u"one\n\r\ntwo\n", u"one<br><br>wo<br>"},
      {u"a\n\U0001F600", u"a<br>\xDE00<br>"},  // half of a pair may be removed
  };
  for (const auto& [text, html] : rows) EXPECT_EQ(TextToHtml(text), html);
}

class PageFileTest : public RenderTest {
 protected:
  const fs::path file = folder / "page.htm";
};

TEST_F(PageFileTest, CutsUtf16ToOneByteMoreThanItHasUnits) {
  const std::pair<std::u16string, std::string> rows[] = {
      {u"", "\0"s}, {u"a", "a\0"s}, {u"\u4E2D\xD83D\xDE00", "\x2D\x4E\x3D\xD8"s}, {u"abcd", "a\0b\0c"s}};
  for (const auto& [page, bytes] : rows) {
    PageFile(file, world.pages).WriteHalfUtf16(page);
    EXPECT_EQ(ReadBytes(file), bytes);
    EXPECT_EQ(world.pages.pages[file], page);
  }
}

TEST_F(PageFileTest, KeepsThePageWhereNoFileCanBeMade) {
  const fs::path target = folder / "absent" / "page.htm";
  PageFile(target, world.pages).WriteUtf8(u"page");
  EXPECT_EQ(world.pages.pages[target], u"page");
  EXPECT_EQ(world.pages.notWritten, std::vector{target});
}

TEST_F(PageFileTest, WritesThroughNoLinkAndIntoNoPipe) {
  WriteBytes(folder / "elsewhere", "earlier");
  fs::create_symlink(folder / "elsewhere", file);
  PageFile(file, world.pages).WriteUtf8(u"page");
  EXPECT_EQ(ReadBytes(folder / "elsewhere"), "earlier");
  fs::remove(file);
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  PageFile(file, world.pages).WriteUtf8(u"page");
  EXPECT_EQ(ReadBytes(file), "page\0"s);
  EXPECT_TRUE(world.pages.notWritten.empty());
}

}  // namespace
}  // namespace quorvantis::test
