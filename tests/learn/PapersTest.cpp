// SPDX-License-Identifier: MIT
// The collection of papers in tests/learn/papers, each with what a person says is right.
#include "learn/PaperStudy.h"
#include "platform/WholeFile.h"
#include "support/PaperExpectation.h"
#include "support/PaperNotation.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

const fs::path kPapers = fs::path(QUORVANTIS_PROJECT) / "tests/learn/papers";

std::string Contents(const fs::path& file) {
  return ReadWholeFile(file, 1'000'000).value_or("");
}

Paper PaperIn(const fs::path& file) {
  const std::u16string text = Utf8ToUtf16(Contents(file));
  return file.extension() == ".paper" ? NotedPaper(text) : PaperOf(text);
}

/// "text 3, options 5, key 5, 9 of 10 questions" for what is wrong; empty if all is right.
std::string Faults(const fs::path& file, const PaperStudy& study) {
  const auto expected = ReadExpected(fs::path(file).replace_extension(".expected"));
  const auto& read = study.Reading().paper.questions;
  std::ostringstream faults;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const Verdict verdict = Compare(expected[i], i < read.size() ? &read[i] : nullptr);
    if (!verdict.text) faults << "text " << i + 1 << ", ";
    if (!verdict.options) faults << "options " << i + 1 << ", ";
    if (!verdict.key) faults << "key " << i + 1 << ", ";
  }
  if (read.size() != expected.size()) faults << read.size() << " of " << expected.size() << " questions";
  return faults.str();
}

std::set<std::string> KnownFailures() {
  std::set<std::string> names;
  std::istringstream lines(Contents(kPapers / "not-understood.txt"));
  for (std::string line; std::getline(lines, line);) names.insert(line.substr(0, line.find('\t')));
  return names;
}

/// A paper that becomes right must be taken off the list of those that are not understood.
TEST(Papers, AreReadAsAPersonReadsThem) {
  const std::set<std::string> known = KnownFailures();
  int papers = 0;
  for (const auto& entry : fs::directory_iterator(kPapers)) {
    const fs::path& file = entry.path();
    if (!fs::exists(fs::path(file).replace_extension(".expected")) || file.extension() == ".expected")
      continue;
    ++papers;
    PaperStudy study(PaperIn(file));
    study.Learn();
    const std::string faults = Faults(file, study);
    EXPECT_EQ(faults.empty(), !known.contains(file.filename().string())) << file.filename() << ": " << faults;
  }
  EXPECT_GT(papers, 50);
}

}  // namespace
}  // namespace quorvantis::test
