// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

class RulesCommand : public CommandLineTest {
 protected:
  RulesCommand() {
    std::string paper = "Spring test\n";
    for (int i = 1; i <= 6; ++i) {
      const std::string number = std::to_string(i);
      paper += number + ". Which one is number " + number +
               "?\nA. this one\nB. that one\nC. neither\nAnswer: " + std::string(1, "ABC"[i % 3]) + "\n\n";
    }
    WriteBytes(folder / "paper.txt", paper);
  }

  RunResult Learn(const std::vector<std::string>& more) {
    std::vector<std::string> arguments{"rules", "learn", Path("paper.txt")};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Command(arguments);
  }

  /// Says what was understood before it fails.
  static void ExpectRefusal(const RunResult& run, const std::string& reason) {
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find(reason), std::string::npos) << run.err;
  }

  RunResult LearnWithMarks(const std::string& marks) {
    WriteBytes(folder / "marks.json", marks);
    return Learn({"--marks", Path("marks.json")});
  }
};

TEST_F(RulesCommand, LearnsWhatItCanCheckAndImport) {
  const RunResult printed = Learn({});
  EXPECT_EQ(printed.status, 0) << printed.err;
  EXPECT_TRUE(printed.out.starts_with("[Repository]\nSize=1\n\n[0]\nName=paper\n")) << printed.out;
  EXPECT_NE(printed.err.find("6 questions were found."), std::string::npos) << printed.err;

  const RunResult added = Learn({"--ini", Path("rules.ini"), "--repository", "Spring"});
  EXPECT_EQ(added.status, 0) << added.err;
  EXPECT_EQ(added.out, "");
  const RunResult checked =
      Command({"rules", "check", Path("paper.txt"), "--repository", "Spring", "--rules", Path("rules.ini")});
  EXPECT_EQ(checked.status, 0) << checked.err;
  EXPECT_NE(checked.out.find("\n6    Choice  same   0      A             Which one is number 6?"),
            std::string::npos)
      << checked.out;

  ASSERT_EQ(Command({"import", Path("paper.txt"), Path("exam.exm"), "--rules", Path("rules.ini"),
                     "--repository", "Spring"})
                .status,
            0);
  const Json byRules = Shown();
  const RunResult atOnce = Command({"import", Path("paper.txt"), Path("exam.exm"), "--learn", "--marked",
                                    Path("marked.txt"), "--text", Path("text.txt")});
  EXPECT_EQ(atOnce.status, 0) << atOnce.err;
  EXPECT_TRUE(atOnce.out.starts_with("6 questions read: 6 choice")) << atOnce.out;
  EXPECT_EQ(Shown(), byRules);
  EXPECT_EQ(ReadBytes(folder / "text.txt"), ReadBytes(folder / "paper.txt"));
  EXPECT_NE(ReadBytes(folder / "marked.txt").find("@@@@@"), std::string::npos);
}

TEST_F(RulesCommand, AddNothingThatCannotBeChosen) {
  ASSERT_EQ(Learn({"--ini", Path("rules.ini"), "--repository", "Spring"}).status, 0);
  const std::string before = ReadBytes(folder / "rules.ini");
  ExpectRefusal(Learn({"--ini", Path("rules.ini"), "--repository", "spring"}), "already are rules");
  ExpectRefusal(Learn({"--ini", Path("rules.ini"), "--repository", "Spring 2"}), "begin alike");
  ExpectRefusal(Learn({"--repository", "#2"}), "cannot be saved");
  ExpectRefusal(Learn({"--ini", Path("paper.txt")}), "is a file to read");
  ExpectRefusal(Learn({"--ini", folder.Path().string()}), "cannot be read");
  EXPECT_EQ(ReadBytes(folder / "rules.ini"), before);
}

TEST_F(RulesCommand, TellsWhatIsWrongWithMarks) {
  EXPECT_EQ(LearnWithMarks(R"([{"text": "B.", "nth": 6, "role": "option-label"}])").status, 0);
  EXPECT_EQ(LearnWithMarks(R"([{"begin": 0, "end": 11, "role": "not-exam"}])").status, 0);
  const struct {
    const char* marks;
    const char* message;
  } kCases[] = {
      {R"([{"text": "B.", "nth": 7, "role": "option"}])", "only 6 times"},
      {R"([{"text": "Z.", "role": "option"}])", "not in the paper"},
      {R"([{"text": "B.", "nth": 0, "role": "option"}])", "must be 1 or more"},
      {R"([{"text": "B.", "role": "title"}])", "must be one of question-number"},
      {R"([{"text": "B."}])", "needs a \"role\""},
      {R"([{"begin": 5, "end": 5, "role": "option"}])", "must end behind its begin"},
      {R"([{"begin": 5, "end": 5000, "role": "option"}])", "ends behind the paper"},
      {R"([{"text": "A.", "role": "option"}, {"text": "A. this", "role": "answer"}])", "contradict"},
      {"[", "not valid JSON"},
      {"{}", "must be a list"},
  };
  for (const auto& row : kCases) ExpectFailure(LearnWithMarks(row.marks), row.message);
}

TEST_F(RulesCommand, ChecksShowWhatIsNotUnderstood) {
  WriteBytes(
      folder / "rules.ini",
      "[Repository]\nSize=1\n[0]\nName=x\nPreQuestion=^[0-9]+\\.\nPreAnswer=^Reply:\nPattern=(?<Q2>.+)\n"
      "Title=(\n");
  const RunResult run =
      Command({"rules", "check", Path("paper.txt"), "--repository", "x", "--rules", Path("rules.ini")});
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.err.find("the rules explain only"), std::string::npos) << run.err;
  EXPECT_NE(run.out.find("PreQuestion                  6  \"1.\"  \"2.\""), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("not a valid pattern"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("nothing takes line 3: A. this one"), std::string::npos) << run.out;
  ExpectFailure(
      Command({"rules", "check", Path("paper.txt"), "--repository", "y", "--rules", Path("rules.ini")}),
      "no repository begins");
}

TEST_F(RulesCommand, RefusesPapersWithoutQuestions) {
  WriteBytes(folder / "paper.txt", "");
  ExpectFailure(Learn({}), "No questions were found");
  WriteBytes(folder / "paper.txt", "It was a dark and stormy night.\n\nNobody asked anything.\n");
  ExpectFailure(Learn({}), "No questions were found");
  WriteBytes(folder / "paper.txt", std::string("1. a\0b", 6));
  ExpectFailure(Learn({}), "is not a document");
  WriteBytes(folder / "paper.txt", std::string(3'000'001, 'x'));
  ExpectFailure(Learn({}), "Split it");
  EXPECT_EQ(Command({"import", Path("paper.txt"), Path("exam.exm")}).status, 2);
  EXPECT_EQ(Command({"import", Path("paper.txt"), Path("exam.exm"), "--marks", "m"}).status, 2);
  EXPECT_EQ(Command({"import", Path("paper.txt"), Path("exam.exm"), "--learn", "--repository", "x"}).status,
            2);
}

}  // namespace
}  // namespace quorvantis::test
