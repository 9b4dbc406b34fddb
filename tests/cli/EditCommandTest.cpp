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
  const std::string file = " \"" + Path("a b.wav") + "\"\n";
  const auto states = States("state\nnext\ntitle \"My exam\"\ncheck A\ncheck c\noption b second\nanswer a\n" +
                             ("separator\nrandom\nkind oral\nattach-exam" + file) + "attach" + file +
                             "select 0\noral\nstate\n");
  ASSERT_EQ(states.size(), 2u);
  Json expected = Json::parse(R"({"currentQuestion": 1, "modified": false, "fileName": "UnTitle",
    "windowTitle": "Quorvantis - UnTitle", "currentKind": 0, "form": {"title": "", "text": "",
    "options": ["", "", "", "", ""], "checks": [0, 0, 0, 0, 0], "answer": "", "essay": "", "random": 0,
    "randomCaption": "Random"}, "questionList": [], "examList": [], "questionListVisible": false,
    "examListVisible": false, "oralToggleVisible": false, "oralFlag": 0})");
  expected["questionPaths"] = expected["examPaths"] = expected["examNames"] = Json(10, "");
  EXPECT_EQ(states[0], expected);

  expected.merge_patch(Json::parse(R"({"currentQuestion": 2, "modified": true,
    "windowTitle": "Quorvantis - UnTitle *", "currentKind": 3, "form": {"title": "My exam",
    "options": ["", "second", "", "", ""], "checks": [1, 0, 1, 0, 0], "answer": "a<@>", "random": 1},
    "questionList": ["a b.wav"], "examList": ["a b.wav"], "questionListVisible": true,
    "examListVisible": true, "oralToggleVisible": true, "oralFlag": 1})"));
  expected["form"]["randomCaption"] = "Random(option)";
  expected["examNames"][0] = "a b.wav";
  expected["examPaths"][0] = states[1]["examPaths"][0];
  expected["questionPaths"][0] = states[1]["questionPaths"][0];
  EXPECT_EQ(states[1], expected);
  EXPECT_EQ(fs::path(states[1]["questionPaths"][0]).parent_path().filename(), "a b~2.wav");
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
  check("text a\"b", "a\"b");
  check("text fits\ntext " + std::string(4097, 'x'), "fits");
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
  check("option F x", "a letter from A to E");
  check("check \"\"", "a letter from A to E");
  check("kind quiz", "usage: kind choice|fillin|essay|oral");
  check("remove 0", "the list has no entry 0");
  check("attach /dev/null", "/dev/null: It is no regular file");
  check("text \"open", "a JSON string has no end");
  check("text \"\\x\"", "\\x is no escape");
  check("text \"\\u12g4\"", "\\u needs four hexadecimal digits");
  check("text \"a\"b", "a blank is missing behind a JSON string");
  ExpectFailure(Command({"edit"}, "close\nnext\n"), "standard input:2: the exam is closed");
  ExpectFailure(Command({"edit", Path("absent")}), "There is no such file");
  ExpectFailure(Command({"edit", folder.Path().string()}), "It is a folder");
}

TEST_F(EditScripts, RepliesAnswerTheSaveQuestions) {
  const std::string start = "text saved\nsaveas " + Path("exam.exm") + "\ntext changed\n";
  const auto check = [&](const std::string& rest, const std::string& text, const std::string& saved) {
    EXPECT_EQ(LastState(start + rest)["form"]["text"], text) << rest;
    EXPECT_EQ(Shown()["questions"][0]["text"], saved) << rest;
  };
  check("new", "changed", "saved");  // without a reply it counts as cancelled
  check("reply no\nnew", "", "saved");
  check("reply cancel\nreply yes\nnew\nopen " + Path("exam.exm"), "changed", "changed");
  check("close\ntext again\nsave", "again", "again");  // cancelled, so still open
}

TEST_F(EditScripts, WhatIsNotDoneIsTold) {
  const std::string file = Path("a.txt");
  WriteBytes(file, "abc");
  std::string full = "kind oral\n";
  for (int i = 0; i < 10; ++i) full += "attach " + file + "\nattach-exam " + file + "\n";
  const std::pair<std::string, std::string> rows[] = {
      {full + "attach " + file, file + ": not attached; a list holds at most 10 files"},
      {"option B " + std::string(257, 'x'), "Not changed: this field takes at most 256 characters."},
      {"kind fillin\noral", "not switched: the question is not oral"},
      {full + "title " + std::string(256, 'x'), ""}};
  for (const auto& [script, told] : rows) {
    const RunResult run = Command({"edit"}, script);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, told.empty() ? "" : "quorvantis-cli: " + told + "\n");
  }
  EXPECT_EQ(LastState("kind oral\nattach " + file + "\noral\nnext\nkind oral\noral")["oralFlag"], 1)
      << "whatever the flag of the question before";
}

TEST_F(EditScripts, WorksInTheApplicationFolder) {
  WriteBytes(folder / "a.txt", "abc");
  const auto pathOf = [this](const std::string& script) -> std::string {
    const RunResult run =
        Command({"edit", "--app-folder", Path("app")}, script + Path("exam.exm") + "\nstate\n");
    return Json::parse(run.out)["questionPaths"][0];
  };
  const std::string attached = pathOf("attach " + Path("a.txt") + "\ntext t\nsaveas ");
  EXPECT_TRUE(attached.starts_with(Path("app/~TEMP/"))) << attached;
  EXPECT_FALSE(fs::exists(folder / "app/~TEMP"));
  const std::string unpacked = pathOf("open ");
  EXPECT_TRUE(unpacked.starts_with(Path("app/TEMP/"))) << unpacked;
  EXPECT_FALSE(fs::exists(unpacked));
  EXPECT_TRUE(fs::exists(folder / "app"));
  ExpectFailure(Command({"show", Path("exam.exm"), "--app-folder", Path("a.txt")}), "application folder");
}

}  // namespace
}  // namespace quorvantis::test
