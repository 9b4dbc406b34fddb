// SPDX-License-Identifier: MIT
#include "ini/ProfileFile.h"
#include "platform/posix/PosixFiles.h"
#include "shell/settings/CodePageChoice.h"
#include "shell/settings/DrawSetting.h"
#include "shell/settings/FileSettings.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

TEST(ProfileFile, FindsValuesTheWayPeopleWriteThem) {
  const TemporaryFolder folder;
  const auto check = [&](std::string_view content, const std::optional<std::u16string>& value) {
    const ProfileFile profile(WriteBytes(folder / "file.ini", content));
    EXPECT_EQ(profile.Value(u"Section", u"kEY"), value) << content;
  };
  check("", std::nullopt);
  check("key=outside\n[other]\nkey=other\n[section]\n;key=comment\nkeys=x\nkey", std::nullopt);
  check("[section]\nkey=", u"");
  check("[section]\nkey=1\nkey=2\n[section]\nkey=3", u"1");
  check(" [ section ] ; remark\r\tkey\t=\ta;b=c\r", u"a;b=c");
  check("[\n[]\n=\n[section\nkey=\" quoted \"", u" quoted ");
  check("[section]\nkey=\"half'", u"\"half'");
  check("[section]\nkey=\"", u"\"");
  EXPECT_EQ(ProfileFile(folder.Path()).Value(u"section", u"key"), std::nullopt);
}

TEST(ChooseCodePage, TakesTheSettingOrTheOneOfTheLanguage) {
  const TemporaryFolder folder;
  EXPECT_EQ(ChooseCodePage(folder.Path(), 0x0804), "GBK");
  const auto check = [&](const char* setting, int language, const char* expected) {
    WriteBytes(folder / "system.ini", setting);
    EXPECT_EQ(ChooseCodePage(folder.Path(), language), expected) << setting << language;
  };
  check("[private]\nCodePage=", 0x0404, "BIG5");
  check("[other]\nCodePage=936", 0x0411, "CP932");
  check("", kEnglish, "CP1252");
  check("[private]\nCodePage=65001", 0x0804, "UTF-8");
  check("[private]\nCodePage=54936", 0x0804, "GB18030");
  check("[Private]\ncodepage=KOI8-R", 0x0804, "KOI8-R");
}

TEST(KeepsBackups, UnlessTheSettingSaysNo) {
  const TemporaryFolder folder;
  EXPECT_TRUE(KeepsBackups(folder.Path()));
  for (const auto& [setting, keeps] : {std::pair("", true), std::pair("1", true), std::pair(" 0", false)}) {
    WriteBytes(folder / "system.ini", std::string("[private]\nbackup=") + setting);
    EXPECT_EQ(KeepsBackups(folder.Path()), keeps) << setting;
  }
}

TEST(ExamFolderSetting, KeepsAnyFolderBesideTheOtherSettings) {
  const TemporaryFolder folder;
  PosixFiles files;
  const TestCodePage codePage;
  const ExamFolderSetting setting(folder.Path(), files, codePage);
  EXPECT_EQ(setting.Read(), "");
  const std::string others = "[private]\r\nLanguage=1033\r\n";
  WriteBytes(folder / "system.ini", others);
  for (const std::string& name :
       {"/exams"s, "/a b ;#=[x]\" "s, "/\xE8\xAF\x95\xE5\x8D\xB7"s, "/"s + std::string(250, 'x')}) {
    setting.Write(name);
    EXPECT_EQ(setting.Read(), name);
    EXPECT_TRUE(ReadBytes(folder / "system.ini").starts_with(others));
  }
  setting.Write("/two\nlines");
  EXPECT_EQ(setting.Read(), "/"s + std::string(250, 'x')) << "what cannot be kept leaves the last one";
  WriteBytes(folder / "system.ini", "[files]\nExamFolder=relative");
  EXPECT_EQ(setting.Read(), "");
}

TEST(DrawSetting, KeepsWhatWasTyped) {
  const TemporaryFolder folder;
  PosixFiles files;
  const TestCodePage codePage;
  const DrawSetting setting(folder.Path(), files, codePage);
  EXPECT_EQ(setting.Read(), TypedDraw());
  TypedDraw typed;
  typed.wishes = {
      {3, 2, u" \"cells\", class:8b ", u"标签", u"difficulty:1,difficulty:2"}, {}, {500, -1, u"x"}};
  typed.notUsedSince = u"2024-08-01";
  typed.folder = "/exams [old] ";
  typed.leavesOutOpenExam = false;
  typed.seed = u"18446744073709551615";
  setting.Write(typed);
  EXPECT_EQ(setting.Read(), typed);
  typed.wishes.pop_back();
  typed.wishes.back().tags = u"new";
  setting.Write(typed);
  EXPECT_EQ(setting.Read(), typed) << "a wish less";
  WriteBytes(folder / "system.ini", "[draw]\nWishes=99999\nCount1=-7\nKind1=x");
  EXPECT_EQ(setting.Read().wishes.size(), TypedDraw::kMostWishes);
}

}  // namespace
}  // namespace quorvantis::test
