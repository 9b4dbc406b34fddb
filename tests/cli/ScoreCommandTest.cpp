// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

class ScoreCommand : public CommandLineTest {
 protected:
  void BuildExam(int questionCount) {
    Build({{"scoreMode", 1}, {"questions", {{{"number", questionCount}, {"text", "t"}}}}});
  }
  RunResult Score(std::vector<std::string> options) {
    options.insert(options.begin(), {"score", Path("exam.exm"), Path("out.exm")});
    return Command(options);
  }

  /// Mode and used ranges as "1: 1-10*1.00 11-25*1.00".
  std::string Ranges(const char* file) {
    const Json exam = Shown(file);
    std::string text = exam["scoreMode"].dump() + ":";
    for (const Json& range : exam["scoreRanges"]) {
      if (range["to"] == 0) continue;
      text += " " + range["from"].dump() + "-" + range["to"].dump() + "*" + range["score"].get<std::string>();
    }
    return text;
  }
};

TEST_F(ScoreCommand, OptionsActInTheOrderGiven) {
  BuildExam(25);
  const auto check = [this](const std::vector<std::string>& options, const std::string& ranges,
                            const std::string& note) {
    const RunResult run = Score(options);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err.empty(), note.empty()) << run.err;
    EXPECT_NE(run.err.find(note), std::string::npos) << run.err;
    EXPECT_EQ(Ranges("out.exm"), ranges);
  };
  check({}, "1: 1-10*1.00 11-25*1.00", "");
  check({"--end", "1=5", "--value", "2=2.5"}, "1: 1-5*1.00 6-25*2.50", "");
  check({"--value", "2=2.5", "--end", "1=5"}, "1: 1-5*1.00 6-25*1.00", "puts all scores back");
  check({"--end=1=5", "--mode", "same", "--end=1=7"}, "0: 1-5*1.00 6-25*1.00", "in this score mode");
  check({"--end", "1=30"}, "1: 1-10*1.00 11-25*1.00", "cannot be \"30\"; it stays 10");
  check({"--end", "2=20", "--end", "1=20"}, "1: 1-19*1.00 20-20*1.00 21-25*0.00", "it is 19 now");
  check({"--end", "10=20"}, "1: 1-10*1.00 11-25*1.00", "the end of score range 10 cannot be typed into");
  check({"--value", "3=2"}, "1: 1-10*1.00 11-25*1.00", "the score of score range 3 cannot be typed into");
}

TEST_F(ScoreCommand, WrongOptionsAreWrongUsage) {
  BuildExam(25);
  const auto check = [this](const char* option, const char* value, const std::string& reason) {
    const RunResult run = Score({option, value});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find(option + (": " + reason)), std::string::npos) << run.err;
    EXPECT_FALSE(std::filesystem::exists(folder / "out.exm"));
  };
  check("--mode", "custm", "the mode is same or custom");
  for (const char* range : {"0=5", "11=5", "01=5", "x=5", "=5"}) check("--end", range, "\"");
  check("--end", "5", "\"5\" is not of the form");
  for (const char* score : {"1=", "1=2,5", "1=-2", "1=1.2.3", "1=.", "1=1e3"}) check("--value", score, "\"");
}

TEST_F(ScoreCommand, KeepsTheRestOfTheExamInScriptsToo) {
  WriteBytes(folder / "a.txt", "abc");
  Build({{"attachments", {{{"path", "a.txt"}}}},
         {"questions", {{{"kind", "FillIn"}, {"answerText", std::string(1000, 'x')}}, {{"text", "t"}}}}});
  const Json exam = Shown();
  Score({"--mode", "custom", "--end", "1=1", "--value", "2=0.5"});
  const Json scored = Shown("out.exm");
  const std::string open = "open " + Path("exam.exm") + "\n";
  const std::string save = "\nsaveas " + Path("out.exm") + "\n";
  const RunResult run =
      Command({"edit"}, open + "score mode custom\nscore end 1 1\nscore value 2 0.5\nstate" + save);
  EXPECT_EQ(Json::parse(run.out)["modified"], true) << run.err;
  EXPECT_EQ(Shown("out.exm"), scored);
  EXPECT_EQ(Ranges("out.exm"), "1: 1-1*0.00 2-2*0.50");
  for (const char* rest : {"attachments", "questions", "title", "questionCount"})
    EXPECT_EQ(scored[rest], exam[rest]);
  ExpectFailure(Command({"edit"}, open + "score value 11 1"), "standard input:2: ");
}

}  // namespace
}  // namespace quorvantis::test
