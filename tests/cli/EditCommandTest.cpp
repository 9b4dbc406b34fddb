// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

using EditScripts = CommandLineTest;

TEST_F(EditScripts, StateTellsWhatTheWindowWouldShow) {
  WriteBytes(folder / "a b.wav", "sound");
  const std::string file = " \"" + Path("a b.wav") + "\"\n";
  const RunResult run = Command({"edit", "--app-folder", Path("app")},
                                "next\ntitle \"My exam\"\ncheck A\ncheck c\noption b second\nanswer a\n"
                                "separator\nrandom\nkind oral\nattach-exam" +
                                    file + "attach" + file + "select 0\noral\nstate\n");
  Json state = Json::parse(run.out);
  const std::string path = state["questionPaths"][0];
  EXPECT_TRUE(path.starts_with(Path("app/~TEMP/")) && path.ends_with("/a b~2.wav/a b.wav")) << path;
  EXPECT_FALSE(fs::exists(folder / "app/~TEMP"));
  for (const char* list : {"questionPaths", "examPaths", "examNames"}) {
    EXPECT_EQ(state[list].size(), 10u);
    state.erase(list);
  }
  const Json expected = Json::parse(R"-({"currentQuestion": 2, "modified": true, "fileName": "UnTitle",
    "windowTitle": "Quorvantis - UnTitle *", "currentKind": 3, "form": {"title": "My exam", "text": "",
    "options": ["", "second", "", "", ""], "checks": [1, 0, 1, 0, 0], "answer": "a<@>", "essay": "",
    "random": 1, "randomCaption": "Random(option)"}, "questionList": ["a b.wav"], "examList": ["a b.wav"],
    "questionListVisible": true, "examListVisible": true, "oralToggleVisible": true, "oralFlag": 1})-");
  EXPECT_EQ(state, expected);
}

}  // namespace
}  // namespace quorvantis::test
