// SPDX-License-Identifier: MIT
#include "shell/language/FakeLibraries.h"
#include "shell/language/LanguageId.h"
#include "shell/language/LanguageInUse.h"
#include "shell/language/LanguageList.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

class Languages : public testing::Test {
 protected:
  void Add(const char* name, const char* content) { WriteBytes(folder / name, content); }

  TemporaryFolder folder;
  FakeLibraries libraries;
};

TEST_F(Languages, AreListedByFileName) {
  Add("b.dll", "2 Second");
  Add("a.DLL", "1 First");
  Add("c.dLl", "3");
  Add(".dll", "4 only the extension");
  Add("d.txt", "5 no library");
  Add("e.dll", "broken");
  Add("f.dll", " without an identifier");
  std::filesystem::create_directory(folder / "g.dll");
  std::error_code error;
  const LanguageList list = ScanLanguageLibraries(folder.Path(), libraries, error);
  EXPECT_FALSE(error);
  EXPECT_EQ(list.languageIds, (std::vector<std::uint16_t>{1, 2, 3}));
  EXPECT_EQ(list.languageNames, (std::vector<std::u16string>{u"First", u"Second", u""}));
  EXPECT_EQ(list.languageFiles[0], folder / "a.DLL");
  EXPECT_EQ(list.DisplayName(2), u"c.dLl") << "a name that can be selected";
}

TEST_F(Languages, TextsThatALibraryLacksAreBuiltIn) {
  LanguageInUse language;
  EXPECT_EQ(language.Text(101), u"Oxna Quorvantis(&A)...");
  EXPECT_EQ(language.DialogText(244, 0), u"请选择");
  EXPECT_EQ(language.Id(), std::nullopt);
  Add("a.dll", "1 First");
  language.Use(libraries.Load(folder / "a.dll"));
  EXPECT_EQ(language.Text(101), u"") << "empty on purpose";
  EXPECT_EQ(language.Text(158), u"First");
  EXPECT_EQ(language.Text(156), u"Scan questions");
  EXPECT_EQ(language.DialogText(100, 1), u"own OK");
  EXPECT_EQ(language.DialogText(100, 2000), u"Quorvantis Verson 6.2");
}

TEST(LanguageId, IsReadInBothNotations) {
  for (const char* text : {"1033", "0x409", "0X0409"}) EXPECT_EQ(ParseLanguageId(text), 0x409) << text;
  for (const char* text : {"", "0x", "-1", "1033 ", "65536", "0xFFFFF", "en"}) {
    EXPECT_EQ(ParseLanguageId(text), std::nullopt) << text;
  }
  EXPECT_EQ(FormatLanguageId(0x409), "0x0409");
  for (const int id : {0x0401, 0x0801, 0x040D, 0x0429}) EXPECT_TRUE(IsRightToLeft(id)) << id;
  for (const int id : {0, 0x0409, 0x0804, 0x0407}) EXPECT_FALSE(IsRightToLeft(id)) << id;
}

}  // namespace
}  // namespace quorvantis::test
