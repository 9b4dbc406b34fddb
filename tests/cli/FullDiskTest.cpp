// SPDX-License-Identifier: MIT
// Every command that writes, on a disk that fills up at any of its steps.
#include "CommandLineTest.h"
#include "platform/documents/OfficeWordDocuments.h"
#include "support/OrdinaryUser.h"
#include "support/TinyDisk.h"

#include <map>
#include <optional>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

using Tree = std::map<fs::path, std::string>;  ///< content of files by their paths

/// Of a page, which names its folder, the size only.
void AddTo(Tree& tree, const fs::path& folder) {
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string bytes = ReadBytes(entry.path());
    const bool isPage = entry.path().extension() == ".htm";
    tree[entry.path().lexically_relative(folder)] = isPage ? std::to_string(bytes.size()) : bytes;
  }
}

/// Of a folder and everything in it.
void SetPermissions(const fs::path& folder, int permissions) {
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    fs::permissions(entry, fs::perms(permissions));
  fs::permissions(folder, fs::perms(permissions));
}

enum class Small { Target, Application, Temporary };  ///< what lies on the disk that fills up

struct Trial {
  Small disk;
  std::vector<std::string> command;  ///< "out/" is the folder of its results, "app" the application folder
  std::string script;
};

class FullDiskCommands : public CommandLineTest {
 protected:
  FullDiskCommands() {
    for (const char* name : {"a.bin", "b.bin"}) WriteBytes(folder / name, std::string(60'000, name[0]));
    Build(Json::parse(R"({"title": "T", "attachments": [{"path": "a.bin"}], "questions": [
      {"text": "one", "attachments": [{"path": "b.bin"}]}, {"kind": "Essay", "text": "two"}]})"));
    WriteBytes(folder / "paper.txt", "1. What is it?\r\nA. yes\r\nB. no\r\nAns: A\r\n");
    Command({"edit", "--recovery", "--app-folder", Path("lost")},
            "open " + Path("exam.exm") + "\ntitle Lost\n");
  }

  /// With `room` KiB on the small disk; what lies in the folders before and after.
  struct Outcome {
    RunResult result;
    Tree before;
    Tree after;
  };
  const std::vector<std::string> kImport{"import",
                                         "IN/paper.txt",
                                         "OUT/old.exm",
                                         "--rules",
                                         std::string(QUORVANTIS_PROJECT) + "/samples/papers/ImportExam.ini",
                                         "--repository",
                                         "#1",
                                         "--into",
                                         "IN/exam.exm",
                                         "--after",
                                         "2"};
  const std::string kSave = "open OUT/exam.exm\ntitle changed\nsave\n";
  const std::vector<Trial> kTrials{
      {Small::Target, {"build", "IN/exam.json", "OUT/old.exm"}, ""},
      {Small::Temporary, {"build", "IN/exam.json", "OUT/old.exm"}, ""},
      {Small::Target, {"score", "IN/exam.exm", "OUT/old.exm", "--mode", "same"}, ""},
      {Small::Temporary, {"score", "IN/exam.exm", "OUT/old.exm", "--mode", "same"}, ""},
      {Small::Target, kImport, ""},
      {Small::Temporary, kImport, ""},
      {Small::Target, {"unpack", "IN/exam.exm", "OUT/"}, ""},
      {Small::Temporary, {"unpack", "IN/exam.exm", "OUT/"}, ""},
      {Small::Application, {"preview", "IN/exam.exm", "APP"}, ""},
      {Small::Application, {"print", "IN/exam.exm", "APP", "--after-preview"}, ""},
      {Small::Target, {"edit"}, kSave},
      {Small::Temporary, {"edit"}, kSave},
      {Small::Application, {"edit", "--app-folder", "APP"}, kSave},
      {Small::Target, {"edit"}, "open IN/exam.exm\nsaveas OUT/old.exm\n"},
      {Small::Target, {"recover", "--app-folder", "IN/lost", "1", "OUT/old.exm"}, ""},
  };

  static constexpr std::size_t kReadOnly = 0;  ///< in the place of a room
  static constexpr std::size_t kPlenty = 4000;

  /// Nothing where there can be no disk with so much room.
  std::optional<Outcome> Try(const Trial& trial, std::size_t room) {
    std::optional<TinyDisk> disk;
    if (room != kReadOnly && !disk.emplace(kPlenty + 96).Works()) return std::nullopt;
    fs::remove_all(folder / "work");
    const auto place = [&](Small what, const char* name) {
      return disk && trial.disk == what ? disk->Path()
                                        : WriteBytes(folder / "work" / name / "x", "").parent_path();
    };
    const fs::path out = place(Small::Target, "out");
    const fs::path app = place(Small::Application, "app");
    const fs::path tmp = place(Small::Temporary, "tmp");
    for (const char* name : {"old.exm", "old.docx", "exam/a.bin"}) WriteBytes(out / name, "old");
    fs::copy_file(folder / "exam.exm", out / "exam.exm");
    const auto filled = [&](std::string text) {
      const std::pair<std::string, fs::path> places[] = {
          {"IN/", folder / ""}, {"OUT/", out / ""}, {"APP", app}};
      for (const auto& [name, path] : places) {
        for (auto at = text.find(name); at != text.npos; at = text.find(name))
          text.replace(at, name.size(), path.string());
      }
      return text;
    };
    std::vector<std::string> command;
    for (const std::string& word : trial.command) command.push_back(filled(word));
    const auto look = [&](Tree& tree) {
      for (const fs::path& each : {out, app, tmp}) AddTo(tree, each);
    };
    Outcome outcome;
    look(outcome.before);
    setenv("TMPDIR", tmp.c_str(), 1);  // NOLINT(concurrency-mt-unsafe): a test has one thread
    if (disk) {
      disk->Leave(room);
      outcome.result = Command(command, filled(trial.script));
    } else {
      SetPermissions(folder.Path(), 0777);
      const fs::path readOnly[] = {out, app, tmp};
      SetPermissions(readOnly[static_cast<int>(trial.disk)], 0555);
      const OrdinaryUser user;
      outcome.result = Command(command, filled(trial.script));
    }
    if (!disk) SetPermissions(folder.Path(), 0777);
    setenv("TMPDIR", temporary.c_str(), 1);  // NOLINT(concurrency-mt-unsafe)
    look(outcome.after);
    return outcome;
  }
};

TEST_F(FullDiskCommands, LeaveEachFileOldOrNew) {
  for (const Trial& trial : kTrials) {
    SCOPED_TRACE(testing::PrintToString(trial.command) + " " + std::to_string(static_cast<int>(trial.disk)));
    const auto whole = Try(trial, kPlenty);
    if (!whole) GTEST_SKIP() << "no disk can be mounted here";
    ASSERT_EQ(whole->result.status, 0) << whole->result.err;
    int failures = 0;
    for (std::size_t room = 4;; room += 12) {
      const auto outcome = Try(trial, room);
      const auto& [result, before, after] = *outcome;
      for (const auto& entry : after) {
        const auto isThatOf = [&entry](const Tree& tree) {
          const auto same = tree.find(entry.first);
          return same != tree.end() && *same == entry;
        };
        EXPECT_TRUE(isThatOf(before) || isThatOf(whole->after)) << entry.first << " with " << room << " KiB";
      }
      for (const auto& [file, bytes] : before) EXPECT_TRUE(after.contains(file)) << file;
      if (result.status == 0) {
        EXPECT_EQ(after.size(), whole->after.size());
        break;
      }
      ++failures;
      EXPECT_NE(result.err.find("/tmp/"), std::string::npos) << result.err;
      ASSERT_LT(room, kPlenty) << result.err;
    }
    EXPECT_GT(failures, 0);
  }
}

TEST_F(FullDiskCommands, LeaveReadOnlyFoldersAsTheyAre) {
  for (const Trial& trial : kTrials) {
    SCOPED_TRACE(testing::PrintToString(trial.command) + " " + std::to_string(static_cast<int>(trial.disk)));
    const auto [result, before, after] = *Try(trial, kReadOnly);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("/tmp/"), std::string::npos) << result.err;
    EXPECT_EQ(before, after);
  }
}

TEST_F(FullDiskCommands, LeaveTheOldDocument) {
  if (OfficePrograms::Find().office.empty()) GTEST_SKIP() << "LibreOffice is not installed";
  const std::vector<std::string> command{"export", "IN/exam.exm", "OUT/old.docx"};
  for (const auto& [disk, room] : {std::pair{Small::Target, 4U}, {Small::Temporary, 128U}}) {
    const auto outcome = Try({disk, command, ""}, room);
    if (!outcome) GTEST_SKIP() << "no disk can be mounted here";
    ExpectFailure(outcome->result, "old.docx");
    EXPECT_EQ(outcome->before, outcome->after);
  }
}

}  // namespace
}  // namespace quorvantis::test
