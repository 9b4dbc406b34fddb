// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandLine.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace quorvantis::test {

using Json = nlohmann::json;

struct RunResult {
  int status;
  std::string out;
  std::string err;
};

/// Runs commands in this process. Whatever they do, they must leave nothing in the folder for temporary
/// files.
class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    std::filesystem::create_directory(temporary);
    setenv("TMPDIR", temporary.c_str(), 1);  // NOLINT(concurrency-mt-unsafe): a test has one thread
  }
  ~CommandLineTest() override {
    EXPECT_TRUE(std::filesystem::is_empty(temporary));
    unsetenv("TMPDIR");  // NOLINT(concurrency-mt-unsafe)
  }

  RunResult Command(const std::vector<std::string>& arguments, const std::string& input = "") {
    std::vector<const char*> values{"quorvantis-cli"};
    for (const std::string& argument : arguments) values.push_back(argument.c_str());
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    cli::Console console{in, out, err};
    const int status = cli::RunCommandLine(static_cast<int>(values.size()), values.data(), console);
    return {status, out.str(), err.str()};
  }

  RunResult Build(const Json& exam) {
    WriteBytes(folder / "exam.json", exam.dump());
    return Command({"build", Path("exam.json"), Path("exam.exm")});
  }
  Json Shown(const char* file = "exam.exm") {
    const RunResult run = Command({"show", Path(file), "--json"});
    EXPECT_EQ(run.status, 0) << run.err;
    return Json::parse(run.out);
  }
  std::string Path(const char* name) const { return (folder / name).string(); }

  TemporaryFolder folder;
  const std::filesystem::path temporary = folder / "tmp";
};

/// A failed command prints exactly one line, which contains `reason`.
inline void ExpectFailure(const RunResult& run, const std::string& reason) {
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find(reason), std::string::npos) << run.err;
  EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << run.err;
}

}  // namespace quorvantis::test
