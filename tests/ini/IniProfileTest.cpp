// SPDX-License-Identifier: MIT
#include "ini/IniProfile.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class IniProfileTest : public testing::Test {
 protected:
  IniProfileTest() { profile.SetFile(file, u"private"); }

  std::u16string Read() {
    std::u16string value = u"before";
    EXPECT_TRUE(profile.GetString(u"Language", value));
    return value;
  }

  TemporaryFolder folder;
  const fs::path file = folder / "system.ini";
  PosixFiles files;
  TestCodePage codePage;
  IniProfile profile{files, codePage};
};

TEST_F(IniProfileTest, TellsWhatIsMissing) {
  IniProfile unset(files, codePage);
  std::u16string value = u"kept";
  EXPECT_EQ(unset.LastError(), 0);
  EXPECT_FALSE(unset.WriteString(u"Language", u"1"));
  EXPECT_FALSE(unset.SetFile("", u"private"));
  EXPECT_EQ(unset.LastError(), 100);
  EXPECT_FALSE(unset.SetFile("", u""));
  EXPECT_EQ(unset.LastError(), 101);
  EXPECT_FALSE(unset.GetString(u"", value));
  EXPECT_EQ(unset.LastError(), 102);
  EXPECT_EQ(value, u"kept");
  EXPECT_FALSE(profile.WriteString(u"", u"1") || profile.WriteString(u"Language", u""));
  EXPECT_FALSE(profile.WriteString(u"Language", u"1\r[other]"));
  EXPECT_EQ(Read(), u"");
  EXPECT_FALSE(fs::exists(file));
}

/// Deliberate: the buffer of 256 units ends with a NUL.
TEST_F(IniProfileTest, CutsLongValues) {
  WriteBytes(file, "[private]\n" + std::string(5'000'000, '\n') + "Language=" + std::string(5'000'000, '1'));
  EXPECT_EQ(Read(), std::u16string(255, u'1'));
  EXPECT_TRUE(profile.WriteString(u"Language", std::u16string(300, u'2')));
  EXPECT_EQ(Read(), std::u16string(255, u'2'));
  EXPECT_EQ(fs::file_size(file), 5'000'019 + 300);
}

TEST_F(IniProfileTest, ChangesNothingButItsLine) {
  const std::pair<std::string, std::string> rows[] = {
      {"", "[private]\r\nLanguage=7\u0431\r\n"},
      {"[other]\n a = b", "[other]\n a = b\n[private]\nLanguage=7\u0431\n"},
      {"[PRIVATE]\r\n;x\r\n LANGUAGE\t= 1 ; 2\r\n\r\nz", "[PRIVATE]\r\n;x\r\n LANGUAGE\t= 7\u0431\r\n\r\nz"},
      {"[private]\r\ra=1\r \r\r[b]\rLanguage=1", "[private]\r\ra=1\rLanguage=7\u0431\r \r\r[b]\rLanguage=1"},
      {"[private]\n[b]\n[private]\nlanguage=1\n", "[private]\n[b]\n[private]\nlanguage=7\u0431\n"},
      {"[private]\nLanguage\nx=\0\n\n"s, "[private]\nLanguage\nx=\0\nLanguage=7\u0431\n\n"s},
      {"\xEF\xBB\xBF[private]", "\xEF\xBB\xBF[private]\r\nLanguage=7\u0431\r\n"},
      {"[private]\n;\xB1\xFE\n", "[private]\n;\xB1\xFE\nLanguage=7\xB1\n"},
      {"\xFF\xFE[\0p\0r\0i\0v\0a\0t\0e\0]\0\n\0\n"s,
       "\xFF\xFE[\0p\0r\0i\0v\0a\0t\0e\0]\0\n\0L\0a\0n\0g\0u\0a\0g\0e\0=\0007\0\x31\x04\n\0"s},
      {"\xFE\xFF\0[\0p\0r\0i\0v\0a\0t\0e\0]\0\n\0L\0a\0n\0g\0u\0a\0g\0e\0=\0\x31"s,
       "\xFE\xFF\0[\0p\0r\0i\0v\0a\0t\0e\0]\0\n\0L\0a\0n\0g\0u\0a\0g\0e\0=\0007\x04\x31"s},
  };
  for (const auto& [before, after] : rows) {
    WriteBytes(file, before);
    EXPECT_TRUE(profile.WriteString(u"Language", u"7\u0431"));
    EXPECT_EQ(ReadBytes(file), after) << testing::PrintToString(before);
    EXPECT_EQ(Read(), u"7\u0431") << testing::PrintToString(before);
  }
}

TEST_F(IniProfileTest, AFailureLeavesTheFile) {
  const std::string eightBit = "[private]\n;\xFF";
  WriteBytes(file, eightBit);
  EXPECT_FALSE(profile.WriteString(u"Language", u"\u4F60"));
  EXPECT_EQ(ReadBytes(file), eightBit);
  fs::resize_file(file, 17'000'000);
  EXPECT_FALSE(profile.WriteString(u"Language", u"1"));
  EXPECT_EQ(fs::file_size(file), 17'000'000);
  fs::remove(file);
  fs::create_directory(file);
  EXPECT_FALSE(profile.WriteString(u"Language", u"1") || !Read().empty());
}

}  // namespace
}  // namespace quorvantis::test
