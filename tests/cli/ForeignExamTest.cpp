// SPDX-License-Identifier: MIT
// Exam files of other programs that hold more than an exam can have here.
#include "../examfile/ExamBytes.h"
#include "CommandLineTest.h"

namespace quorvantis::test {
namespace {

constexpr const char* kAll =
    "This file holds more than an exam can have. Not read: 2 files attached to the exam, after the tenth; "
    "1 file attached to questions, after the tenth of a question (first at question 2); "
    "1 question after question 500.";
constexpr const char* kIsLost = "what was not read of it is lost";

class ForeignExam : public CommandLineTest {
 protected:
  ForeignExam() {
    TypedExam typed{.questions = std::vector<TypedQuestion>(501, {.kind = u"0", .text = u"x"})};
    typed.files = std::vector<TypedFile>(12, {u"f", "content"});
    typed.questions[1].files = std::vector<TypedFile>(11, {u"f", "content"});
    bytes = Type(AllForms()[0], typed).bytes;
  }

  std::string bytes;
};

TEST_F(ForeignExam, IsToldOfWhereverItIsReadAndBeforeItIsReplaced) {
  struct Row {
    std::vector<std::string> command;
    std::string script;
    bool loses;
  };
  const Row rows[] = {{{"show", Path("foreign.exm")}, "", false},
                      {{"unpack", Path("foreign.exm"), Path("out")}, "", false},
                      {{"edit"}, "take " + Path("foreign.exm") + " 3\nsaveas " + Path("own.exm"), false},
                      {{"edit"}, "open " + Path("foreign.exm") + "\nsaveas " + Path("own.exm"), false},
                      {{"edit"}, "open " + Path("foreign.exm") + "\nsave\nsave", true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.command) + row.script);
    WriteBytes(folder / "foreign.exm", bytes);
    const RunResult run = Command(row.command, row.script);
    EXPECT_EQ(run.status, 0);
    const std::size_t told = run.err.find(kAll);
    ASSERT_NE(told, std::string::npos) << run.err;
    EXPECT_EQ(run.err.find(kAll, told + 1), std::string::npos) << "once";
    const std::size_t lost = run.err.find(kIsLost);
    EXPECT_EQ(lost != std::string::npos, row.loses) << run.err;
    EXPECT_TRUE(!row.loses || run.err.find(kIsLost, lost + 1) == std::string::npos) << "it is gone then";
  }
  EXPECT_EQ(Shown("own.exm")["questionCount"], 500);
}

TEST_F(ForeignExam, IsNotSaidToGoOnWhereItEnds) {
  const std::size_t size = Type(AllForms()[0], {.questions = {{.kind = u"0"}}}).bytes.size() -
                           Type(AllForms()[0], {}).bytes.size();
  WriteBytes(folder / "foreign.exm", bytes.substr(0, bytes.size() - size));
  const RunResult run = Command({"show", Path("foreign.exm")});
  EXPECT_EQ(run.err.find("after question 500"), std::string::npos) << run.err;
}

}  // namespace
}  // namespace quorvantis::test
