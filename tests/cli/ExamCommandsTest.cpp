// SPDX-License-Identifier: MIT
// show, build and unpack.
#include "CommandLineTest.h"
#include "platform/posix/FolderLock.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class ExamCommands : public CommandLineTest {};

TEST_F(ExamCommands, ShowGivesBackWhatWasBuilt) {
  WriteBytes(folder / "files/a.txt", "abc");
  WriteBytes(folder / "files/empty", "");
  const std::string longAnswer(1024, 'x');
  Json exam = Json::parse(R"({
    "title": "Prüfung 测试 \uD83D\uDE00 \"quoted\"", "randomMode": 2, "scoreMode": 1, "boundaryQuestion": 3,
    "scoreRanges": [{"from": 1, "to": 2, "score": "2.50"}, {"from": 3, "to": 500, "score": "0.25"}],
    "attachments": [{"path": "files/a.txt", "name": "Übung.txt"}, {"path": "files/empty"}],
    "questions": [
      {"number": 1, "kind": "Choice", "text": "Line\r\nline", "options": ["a", "", "c", "", "e"], "answerLetters": "ac"},
      {"number": 2, "kind": "FillIn", "text": "long"},
      {"number": 3, "kind": "FillIn", "answerText": "ExcessTextAns"},
      {"number": 4, "kind": "Essay", "text": "t", "essayAnswer": "essay"},
      {"number": 5, "kindValue": 3, "text": "t", "oralFlag": 1, "attachments": [{"path": "files/a.txt"}]},
      {"number": 8, "kind": "-17", "text": "t", "options": ["a"], "answerText": "b", "essayAnswer": "c"}]})");
  exam["questions"][1]["answerText"] = longAnswer;
  const RunResult built = Build(exam);
  EXPECT_EQ(built.status, 0);
  EXPECT_EQ(built.out + built.err, "");

  const char* const sha = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
  exam["attachments"] = {{{"name", "Übung.txt"}, {"file", "Übung.txt"}, {"size", 3}, {"sha256", sha}},
                         {{"name", "empty"}, {"file", "empty"}, {"size", 0}, {"sha256", ""}}};
  exam["questions"][4]["attachments"] = {
      {{"name", "a.txt"}, {"file", "a.txt"}, {"size", 3}, {"sha256", sha}}};
  exam["questions"][4]["kind"] = "Oral";
  exam["questions"][5]["kindValue"] = -17;
  exam["questions"][0]["answerMask"] = 20;
  for (int number = 6; number <= 7; ++number) {
    const Json empty = {{"number", number}, {"kind", "Choice"}, {"text", ""}};
    exam["questions"].insert(exam["questions"].end() - 1, empty);
  }
  for (int i = 2; i < 10; ++i) {
    exam["scoreRanges"].push_back({{"from", 10 * i + 1}, {"to", 10 * i + 10}, {"score", "1.00"}});
  }
  exam["questions"][7]["options"] = {"a", "", "", "", ""};
  exam.update({{"format", "current"}, {"encoding", "utf-16"}, {"questionCount", 8}, {"truncated", false}});
  exam.update({{"hasOralQuestion", 1}, {"firstOralQuestion", 5}});
  const Json shown = Shown().flatten();
  const Json expected = exam.flatten();
  for (const auto& [place, value] : expected.items()) {
    EXPECT_EQ(shown.value(place, Json()), value) << place;
  }
  EXPECT_FALSE(shown.contains("/questions/8/text") || shown.contains("/attachments/2/name"));

  fs::resize_file(folder / "exam.exm", fs::file_size(folder / "exam.exm") - 10);
  EXPECT_EQ(Shown()["truncated"], true);
}

TEST_F(ExamCommands, UnpackStaysInItsFolder) {
  WriteBytes(folder / "a.txt", "exam's");
  WriteBytes(folder / "b/a.txt", "question's");
  const Json climbs = {{"path", "a.txt"}, {"name", "../../climbs.txt"}};
  Build({{"attachments", {{{"path", "a.txt"}}, climbs}},
         {"questions", {{{"number", 7}, {"text", "t"}, {"attachments", {{{"path", "b/a.txt"}}}}}}}});
  const auto unpack = [this](const char* target) {
    return Command({"unpack", Path("exam.exm"), Path(target)});
  };
  for (int i = 0; i < 2; ++i) {  // a second time over the first
    const RunResult run = unpack("new/out");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
  }
  EXPECT_EQ(ReadBytes(folder / "new/out/exam/a.txt"), "exam's");
  EXPECT_EQ(ReadBytes(folder / "new/out/exam/climbs.txt"), "exam's");
  EXPECT_EQ(ReadBytes(folder / "new/out/question-007/0a.txt"), "question's");
  const std::string file = Shown()["questions"][6]["attachments"][0]["file"];
  EXPECT_EQ(file, "0a.txt");

  fs::create_directories(folder / "elsewhere");
  fs::create_directories(folder / "links");
  fs::create_directory_symlink(folder / "elsewhere", folder / "links/exam");
  ExpectFailure(unpack("links"), "links/exam");
  EXPECT_TRUE(fs::is_empty(folder / "elsewhere"));

  fs::create_directories(folder / "filelinks/exam");
  fs::create_symlink(folder / "b/a.txt", folder / "filelinks/exam/a.txt");
  EXPECT_EQ(unpack("filelinks").status, 0);
  EXPECT_EQ(ReadBytes(folder / "b/a.txt"), "question's");
  ExpectFailure(unpack("a.txt"), "a.txt");
}

TEST_F(ExamCommands, NothingIsWrittenOverItsSourceOrBesideAnotherProgram) {
  Build({{"title", "Once"}});
  ExpectFailure(Command({"build", Path("exam.json"), Path("exam.json")}), "is the description itself");
  const auto lock = FolderLock::Take(folder.Path());
  ExpectFailure(Command({"show", Path("exam.exm"), "--app-folder", folder.Path().string()}),
                "another program works in it");
}

}  // namespace
}  // namespace quorvantis::test
