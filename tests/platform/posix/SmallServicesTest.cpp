// SPDX-License-Identifier: MIT
// Code pages, identifiers and language libraries.
#include "platform/posix/DynamicLanguageLibraries.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/RandomIds.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <sys/stat.h>

namespace quorvantis::test {
namespace {

TEST(IconvCodePage, DecodesAndReplacesWhatIsMalformed) {
  const auto check = [](const char* name, std::string_view bytes, std::u16string_view text) {
    EXPECT_EQ(IconvCodePage(name).Decode(bytes), text) << name << testing::PrintToString(bytes);
  };
  check("GBK", "a\xC4\xE3\xBA\xC3z", u"a\u4F60\u597Dz");
  check("GBK", "\xC4\xE3\xBA", u"\u4F60\uFFFD");       // cut off
  check("GBK", "\xFF\xC4\xE3", u"\uFFFD\u4F60");       // no lead byte
  check("GBK", "\xC4\x20\xC4\xE3", u"\uFFFD \u4F60");  // the blank is not swallowed
  check("CP1258", "a\xE9", u"a\u00E9");                // held back, because an accent may follow
  check("UTF-8", "\xF0\x9F\x98\x80\xF0\x9F", u"\U0001F600\uFFFD\uFFFD");
  check("no such code page", "plain \x80\xE9", u"plain \u20AC\u00E9");
  const IconvCodePage codePage("GBK");
  EXPECT_EQ(codePage.Decode("\xC4"), u"\uFFFD");
  EXPECT_EQ(codePage.Decode("\xC4\xE3"), u"\u4F60") << "the byte before was another text";
  EXPECT_EQ(codePage.Encode(u"a\u4F60"), "a\xC4\xE3");
  EXPECT_EQ(codePage.Encode(u"\u4F60\u0E01"), std::nullopt) << "no Thai letter there";
  EXPECT_EQ(codePage.Encode(u"\xD800"), std::nullopt);
}

TEST(RandomIds, Differ) {
  RandomIds ids;
  std::set<std::u16string> seen;
  for (int i = 0; i < 1000; ++i) seen.insert(ids.NewId());
  EXPECT_EQ(seen.size(), 1000u);
  EXPECT_EQ(seen.begin()->size(), 38u);
}

const std::filesystem::path kLibraries = QUORVANTIS_TEST_LIBRARIES;

std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) {
  return DynamicLanguageLibraries().Load(file);
}

TEST(DynamicLanguageLibraries, TakeWhatALibraryOffersAndNoMore) {
  const auto least = Load(kLibraries / "NoLanguage.dll");
  EXPECT_EQ(least->Id(), std::nullopt);
  EXPECT_EQ(least->DialogText(100, 1), u"");
  EXPECT_TRUE(least->Bitmap("128", 1).empty());
  const auto handwritten = Load(kLibraries / "Handwritten.dll");
  EXPECT_EQ(handwritten->Id(), 0x040D) << "the low 16 bits";
  EXPECT_TRUE(handwritten->HasText(101)) << "an empty text is one";
  EXPECT_EQ(handwritten->Text(101), u"");
  EXPECT_FALSE(handwritten->HasText(102));
  EXPECT_EQ(handwritten->Text(133), u"\u05E9\uFFFD");
  EXPECT_EQ(handwritten->DialogText(100, 1), u"Good");
  EXPECT_TRUE(handwritten->Bitmap("128", 1).empty());
}

TEST(DynamicLanguageLibraries, LoadNothingThatIsNoLibrary) {
  const TemporaryFolder folder;
  const std::string whole = ReadBytes(kLibraries / "Handwritten.dll");
  EXPECT_EQ(Load(folder / "missing.dll"), nullptr);
  EXPECT_EQ(Load(folder.Path()), nullptr);
  ASSERT_EQ(::mkfifo((folder / "pipe.dll").c_str(), 0600), 0);
  EXPECT_EQ(Load(folder / "pipe.dll"), nullptr);
  EXPECT_EQ(Load(WriteBytes(folder / "text.dll", "English = 1033")), nullptr);
  for (std::size_t size = 0; size < whole.size(); size += whole.size() / 50) {
    // Cut after everything that the loader uses, a library still works.
    const auto cut = Load(WriteBytes(folder / "cut.dll", std::string_view(whole).substr(0, size)));
    EXPECT_TRUE(!cut || cut->Text(133) == u"\u05E9\uFFFD") << size;
  }
  std::string otherMachine = whole;
  otherMachine[4] = otherMachine[4] == 1 ? 2 : 1;
  EXPECT_EQ(Load(WriteBytes(folder / "other.dll", otherMachine)), nullptr);
}

}  // namespace
}  // namespace quorvantis::test
