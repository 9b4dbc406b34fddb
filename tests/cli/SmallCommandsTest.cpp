// SPDX-License-Identifier: MIT
// languages, export and recover.
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
  ExpectFailure(Command({"edit", "--app-folder", app, "--language", "7"}), "no language 0x0007");
  EXPECT_EQ(Command({"--language", "English", "edit"}).status, 2);
}

class ExportCommands : public CommandLineTest {
 protected:
  ExportCommands() { Build({{"title", "T"}, {"questions", {{{"text", "a\tb"}}}}}); }

  const std::string exam = Path("exam.exm");
};

TEST_F(ExportCommands, FailuresAreToldInOneLine) {
  std::filesystem::create_hard_link(exam, folder / "same.doc");
  ExpectFailure(Command({"export", exam, Path("same.doc")}), "same.doc: is a file to read");
  const char* const found = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): a test has one thread
  const std::string path = found == nullptr ? "" : found;
  setenv("PATH", "/absent", 1);  // NOLINT(concurrency-mt-unsafe)
  ExpectFailure(Command({"export", exam, Path("a.doc")}), "Create dispatch failed.");
  const RunResult edit = Command({"edit"}, "saveas " + Path("a.doc"));
  setenv("PATH", path.c_str(), 1);  // NOLINT(concurrency-mt-unsafe)
  EXPECT_EQ(edit.status, 1);
  EXPECT_NE(edit.err.find("\nquorvantis-cli: standard input:1: saveas failed\n"), std::string::npos)
      << edit.err;
}

class RecoverCommandTest : public CommandLineTest {
 protected:
  RunResult Recover(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"recover", "--app-folder", Path("app")});
    return Command(arguments);
  }
};

TEST_F(RecoverCommandTest, SavesWhatAScriptDidNot) {
  WriteBytes(folder / "note.txt", "the note");
  const std::string script = "title Lost\ntext question\nattach " + Path("note.txt") + "\nnext\nnonsense\n";
  EXPECT_EQ(Command({"edit", "--recovery", "--app-folder", Path("app")}, script).status, 1);
  const RunResult list = Recover({});
  EXPECT_TRUE(list.out.starts_with("1\t20")) << list.out;
  EXPECT_TRUE(list.out.ends_with("Z\t1\tUnTitle\tLost\n")) << list.out;

  EXPECT_EQ(Recover({"2", Path("exam.exm")}).status, 1);
  EXPECT_EQ(Recover({"1"}).status, 2);
  EXPECT_EQ(Recover({"1", Path("exam.exm")}).status, 0);
  const Json exam = Shown();
  EXPECT_EQ(exam["title"], "Lost");
  EXPECT_EQ(exam["questions"][0]["attachments"][0]["name"], "note.txt");
  EXPECT_EQ(exam["questions"][0]["attachments"][0]["size"], 8);
  EXPECT_EQ(Recover({}).out, list.out) << "it stays";
}

}  // namespace
}  // namespace quorvantis::test
