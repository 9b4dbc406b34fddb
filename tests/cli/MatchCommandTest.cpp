// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

using MatchCommandTest = CommandLineTest;

TEST_F(MatchCommandTest, PrintsWhereTheGroupsMatched) {
  const RunResult found = Command({"match", "(?<Q1>中)(b)?", "--text", "x中"});
  EXPECT_EQ(Json::parse(found.out), Json::parse(R"({"compiled":true, "error":"", "matched":true,
            "groups":[[1,2],[1,2],[-1,-1]], "names":{"q1":1}})"));
  EXPECT_EQ(Json::parse(Command({"match", "(", "--text", "a"}).out)["error"],
            "the group is not closed by ), at 0");
  EXPECT_EQ(Json::parse(Command({"match", "B", "--flags", "8", "--start", "1"}, "bab").out)["groups"][0][0],
            2);
}

TEST_F(MatchCommandTest, TriesTheLinesOfAFile) {
  WriteBytes(folder / "batch", R"({"pattern":"^b$","text":"a\nb"})"
                               "\n\n"
                               R"({"pattern":"a.b","flags":0,"text":"a\nb"})"
                               "\n{\n");
  const RunResult run = Command({"match", "--batch", Path("batch")});
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.err.find("batch:4: is not valid JSON"), std::string::npos) << run.err;
  std::istringstream lines(run.out);
  std::string first;
  std::string second;
  std::getline(lines, first);
  std::getline(lines, second);
  EXPECT_EQ(Json::parse(first)["groups"], Json::parse("[[2,3]]"));
  EXPECT_EQ(Json::parse(second)["matched"], false);
}

}  // namespace
}  // namespace quorvantis::test
