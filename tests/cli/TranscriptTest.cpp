// SPDX-License-Identifier: MIT
// Commands as a user types them, with everything that they print: transcripts/*.txt. In a transcript, "$"
// begins a command, "<" a line of its standard input, "=" names a file to write, and "|" is a line of that
// file. The expected output follows: ">" on standard output, "!" on standard error, "?" the exit status
// unless it is 0. DIR is the folder in which everything happens. QV_UPDATE_GOLDEN=1 rewrites the output
// lines; read them before you commit. TODAY is the day here.
#include "CommandLineTest.h"

#include <array>
#include <ctime>
#include <utility>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

const fs::path kTranscripts = fs::path(QUORVANTIS_PROJECT) / "tests/cli/transcripts";

/// Splits at blanks; quotation marks keep words together.
std::vector<std::string> WordsOf(const std::string& line) {
  std::vector<std::string> words;
  bool isQuoted = false, isInside = false;
  for (const char c : line) {
    isQuoted ^= c == '"';
    if (c == ' ' && !isQuoted) {
      isInside = false;
      continue;
    }
    if (!std::exchange(isInside, true)) words.emplace_back();
    if (c != '"') words.back() += c;
  }
  return words;
}

class Transcript : public CommandLineTest, public testing::WithParamInterface<const char*> {
 protected:
  /// "2026-03-01"
  static std::string Today() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", std::localtime(&now))};
  }

  /// The output, each line after its mark.
  void Print(char mark, std::string text) {
    for (const auto& [real, shown] :
         {std::pair(folder.Path().string(), "DIR"), std::pair(Today(), "TODAY")}) {
      for (auto at = text.find(real); at != text.npos; at = text.find(real))
        text.replace(at, real.size(), shown);
    }
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) actual += std::string{mark, ' '} + line + "\n";
  }

  void RunCommand() {
    if (command.empty()) return;
    const RunResult run = Command(WordsOf(std::exchange(command, {})), std::exchange(input, {}));
    Print('>', run.out);
    Print('!', run.err);
    if (run.status != 0) Print('?', std::to_string(run.status));
  }

  void Replay(const std::string& line) {
    const char mark = line.empty() ? ' ' : line[0];
    const std::string rest = line.substr(std::min<std::size_t>(2, line.size()));
    if (std::string_view(">!?").find(mark) != std::string_view::npos) return;
    if (mark != '<') RunCommand();
    actual += line + "\n";
    if (mark == '$') command = rest;
    if (mark == '<') input += rest + "\n";
    if (mark == '=') WriteBytes(file = folder / rest, "");
    if (mark == '|') WriteBytes(file, ReadBytes(file) + rest + "\n");
  }

  std::string command;
  std::string input;
  fs::path file;
  std::string actual;
};

INSTANTIATE_TEST_SUITE_P(Of, Transcript,
                         testing::Values("bank", "build", "check", "convert", "edit", "import", "key",
                                         "order", "rules", "score", "search", "show", "tags", "usage",
                                         "versions"),
                         [](const auto& param) { return param.param; });

TEST_P(Transcript, IsTrue) {
  const fs::path golden = kTranscripts / (std::string(GetParam()) + ".txt");
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  std::ifstream lines(golden);
  for (std::string line; std::getline(lines, line);) Replay(line);
  RunCommand();
  fs::current_path(before);
  const char* const update = std::getenv("QV_UPDATE_GOLDEN");  // NOLINT(concurrency-mt-unsafe)
  if (update != nullptr) WriteBytes(golden, actual);
  EXPECT_EQ(actual, ReadBytes(golden)) << golden;
}

}  // namespace
}  // namespace quorvantis::test
