// SPDX-License-Identifier: MIT
#include "platform/posix/DynamicLanguageLibraries.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quorvantis::test {
namespace {

const std::filesystem::path kLibraries = QUORVANTIS_TEST_LIBRARIES;

std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) {
  return DynamicLanguageLibraries().Load(file);
}

TEST(DynamicLanguageLibraries, TakeWhatALibraryOffersAndNoMore) {
  EXPECT_EQ(Load(kLibraries / "NoLanguage.dll")->Id(), std::nullopt);
  const auto least = Load(kLibraries / "IdentifierOnly.dll");
  EXPECT_EQ(least->Id(), 0x040C);
  EXPECT_FALSE(least->HasText(158));
  EXPECT_EQ(least->Text(158) + least->DialogText(100, 1), u"");
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
    // A cut behind everything that the loader uses leaves a library that works.
    const auto cut = Load(WriteBytes(folder / "cut.dll", std::string_view(whole).substr(0, size)));
    EXPECT_TRUE(!cut || cut->Text(133) == u"\u05E9\uFFFD") << size;
  }
  std::string otherMachine = whole;
  otherMachine[4] = otherMachine[4] == 1 ? 2 : 1;
  EXPECT_EQ(Load(WriteBytes(folder / "other.dll", otherMachine)), nullptr);
}

}  // namespace
}  // namespace quorvantis::test
