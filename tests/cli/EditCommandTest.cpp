// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class EditScripts : public CommandLineTest {
 protected:
  /// Runs a script that must succeed and returns the states that it printed.
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
}

}  // namespace
}  // namespace quorvantis::test
