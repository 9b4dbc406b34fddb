// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/AttachmentItems.h"
#include "render/AttachmentPath.h"
#include "render/MediaPlayerScript.h"

namespace quorvantis::test {
namespace {

/// Sources and extensions of odd paths, in columns.
TEST(AttachmentPath, GivesSourcesAndExtensions) {
  std::u16string table;
  for (const std::u16string_view path :
       {u"/ho/home/a.jpg", u"/ap/app/TEMP/~tt/a.jpg", u"~Br~BrelmStudent/ID7/~tt/a.jpg",
        u"/app/~BrelmStudent/~Ans/ID7/3.wmv", u"/a.d/File", u"/A/file", u"abc", u""}) {
    table.append(path).append(u" | ").append(RelativeSource(path)).append(u" | ").append(PlayerSource(path));
    table.append(u" | ")
        .append(ExtensionOrPath(path))
        .append(u" | ")
        .append(ExtensionOrNothing(path))
        .append(u"\n");
  }
  ExpectGolden("paths.txt", Utf16ToUtf8(table));
}

class AttachmentItemsTest : public RenderTest {
 protected:
  /// A player in this file, as its installation registers it.
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

/// An empty extension is found in every list, so the first list wins. For players the first line is enough.
TEST_F(AttachmentItemsTest, ShowsAFileByItsExtension) {
  std::u16string items;
  for (const std::u16string_view name :
       {u"scan.JPG", u"a.pe", u"a.m", u"a.mp", u"noextension", u"a.wav", u"a.wm", u"a.DAT", u"a.png",
        u"a.docx", u"a.x", u"clip.swf", u"a.sw"}) {
    const std::u16string item = Item(u"/pre/fix~/" + std::u16string(name));
    items += item.starts_with(u"<div id=") ? item.substr(0, item.find(u'\r')) : item;
    items += u"\n";
  }
  ExpectGolden("items.htm", Utf16ToUtf8(items));
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
