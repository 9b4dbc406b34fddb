// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/ComposedPages.h"
#include "render/PageFile.h"

#include <sys/stat.h>

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

class PageFileTest : public RenderTest {
 protected:
  const fs::path file = folder / "page.htm";
};

TEST_F(PageFileTest, WritesUtf8WithOneZeroByte) {
  PageFile(file, world.pages).WriteUtf8(u"a\u00E9\u4E2D\U0001F600\xD800z");
  EXPECT_EQ(ReadBytes(file), "a\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80\xEF\xBF\xBDz\0"s);
  PageFile(file, world.pages).WriteUtf8(u"");
  EXPECT_EQ(ReadBytes(file), "\0"s);
}

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

TEST(ComposedPages, AreFoundByTheNormalAbsolutePath) {
  ComposedPages pages;
  pages.Add("/a/./b/../c.htm", u"first");
  pages.Add("/a/c.htm", u"second");
  pages.Add("relative.htm", u"third");
  EXPECT_EQ(*pages.Find("/a/x/../c.htm"), u"second");
  EXPECT_EQ(*pages.Find(fs::current_path() / "relative.htm"), u"third");
  pages.Clear();
  EXPECT_EQ(pages.Find("/a/c.htm"), nullptr);
}

}  // namespace
}  // namespace quorvantis::test
