// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"
#include "support/DocxBuilder.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

const fs::path kProject = QUORVANTIS_PROJECT;

/// One grey pixel.
const std::string kPixelPng(
    "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\10\0\0\0\0:~\x9bU\0\0\0\nIDATx\x9c"
    "ch\0\0\0\x82\0\x81w\xcdr\xb6\0\0\0\0IEND\xae"
    "B`\x82",
    67);

std::string WithoutEndBreaks(std::string text) {
  return text.erase(text.find_last_not_of("\r\n") + 1);
}

class ImportCommand : public CommandLineTest {
 protected:
  ImportCommand() { WriteBytes(folder / "rules.ini", Rules("Q;", "(?<Q1>q.*)|(?<Q2>.+)")); }

  static std::string Rules(const std::string& question, const std::string& pattern) {
    return "[Repository]\nSize=2\n[0]\nName=Math\nPreQuestion=" + question +
           "\nPreAnswer=A;\nPattern=" + pattern +
           "\n[1]\nName=math2\nPattern=x\n[7]\nPattern=(?<Q2>.+)\nPreAnswer=A;\n";
  }

  RunResult Import(const std::string& paper, std::vector<std::string> more = {"--repository", "#0"}) {
    WriteBytes(folder / "paper.txt", paper);
    std::vector<std::string> arguments{"import", Path("paper.txt"), Path("exam.exm"), "--rules",
                                       Path("rules.ini")};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Command(arguments);
  }

  /// The questions of the exam, one line each.
  std::string Questions() {
    std::string lines;
    const Json exam = Shown();
    for (const Json& question : exam["questions"]) {
      const std::string kind = question["kind"];
      lines += (kind == "Choice" ? "choice: " : kind == "FillIn" ? "fill-in: " : "essay: ");
      lines += WithoutEndBreaks(question["text"]) + " ";
      for (const std::string option : question["options"]) lines += option.empty() ? "" : "[" + option + "] ";
      for (const char* answer : {"answerLetters", "answerText", "essayAnswer"}) {
        lines += WithoutEndBreaks(question[answer]);
      }
      lines += "\n";
    }
    return lines;
  }
};

/// The text between "```<name>" and "```" after `at`, which then moves past it.
std::string TakeBlock(const std::string& page, const std::string& name, std::size_t& at) {
  const std::string begin = "\n```" + name + "\n";
  const std::size_t found = page.find(begin, at);
  if (found == std::string::npos) return {};
  at = page.find("\n```\n", found + 1);
  return page.substr(found + begin.size(), at + 1 - found - begin.size());
}

TEST_F(ImportCommand, ReadsTheExamplesOfTheManual) {
  const std::string page = ReadBytes(kProject / "docs" / "IMPORT-RULES.md");
  int examples = 0;
  for (std::size_t at = 0;; ++examples) {
    const std::string rules = TakeBlock(page, "ini", at);
    if (rules.empty()) break;
    WriteBytes(folder / "rules.ini", "[Repository]\nSize=1\n[0]\nName=x\n" + rules);
    const RunResult run = Import(TakeBlock(page, "paper", at));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(Questions(), TakeBlock(page, "result", at));
  }
  EXPECT_EQ(examples, 4);
}

TEST_F(ImportCommand, ReadsTheSamplePapers) {
  const fs::path papers = kProject / "samples" / "papers";
  const struct {
    const char* repository;
    const char* paper;
    std::string questions;
  } rows[] = {{"English, answers after", "english-own-answers.txt",
               "5 questions read: 2 choice, 0 true/false, 2 fill-in, 1 essay.\n"},
              {"English, answers at", "english-answer-key.txt",
               "6 questions read: 3 choice, 3 true/false, 0 fill-in, 0 essay.\n"},
              {"中文，答案在题后", "chinese-own-answers.txt",
               "5 questions read: 2 choice, 0 true/false, 2 fill-in, 1 essay.\n"},
              {"中文，答案在卷末", "chinese-answer-key.txt",
               "5 questions read: 2 choice, 3 true/false, 0 fill-in, 0 essay.\n"},
              {"Automatic numbers", "automatic-numbers.docx",
               "8 questions read: 8 choice, 0 true/false, 0 fill-in, 0 essay.\n"},
              {"Options in one line", "options-in-one-line.txt",
               "5 questions read: 4 choice, 0 true/false, 0 fill-in, 1 essay.\n"},
              {"Questions without answers", "no-answers.txt",
               "5 questions read: 3 choice, 0 true/false, 1 fill-in, 1 essay.\n"},
              {"分大题的中文试卷", "chinese-parts.txt",
               "5 questions read: 5 choice, 0 true/false, 0 fill-in, 0 essay.\n"}};
  for (const auto& row : rows) {
    const RunResult run = Command({"import", (papers / row.paper).string(), Path("exam.exm"), "--rules",
                                   (papers / "ImportExam.ini").string(), "--repository", row.repository});
    EXPECT_TRUE(run.out.starts_with(row.questions)) << run.out << run.err;
    EXPECT_EQ(Questions().find("====="), std::string::npos);
    EXPECT_EQ(run.out.find("rules learn"), std::string::npos);
  }
}

TEST_F(ImportCommand, AdvisesToLearnRulesForAPaperThatTheyDoNotFit) {
  const RunResult run = Import("1. What is it?\nAnswer: it is this\n");
  EXPECT_TRUE(run.out.ends_with("quorvantis-cli rules learn \"" + Path("paper.txt") + "\"\n")) << run.out;
}

TEST_F(ImportCommand, ReadsPicturesAndFormulasOfDocuments) {
  const auto paragraph = [](const std::string& runs) { return "<w:p>" + runs + "</w:p>"; };
  const auto text = [](const std::string& words) { return "<w:r><w:t>" + words + "</w:t></w:r>"; };
  const std::string formula = "<m:oMath><m:r><m:t>x</m:t></m:r></m:oMath>";
  WriteBytes(folder / "picture.png", kPixelPng);
  DocxBuilder()
      .Body(paragraph(text("Q;see") + DocxBuilder::PictureXml("p1") + text("thereA;yes")) +
            paragraph(text("Q;twoA;") + formula) +
            paragraph(text("Q;lostA;") + DocxBuilder::PictureXml("p2")))
      .Picture("p1", kPixelPng)
      .Picture("p2", "no picture")
      .Write(folder / "paper.docx");
  const auto import = [this](std::vector<std::string> more) {
    std::vector<std::string> arguments{
        "import", Path("paper.docx"), Path("exam.exm"), "--rules", Path("rules.ini"), "--repository", "#0"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Command(arguments);
  };
  EXPECT_EQ(
      import({"--mend-line-ends", "--answer-pictures", "force"}).out,
      "3 questions read: 0 choice, 0 true/false, 0 fill-in, 3 essay.\n"
      "A picture that could not be read (of an unknown kind): 2 of question 3.\n"
      "1 formula cannot be kept; \"##\" stands in its place.\n"
      "Question 1 is imported as it is, with the names of its pictures in its texts: an import that begins "
      "with question 1 does not check the pictures and formulas of its first question.\n");
  EXPECT_EQ(Questions(),
            "essay: see 1.bmp there yes\nessay: two ##\nessay: lost  2.bmp(Can not show the picture) \n");
  // The first question of a new exam is never looked at.
  const RunResult continued = import({"--into", Path("exam.exm"), "--after", "3", "--formulas", "ignore"});
  EXPECT_NE(continued.out.find("One of them was left out again"), std::string::npos) << continued.out;
  EXPECT_EQ(continued.out.find("formula cannot"), std::string::npos) << continued.out;
  const Json question = Shown()["questions"][3];
  EXPECT_EQ(question["text"], "see 1$$ there");
  EXPECT_EQ(question["attachments"][0]["name"], "1.bmp");
  EXPECT_EQ(question["attachments"][0]["size"], 54 + 4 + 14);
}

TEST_F(ImportCommand, CanBeUndone) {
  fs::create_directory(folder / "app");
  WriteBytes(folder / "app" / "ImportExam.ini", ReadBytes(folder / "rules.ini"));
  WriteBytes(folder / "file.bin", "bytes");
  const Json file = {{{"path", "file.bin"}}};
  Build({{"title", "T"},
         {"attachments", file},
         {"questions", {{{"text", "one"}, {"attachments", file}}, {{"text", "two"}}, {{"text", "three"}}}}});
  WriteBytes(folder / "paper.txt", "Q;q1A;BQ;2A;x.bmpQ;3A;C");
  const std::string import = "import " + Path("paper.txt") + " #0 ";
  const std::string begin = "open " + Path("exam.exm") + "\nnext\ntext typed\n";
  const auto outcome = [&](const std::string& script) {
    const RunResult run = Command({"edit", "--app-folder", Path("app")},
                                  begin + script + "state\nsaveas " + Path("after.exm") + "\n");
    EXPECT_EQ(run.status, 0) << run.err;
    Json exam = Shown("after.exm");
    return std::pair(Json::parse(run.out), exam);
  };
  const auto untouched = outcome("");
  EXPECT_EQ(untouched.second["questions"][0]["attachments"][0]["size"], 5);
  for (const std::string answers : {"continue", "continue pictures ignore", "continue pictures give-up"}) {
    EXPECT_EQ(outcome(import + answers + "\nundo-import\n"), untouched) << answers;
    EXPECT_NE(outcome(import + answers + "\n").second, untouched.second) << answers;
  }
  EXPECT_EQ(outcome(import + "new\nnext\ntext more\nundo-import\n"), untouched);
  ExpectFailure(Command({"edit"}, "import a b c\n"), "continue or new");
  const RunResult late =
      Command({"edit", "--app-folder", Path("app")}, import + "\nreply no\nnew\nundo-import\n");
  EXPECT_NE(late.err.find("standard input:4: there is no import to undo"), std::string::npos) << late.err;
}

}  // namespace
}  // namespace quorvantis::test
