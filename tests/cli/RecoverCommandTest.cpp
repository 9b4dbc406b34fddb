// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

class RecoverCommandTest : public CommandLineTest {
 protected:
  RunResult Recover(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"recover", "--app-folder", Path("app")});
    return Command(arguments);
  }
  RunResult Edit(const std::string& script) {
    return Command({"edit", "--recovery", "--app-folder", Path("app")}, script);
  }
};

TEST_F(RecoverCommandTest, SavesWhatAScriptDidNot) {
  WriteBytes(folder / "note.txt", "the note");
  const std::string script = "title Lost\ntext question\nattach " + Path("note.txt") + "\nnext\nnonsense\n";
  EXPECT_EQ(Edit(script).status, 1);
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

TEST_F(RecoverCommandTest, NothingStaysOfWhatWasSavedOrGivenUp) {
  const auto saveAs = [&](const char* name) { return "saveas " + Path(name) + "\n"; };
  EXPECT_EQ(Edit("text first\n" + saveAs("exam.exm") + "text second\nsave\n").status, 0);
  EXPECT_EQ(Edit("text third\nreply no\nclose\n").status, 0);
  EXPECT_EQ(Recover({}).out, "");
  EXPECT_EQ(Shown()["questions"][0]["text"], "second");
  EXPECT_EQ(Shown("exam.exm~")["questions"][0]["text"], "first");
  WriteBytes(folder / "app/system.ini", "[private]\nBackup=0\n");
  EXPECT_EQ(Edit("text fourth\n" + saveAs("exam.exm")).status, 0);
  EXPECT_EQ(Shown("exam.exm~")["questions"][0]["text"], "first");
}

TEST_F(RecoverCommandTest, ACopyThatCannotBeWrittenIsToldOnce) {
  WriteBytes(folder / "app/recovery", "a file in its place");
  const RunResult run = Edit("text first\ntext second\nsaveas " + Path("exam.exm") + "\n");
  EXPECT_EQ(run.status, 0) << "the script goes on";
  EXPECT_TRUE(run.err.starts_with("quorvantis-cli: " + Path("app/recovery") + ": ")) << run.err;
  EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << run.err;
}

}  // namespace
}  // namespace quorvantis::test
