// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"
#include "support/DocxBuilder.h"

#include <fstream>

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

std::string ReadText(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

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

/// The text between "```<name>" and "```" from `at` on, which moves behind it.
std::string TakeBlock(const std::string& page, const std::string& name, std::size_t& at) {
  const std::string begin = "\n```" + name + "\n";
  const std::size_t found = page.find(begin, at);
  if (found == std::string::npos) return {};
  at = page.find("\n```\n", found + 1);
  return page.substr(found + begin.size(), at + 1 - found - begin.size());
}

TEST_F(ImportCommand, ReadsTheExamplesOfTheManual) {
  const std::string page = ReadText(kProject / "docs" / "IMPORT-RULES.md");
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
    std::string first;
    std::string questions;
  } rows[] = {
      {"English, answers after", "english-own-answers.txt", "choice: Which planet is closest to the sun? [Ve",
       "5 questions read: 2 choice, 0 true/false, 2 fill-in, 1 essay.\n"},
      {"English, answers at", "english-answer-key.txt", "choice: Which river flows through Cairo? [Nile] [C",
       "6 questions read: 3 choice, 3 true/false, 0 fill-in, 0 essay.\n"},
      {"中文，答案在题后", "chinese-own-answers.txt",
       "choice: 离太阳最近的行星是哪一颗？ [金星] [水星] [火星] B\n",
       "5 questions read: 2 choice, 0 true/false, 2 fill-in, 1 essay.\n"},
      {"中文，答案在卷末", "chinese-answer-key.txt", "choice: 流经开罗的是哪条河？ [尼罗河] [刚果河] A\n",
       "5 questions read: 2 choice, 3 true/false, 0 fill-in, 0 essay.\n"}};
  for (const auto& row : rows) {
    const RunResult run = Command({"import", (papers / row.paper).string(), Path("exam.exm"), "--rules",
                                   (papers / "ImportExam.ini").string(), "--repository", row.repository});
    EXPECT_TRUE(run.out.starts_with(row.questions)) << run.out << run.err;
    EXPECT_TRUE(Questions().starts_with(row.first)) << Questions();
    EXPECT_EQ(Questions().find("====="), std::string::npos);
  }
}

TEST_F(ImportCommand, TellsWhatWasNotRecognised) {
  const RunResult run = Import("#####Q;q1A;BQ;lost\nQ;2A;x",
                               {"--repository", "#0", "--marked", Path("m"), "--text", Path("t")});
  EXPECT_EQ(
      run.out,
      "2 questions read: 1 choice, 0 true/false, 0 fill-in, 1 essay.\n"
      "1 part of the paper was left out because the rule \"PreAnswer\" matched nothing there; it begins: "
      "lost\n"
      "The paper itself contains \"#####\", which the import takes for one of its own markers.\n");
  EXPECT_EQ(ReadText(folder / "m"), "#####!!!!!q1@@@@@B!!!!!lost\n!!!!!2@@@@@x");
  EXPECT_EQ(ReadText(folder / "t"), "#####Q;q1A;BQ;lost\nQ;2A;x");
}

TEST_F(ImportCommand, FailsWithOneLineAndWritesNothing) {
  const auto refused = [this](const std::string& reason, const std::string& rules,
                              std::vector<std::string> more) {
    SCOPED_TRACE(reason);
    WriteBytes(folder / "rules.ini", rules);
    ExpectFailure(Import("Q;a.bmpA;b.bmp", std::move(more)), reason);
    EXPECT_FALSE(fs::exists(folder / "exam.exm"));
  };
  const std::string good = Rules("Q;", ".+");
  refused("\"PreQuestion\" in ImportExam.ini never ends", Rules("Q?", ".+"), {"--repository", "#0"});
  refused("no repository begins with \"x\"; it has \"Math\", \"math2\"", good, {"--repository", "x"});
  refused("section 1 needs the keys", good, {"--repository", "Math"});  // the later one is found first
  refused("section 3 needs the keys", good, {"--repository", "#3"});
  refused("absent.exm: cannot be opened", good,
          {"--repository", "#0", "--into", Path("absent.exm"), "--after", "1"});
  ExpectFailure(Command({"import", Path("a.doc"), Path("b"), "--repository", "#0"}), "There is no such file");
  WriteBytes(folder / "a.doc", "");
  ExpectFailure(
      Command({"import", Path("a.doc"), Path("b"), "--rules", Path("rules.ini"), "--repository", "#0"}),
      "a.doc is not a document that can be imported");
  EXPECT_EQ(Import("x", {"--repository", "#0", "--after", "1"}).status, 2);
  EXPECT_EQ(Import("x", {"--repository", "#0", "--into", Path("in.exm"), "--after", "0x10"}).status, 2);
  refused("exam.exm: cannot be written twice", good, {"--repository", "#0", "--text", Path("./exam.exm")});
  WriteBytes(folder / "rules.ini", "[Repository]\nSize=2000000000\n" + good.substr(20));
  ExpectFailure(Import("x", {"--repository", "x"}), "it has \"Math\", \"math2\"\n");
}

TEST_F(ImportCommand, ContinuesAnExam) {
  Json questions;
  WriteBytes(folder / "file", "x");
  for (const char* text : {"one", "two", "three", "four", "five"}) {
    questions.push_back({{"text", text}, {"kind", "Essay"}, {"essayAnswer", "old"}});
  }
  questions[2]["attachments"] = {{{"path", "file"}}};
  WriteBytes(folder / "in.json", Json({{"questions", questions}}).dump());
  EXPECT_EQ(Command({"build", Path("in.json"), Path("in.exm")}).status, 0);
  EXPECT_EQ(Import("Q;newA;B", {"--repository", "#0", "--into", Path("in.exm"), "--after", "2"}).out,
            "1 question read: 0 choice, 0 true/false, 0 fill-in, 1 essay.\n"
            "It is question 3 of the exam.\n"
            "Earlier question replaced or removed: 4.\n"
            "Files of earlier questions are still attached to question 3.\n");
  // The slot after the imported ones gets what the first of them held.
  EXPECT_EQ(Questions(), "essay: one old\nessay: two old\nessay: new B\nessay: three old\nessay: five old\n");
}

TEST_F(ImportCommand, AsksAboutPicturesInAnswers) {
  const std::string paper = "Q;firstA;1.bmpQ;see ../../x.bmp 2.bmpA;bQ;thirdA;3.bmp";
  EXPECT_NE(Import(paper).err.find("question 2: the attached file ../../x.bmp is missing"),
            std::string::npos);
  EXPECT_EQ(Questions(),
            "essay: first 1.bmp\nessay: see ../../x$$ 2$$ b\n"
            "essay: third 3.bmp(Can not show the picture)\n");
  EXPECT_EQ(Shown()["questions"][1]["attachments"][0]["name"], "../../x.bmp");
  Import(paper, {"--repository", "#0", "--answer-pictures", "ignore"});
  EXPECT_EQ(Questions(), "essay: first 1.bmp\nessay: see ../../x$$ 2$$ b\n");
  const RunResult forced = Import(paper, {"--repository", "#0", "--answer-pictures", "force"});
  EXPECT_NE(forced.err.find("1,3,The answer in the exam have pictures,can not display"), std::string::npos);
  ExpectFailure(Import(paper, {"--repository", "#0", "--answer-pictures", "give-up", "--text", Path("t"),
                               "--marked", Path("m")}),
                "given up");
  EXPECT_EQ(ReadText(folder / "t"), paper);
  EXPECT_EQ(ReadText(folder / "m").substr(0, 20), "!!!!!first@@@@@1.bmp");
}

TEST_F(ImportCommand, WritesItsTextsWhenARuleFails) {
  WriteBytes(folder / "rules.ini", Rules("Q;", ".+") + "[2]\nPattern=x\nPreQuestion=Q;\nPreAnswer=@|A;\n");
  ExpectFailure(Import("Q;aA;b", {"--repository", "#2", "--text", Path("t"), "--marked", Path("m")}),
                "\"PreAnswer\" in ImportExam.ini never ends");
  EXPECT_EQ(ReadText(folder / "t"), "Q;aA;b");
  EXPECT_NE(ReadText(folder / "m").find('@'), std::string::npos);
}

TEST_F(ImportCommand, KeepsLongAnswersWhole) {
  WriteBytes(folder / "rules.ini", Rules("Q;", "(?<Q2>.+)"));
  const auto lengths = [this](std::size_t length) {
    const RunResult run = Import("Q;a___A;" + std::string(length, 'x'));
    return std::pair(run.err, Shown()["questions"][0]["answerText"].get<std::string>().size());
  };
  EXPECT_EQ(lengths(400), std::pair(std::string(), std::size_t{400}));
  const auto [told, kept] = lengths(2000);
  EXPECT_EQ(kept, 1024U);
  EXPECT_NE(told.find("from 2000 to 1024 characters"), std::string::npos) << told;
  EXPECT_EQ(told.find("256"), std::string::npos) << told;
}

TEST_F(ImportCommand, TellsOfAnswersThatGoByOrder) {
  const auto told = [this](const std::string& key) {
    WriteBytes(folder / "rules.ini",
               "[Repository]\nSize=1\n[0]\nPreQuestion=Q;\nPreAnswer=A;\nPattern=(?<Q1>[^Q]+)\n"
               "PreAllAnswer=Key\nChoiceAnswerPattern=[$]{5}.*\nChoiceAnswer=(?<=[.-])[A-E]\n");
    const std::string out = Import("Q;aQ;bQ;cKey " + key).out;
    const std::size_t at = out.find("the answer with number");
    return at == std::string::npos ? "" : out.substr(at + 16, out.find(" of the paper", at) - at - 16);
  };
  EXPECT_EQ(told("1.A 2.B 3.C"), "");
  EXPECT_EQ(told("7.A 8.B 9.C"), "");
  EXPECT_EQ(told("1.A1.B2.C"), "");
  EXPECT_EQ(told("1-3-A-B-C"), "");
  EXPECT_EQ(told("1.A 3.B 2.C"), "number 3 went to question 2");
  EXPECT_EQ(told("1.A 2.B 4.C"), "number 4 went to question 3");
  EXPECT_EQ(told("2.A 3.B"), "number 2 went to question 1");
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
  WriteBytes(folder / "app" / "ImportExam.ini", ReadText(folder / "rules.ini"));
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
  const RunResult late =
      Command({"edit", "--app-folder", Path("app")}, import + "\nreply no\nnew\nundo-import\n");
  EXPECT_NE(late.err.find("standard input:4: there is no import to undo"), std::string::npos) << late.err;
}

TEST_F(ImportCommand, IsALineOfEditScripts) {
  fs::create_directory(folder / "app");
  WriteBytes(folder / "app" / "ImportExam.ini", ReadText(folder / "rules.ini"));
  WriteBytes(folder / "paper.txt", "Q;q1A;BQ;2A;x.bmp");
  const std::string line = "import " + Path("paper.txt") + " #0";
  const auto state = [&](const std::string& script) {
    const RunResult run = Command({"edit", "--app-folder", Path("app")}, script + "\nstate\n");
    EXPECT_EQ(run.status, 0) << run.err;
    return Json::parse(run.out);
  };
  const Json fresh = state("text typed\n" + line);
  EXPECT_EQ(fresh["currentQuestion"], 2);
  EXPECT_EQ(fresh["form"]["text"], "2");
  EXPECT_TRUE(fresh["modified"]);
  EXPECT_EQ(state(line + "\nnext\ntext typed\n")["windowTitle"], "Quorvantis - UnTitle");
  EXPECT_EQ(state("text typed\n" + line + "\nnext")["form"]["text"], "typed");
  EXPECT_EQ(state("next\n" + line + " continue pictures ignore")["currentQuestion"], 3);
  const Json gone = state("next\ntext two\nnext\nprev\n" + line + " continue pictures give-up");
  EXPECT_EQ(gone["form"]["text"], "two");
  EXPECT_FALSE(gone["modified"]);
  ExpectFailure(Command({"edit"}, "import a b c\n"), "continue or new");
}

}  // namespace
}  // namespace quorvantis::test
