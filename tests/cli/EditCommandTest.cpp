// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class EditScripts : public CommandLineTest {
 protected:
  /// Runs a script that succeeds and gives the states that it printed.
  std::vector<Json> States(const std::string& script) {
    const RunResult run = Command({"edit"}, script);
    EXPECT_EQ(run.status, 0) << run.err;
    std::vector<Json> states;
    std::istringstream lines(run.out);
    for (std::string line; std::getline(lines, line);) states.push_back(Json::parse(line));
    return states;
  }
  Json LastState(const std::string& script) { return States(script + "\nstate").back(); }
};

TEST_F(EditScripts, StateTellsWhatTheWindowWouldShow) {
  WriteBytes(folder / "a b.wav", "sound");
  const auto states =
      States("state\ntitle \"My exam\"\ncheck A\ncheck c\noption b second\nrandom\nattach-exam \"" +
             Path("a b.wav") + "\"\nnext\nkind oral\nattach \"" + Path("a b.wav") +
             "\"\nselect 0\noral\nstate\nprev\nkind fillin\nanswer a\nseparator\nstate\n");
  ASSERT_EQ(states.size(), 3u);
  const Json noPaths(10, "");
  Json initial = Json::parse(R"({"currentQuestion": 1, "modified": false, "fileName": "UnTitle",
    "windowTitle": "Quorvantis - UnTitle", "currentKind": 0, "form": {"title": "", "text": "",
    "options": ["", "", "", "", ""], "checks": [0, 0, 0, 0, 0], "answer": "", "essay": "", "random": 0,
    "randomCaption": "Random"}, "questionList": [], "examList": [], "questionListVisible": false,
    "examListVisible": false, "oralToggleVisible": false, "oralFlag": 0})");
  initial["questionPaths"] = initial["examPaths"] = initial["examNames"] = noPaths;
  EXPECT_EQ(states[0], initial);

  Json expected = initial;
  expected.update(
      Json{{"currentQuestion", 2}, {"modified", true}, {"windowTitle", "Quorvantis - UnTitle *"}});
  expected.update(Json{{"currentKind", 3}, {"oralToggleVisible", true}, {"oralFlag", 1}});
  expected["form"].update(Json{{"title", "My exam"}, {"random", 1}, {"randomCaption", "Random(option)"}});
  for (const char* list : {"examList", "questionList"}) {
    expected[list] = {"a b.wav"};
    expected[std::string(list) + "Visible"] = true;
  }
  expected["examNames"][0] = "a b.wav";
  expected["examPaths"][0] = states[1]["examPaths"][0];
  expected["questionPaths"][0] = states[1]["questionPaths"][0];
  EXPECT_EQ(states[1], expected);
  EXPECT_EQ(fs::path(states[1]["questionPaths"][0]).parent_path().filename(), "a b~2.wav");

  expected.update(
      Json{{"currentQuestion", 1}, {"currentKind", 1}, {"oralToggleVisible", false}, {"oralFlag", 0}});
  expected.update(
      Json{{"questionList", Json::array()}, {"questionListVisible", false}, {"questionPaths", noPaths}});
  expected["form"].update(
      Json{{"answer", "a<@>"}, {"checks", {1, 0, 1, 0, 0}}, {"options", {"", "second", "", "", ""}}});
  EXPECT_EQ(states[2], expected);
}

TEST_F(EditScripts, LinesAreTakenApart) {
  const auto check = [this](const std::string& line, const std::string& text) {
    EXPECT_EQ(LastState(line)["form"]["text"], text) << line;
  };
  check("# a comment\n\n   # another\n\ttext  word ", "word");
  check("text word\r\nnext\r\nprev\r", "word");
  check("text \"two  words # no comment\"", "two  words # no comment");
  check(R"(text "\"\\\/\b\f\n\r\t\u00e9")", "\"\\/\b\f\n\r\t\u00e9");
  check(R"(text "\ud83d\ude00 \ud800.")", "\U0001F600 \uFFFD.");
  check("text \"\"", "");
  check("text \u6D4B\u8BD5", "\u6D4B\u8BD5");
  check("text a\"b", "a\"b");
  check("text fits\ntext " + std::string(4097, 'x'), "fits");
  EXPECT_EQ(LastState("text " + std::string(4097, 'x'))["modified"], true) << "a refused text is reported";
}

TEST_F(EditScripts, AFailingLineIsNamed) {
  const auto check = [this](const std::string& line, const std::string& reason) {
    SCOPED_TRACE(line);
    ExpectFailure(Command({"edit"}, "# first\nnext\n" + line + "\nstate\n"), "standard input:3: ");
    WriteBytes(folder / "script", line);
    ExpectFailure(Command({"edit", Path("script")}), "script:1: " + reason);
  };
  check("frobnicate", "unknown command \"frobnicate\"");
  check("text", "usage: text TEXT");
  check("text a b", "usage: text TEXT");
  check("next 1", "usage: next");
  check("option F x", "a letter from A to E");
  check("check \"\"", "a letter from A to E");
  check("kind quiz", "usage: kind choice|fillin|essay|oral");
  check("reply maybe", "usage: reply yes|no|cancel");
  check("remove 0", "the list has no entry 0");
  check("select -1", "the list has no entry -1");
  check("attach /absent/file", "/absent/file: There is no such file");
  check("attach /dev/null", "/dev/null: It is no regular file");
  check("text \"open", "a JSON string has no end");
  check("text \"\\x\"", "\\x is no escape");
  check("text \"\\u12g4\"", "\\u needs four hexadecimal digits");
  check("text \"a\"b", "a blank is missing behind a JSON string");
  ExpectFailure(Command({"edit"}, "close\nnext\n"), "standard input:2: the exam is closed");
  ExpectFailure(Command({"edit", Path("absent")}), "There is no such file");
  ExpectFailure(Command({"edit", folder.Path().string()}), "It is a folder");
}

TEST_F(EditScripts, FailingFileCommandsEndTheRun) {
  const auto check = [this](const std::string& line, const std::string& file) {
    const RunResult run = Command({"edit"}, line + " " + file + "\nstate\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Open file " + file + " error!"), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("standard input:1: " + line + " failed"), std::string::npos) << run.err;
  };
  check("open", Path("absent.exm"));
  check("saveas", Path("absent/new.exm"));
  EXPECT_EQ(LastState("saveas " + Path("x.txt"))["fileName"], "UnTitle");
}

TEST_F(EditScripts, RepliesAnswerTheSaveQuestions) {
  const std::string start = "text saved\nsaveas " + Path("exam.exm") + "\ntext changed\n";
  const auto check = [&](const std::string& rest, const std::string& text, const std::string& saved) {
    SCOPED_TRACE(rest);
    EXPECT_EQ(LastState(start + rest)["form"]["text"], text);
    EXPECT_EQ(Shown()["questions"][0]["text"], saved);
  };
  check("new", "changed", "saved");  // without a reply it counts as cancelled
  check("reply cancel\nnew", "changed", "saved");
  check("reply no\nnew", "", "saved");
  check("reply yes\nnew", "", "changed");
  check("reply cancel\nreply yes\nnew\nopen " + Path("exam.exm"), "changed", "changed");
  check("reply no\nopen " + Path("exam.exm"), "saved", "saved");
  check("reply yes\nclose", "changed", "changed");
  check("close\ntext again\nsave", "again", "again");  // cancelled, so still open
}

TEST_F(EditScripts, WorksInTheApplicationFolder) {
  WriteBytes(folder / "a.txt", "abc");
  const std::string script = "attach " + Path("a.txt") + "\ntext t\nsaveas " + Path("exam.exm") + "\nstate\n";
  const RunResult run = Command({"edit", "--app-folder", Path("app")}, script);
  const std::string attached = Json::parse(run.out)["questionPaths"][0];
  EXPECT_EQ(attached.find((folder / "app/~TEMP/").string()), 0u) << attached;
  EXPECT_FALSE(fs::exists(folder / "app/~TEMP"));

  const RunResult opened =
      Command({"--app-folder", Path("app"), "edit"}, "open " + Path("exam.exm") + "\nstate\n");
  const std::string unpacked = Json::parse(opened.out)["questionPaths"][0];
  EXPECT_EQ(unpacked.find((folder / "app/TEMP/").string()), 0u) << unpacked;
  EXPECT_FALSE(fs::exists(unpacked));
  EXPECT_TRUE(fs::exists(folder / "app"));
  ExpectFailure(Command({"show", Path("exam.exm"), "--app-folder", Path("a.txt")}), "application folder");
}

}  // namespace
}  // namespace quorvantis::test
