// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/AttachmentItems.h"
#include "render/AttachmentPath.h"
#include "render/MediaPlayerScript.h"

namespace quorvantis::test {
namespace {

TEST(AttachmentPath, GivesTheSourceOfAPage) {
  const struct {
    std::u16string_view path;
    std::u16string_view source;
    std::u16string_view playerSource;
  } rows[] = {
      {u"/ho/home/a.jpg", u"/home/a.jpg", u"/home/a.jpg"},
      {u"/ap/app/TEMP/~tt/a.jpg", u"~tt/a.jpg", u"/app/TEMP/~tt/a.jpg"},
      {u"~Br~BrelmStudent/ID7/~tt/a.jpg", u"~Br~BrelmStudent/ID7/~tt/a.jpg", u"~BrelmStudent/ID7/~tt/a.jpg"},
      {u"/app/~BrelmStudent/~Ans/ID7/3.wmv", u"~BrelmStudent/~Ans/ID7/3.wmv", u"~Ans/ID7/3.wmv"},
      {u"abc", u"", u""},
      {u"", u"", u""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(RelativeSource(row.path), row.source);
    EXPECT_EQ(PlayerSource(row.path), row.playerSource);
  }
}

TEST(AttachmentPath, TakesTheExtensionFromTheWholePath) {
  EXPECT_EQ(ExtensionOrPath(u"/a/B.JPG"), u"jpg");
  EXPECT_EQ(ExtensionOrPath(u"/a.d/File"), u"d/file");
  EXPECT_EQ(ExtensionOrPath(u"/A/file"), u"/a/file");
  EXPECT_EQ(ExtensionOrNothing(u"/A/file"), u"");
  EXPECT_EQ(ExtensionOrNothing(u"/a.d/File"), u"d/file");
}

class AttachmentItemsTest : public RenderTest {
 protected:
  /// A player in this file, as its installation tells the registry.
  void Register(const fs::path& server) {
    RegistryValue value{RegistryType::String, {}};
    for (const char c : server.string() + '\0')
      value.bytes.insert(value.bytes.end(), {std::byte(c), std::byte{}});
    const auto key = world.registry.CreateKey(
        RegistryRoot::ClassesRoot, u"CLSID\\{0133388C-C3F2-498D-BEB2-F121744ACE38}\\InprocServer32");
    ASSERT_TRUE(key && key->SetValue(u"", value));
  }

  std::u16string Item(std::u16string_view path, int oralFlag = 0) {
    return AttachmentItem(world.services, path, oralFlag);
  }
};

TEST_F(AttachmentItemsTest, ShowsAFileByItsExtension) {
  const std::u16string image = u"<img src=\"~/$\" ></img><br>";
  const std::u16string document = u"<iframe width=690 height=350 src=\"~/$\" ></iframe><br>";
  const std::u16string flash =
      u"<div align=\"Left\">\r\n<embed src=\"~/$\" width=\"650\" height=\"400\">\r\n</div><br>\r\n";
  const std::u16string player = u"<div id=";
  const std::pair<std::u16string, std::u16string> rows[] = {
      {u"scan.JPG", image},    {u"a.pe", image},   {u"a.m", image},      {u"a.mp", image},
      {u"noextension", image},  // an empty extension is found in any list, in the first one first
      {u"a.wav", player},      {u"a.wm", player},  {u"a.DAT", player},   {u"a.png", player},
      {u"a.docx", document},   {u"a.x", document}, {u"clip.swf", flash}, {u"a.sw", flash},
  };
  for (const auto& [name, item] : rows) {
    const std::string expected = Replaced(Utf16ToUtf8(item), "$", Utf16ToUtf8(name));
    EXPECT_TRUE(Utf16ToUtf8(Item(u"/pre/fix~/" + name)).starts_with(expected)) << Utf16ToUtf8(name);
  }
}

TEST_F(AttachmentItemsTest, WritesThePlayerOfEverySystem) {
  ExpectGolden("player.htm", Utf16ToUtf8(Item(u"/ho/home/back\\slash.avi")));
}

TEST_F(AttachmentItemsTest, WritesTheInstalledPlayer) {
  Register(WriteBytes(folder / "player.ocx", ""));
  ExpectGolden("installed-player.htm",
               Utf16ToUtf8(MediaPlayerScript(world.services, u"/home/film.avi", 1, true)));
  const struct {
    std::u16string_view path;
    int oralFlag;
    bool mute;
  } rows[] = {
      {u"/ho/home/film.AVI", 1, true},
      {u"/ho/home/film.avi", 2, false},
      {u"/ho/home/film.mpg", 1, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Item(row.path, row.oralFlag).find(u"enableAudio") != std::u16string::npos, row.mute);
  }
  EXPECT_NE(MediaItem(world.services, u"abc.swf", 0, 1).find(u"enableAudio"), std::u16string::npos);
  Register(folder / "uninstalled.ocx");
  EXPECT_EQ(Item(u"a.avi").find(u"Morvell"), std::u16string::npos);
}

}  // namespace
}  // namespace quorvantis::test
