// SPDX-License-Identifier: MIT
// show, build and unpack.
#include "CommandLineTest.h"
#include "platform/posix/FolderLock.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class ExamCommands : public CommandLineTest {};

TEST_F(ExamCommands, UnpackStaysInItsFolder) {
  WriteBytes(folder / "a.txt", "exam's");
  WriteBytes(folder / "b/a.txt", "question's");
  const Json climbs = {{"path", "a.txt"}, {"name", "../../climbs.txt"}};
  Build({{"attachments", {{{"path", "a.txt"}}, climbs}},
         {"questions", {{{"number", 7}, {"text", "t"}, {"attachments", {{{"path", "b/a.txt"}}}}}}}});
  const auto unpack = [this](const char* target) {
    return Command({"unpack", Path("exam.exm"), Path(target)});
  };
  for (int i = 0; i < 2; ++i) {  // the second time over the results of the first
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

TEST_F(ExamCommands, OnlyOneProgramWorksInAFolder) {
  Build({{"title", "Once"}});
  const auto lock = FolderLock::Take(folder.Path());
  ExpectFailure(Command({"show", Path("exam.exm"), "--app-folder", folder.Path().string()}),
                "another program works in it");
}

}  // namespace
}  // namespace quorvantis::test
