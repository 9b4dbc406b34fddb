// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

class LanguagesCommand : public CommandLineTest {
 protected:
  LanguagesCommand() { std::filesystem::create_directories(languages); }
  void AddShipped() {
    for (const auto& entry : std::filesystem::directory_iterator(QUORVANTIS_LANGUAGES)) {
      std::filesystem::create_symlink(entry.path(), languages / entry.path().filename());
    }
  }

  const std::filesystem::path languages = folder / "app/language/Quorvantis";
  const std::string app = Path("app");
};

TEST_F(LanguagesCommand, ListsWhatThereIs) {
  ExpectFailure(Command({"languages"}), "no folder of languages");
  WriteBytes(languages / "text.dll", "no library");
  ExpectFailure(Command({"languages", "--app-folder", app}), "no language libraries");
  AddShipped();
  const RunResult run = Command({"languages", "--app-folder", app});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "0x0409  English   " + (languages / "English.dll").string() + "\n0x0804  简体中文  " +
                         (languages / "SimplifiedChinese.dll").string() + "\n0x0401  العربية   " +
                         (languages / "StandardArabic.dll").string() + "\n");
}

TEST_F(LanguagesCommand, GivesTextsToEveryCommand) {
  AddShipped();
  const auto messageIn = [&](std::vector<std::string> options) {
    std::vector<std::string> arguments{"edit", "--app-folder", app};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Command(arguments, "open " + Path("missing.exm") + "\n").err;
  };
  EXPECT_NE(messageIn({}).find("Open file"), std::string::npos);
  EXPECT_NE(messageIn({"--language", "0x804"}).find("打开文件"), std::string::npos);
  EXPECT_NE(messageIn({"--language", "2052"}).find("打开文件"), std::string::npos);
  ExpectFailure(Command({"edit", "--app-folder", app, "--language", "7"}), "no language 0x0007");
  EXPECT_EQ(Command({"--language", "English", "edit"}).status, 2);
}

}  // namespace
}  // namespace quorvantis::test
