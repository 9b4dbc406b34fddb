// SPDX-License-Identifier: MIT
// Commands that write to a disk that fills up at any step.
#include "CommandLineTest.h"
#include "support/TinyDisk.h"

#include <map>
#include <optional>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

using Tree = std::map<fs::path, std::string>;  ///< content of files by path

/// A page contains the path of its folder, so only its size counts.
void AddTo(Tree& tree, const fs::path& folder) {
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string bytes = ReadBytes(entry.path());
    const bool isPage = entry.path().extension() == ".htm";
    tree[entry.path().lexically_relative(folder)] = isPage ? std::to_string(bytes.size()) : bytes;
  }
}

enum class Small { Target, Application, Temporary };  ///< what is on the disk that fills up

struct Trial {
  Small disk;
  std::vector<std::string> command;  ///< "out/" is the folder for its results, "app" the application folder
  std::string script;
};

class FullDiskCommands : public CommandLineTest {
 protected:
  FullDiskCommands() {
    for (const char* name : {"a.bin", "b.bin"}) WriteBytes(folder / name, std::string(60'000, name[0]));
    Build(Json::parse(R"({"title": "T", "attachments": [{"path": "a.bin"}], "questions": [
      {"text": "one", "attachments": [{"path": "b.bin"}]}, {"kind": "Essay", "text": "two"}]})"));
    WriteBytes(folder / "paper.txt", "1. What is it?\r\nA. yes\r\nB. no\r\nAns: A\r\n");
  }

  /// Runs with `room` KiB on the small disk; returns the content of the folders before and after.
  struct Outcome {
    RunResult result;
    Tree before;
    Tree after;
  };
  const std::string kRules = std::string(QUORVANTIS_PROJECT) + "/samples/papers/ImportExam.ini";
  const std::vector<Trial> kTrials{
      {Small::Target, {"edit"}, "open OUT/exam.exm\ntitle changed\nsave\n"},
      {Small::Target, {"unpack", "IN/exam.exm", "OUT/"}, ""},
      {Small::Target,
       {"versions", "make", "OUT/exam.exm", "--count", "1", "--seed", "1", "--no-pdf", "--out", "OUT/new"},
       ""},
      {Small::Application, {"print", "IN/exam.exm", "APP", "--after-preview"}, ""},
      {Small::Temporary,
       {"import", "IN/paper.txt", "OUT/old.exm", "--rules", kRules, "--repository", "#1", "--into",
        "IN/exam.exm", "--after", "2"},
       ""},
  };

  static constexpr std::size_t kPlenty = 4000;

  /// Nothing if there cannot be a disk of that size.
  std::optional<Outcome> Try(const Trial& trial, std::size_t room) {
    TinyDisk disk(kPlenty + 96);
    if (!disk.Works()) return std::nullopt;
    fs::remove_all(folder / "work");
    const auto place = [&](Small what, const char* name) {
      return trial.disk == what ? disk.Path() : WriteBytes(folder / "work" / name / "x", "").parent_path();
    };
    const fs::path out = place(Small::Target, "out");
    const fs::path app = place(Small::Application, "app");
    const fs::path tmp = place(Small::Temporary, "tmp");
    for (const char* name : {"old.exm", "exam/a.bin"}) WriteBytes(out / name, "old");
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
    disk.Leave(room);
    outcome.result = Command(command, filled(trial.script));
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

TEST_F(FullDiskCommands, TellAtOnceThatAFileIsNotAttached) {
  const Trial trial{Small::Application,
                    {"edit", "--app-folder", "APP"},
                    "open OUT/exam.exm\nattach IN/a.bin\nattach-exam IN/b.bin\nsave\n"};
  int failures = 0;
  for (std::size_t room = 160;; room += 20) {
    const auto outcome = Try(trial, room);
    if (!outcome) GTEST_SKIP() << "no disk can be mounted here";
    const auto& [result, before, after] = *outcome;
    if (result.status == 0) break;
    ++failures;
    EXPECT_NE(result.err.find("could not be copied"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("The disk is full."), std::string::npos) << result.err;
    EXPECT_EQ(before.size(), after.size()) << "nothing half copied, nothing saved";
    ASSERT_LT(room, kPlenty);
  }
  EXPECT_GT(failures, 0);
}

}  // namespace
}  // namespace quorvantis::test
