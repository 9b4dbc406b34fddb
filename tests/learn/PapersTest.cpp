// SPDX-License-Identifier: MIT
// The collection of papers in tests/learn/papers, each with what a person says is right.
#include "learn/PaperStudy.h"
#include "platform/WholeFile.h"
#include "support/PaperExpectation.h"
#include "support/PaperNotation.h"
#include "text/NumberText.h"
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

/// Such a paper is judged by its beginning and by the first of its answers; in it, a year is no number.
TEST(Papers, CountBeyondAThousand) {
  constexpr int kQuestions = 2'000;
  const auto number = [](int value) { return FormatInteger(value); };
  std::u16string text;
  for (int i = 1; i <= kQuestions; ++i)
    text += number(i) + u". What is the double of " + number(i) + u"?\nA. four\nB. six\nC. eight\nD. ten\n\n";
  text += u"Answers\n";
  for (int i = 1; i <= kQuestions; ++i) text += number(i) + u". " + u"ABCD"[i % 4] + u"\n";
  PaperStudy study(PaperOf(text));
  study.Learn();
  const auto& read = study.Reading().paper.questions;
  ASSERT_EQ(read.size(), std::size_t{kQuestions});
  for (int i = 1; i <= kQuestions; ++i)
    ASSERT_EQ(read[static_cast<std::size_t>(i) - 1].letters, std::u16string(1, u"ABCD"[i % 4])) << i;

  PaperStudy years(
      PaperOf(u"1. When did it begin?\n1914. That is what many say.\nA. then\nB. later\nAnswer: A\n"
              u"2. When did it end?\n1918. So it is said.\nA. then\nB. later\nAnswer: B\n"));
  years.Learn();
  EXPECT_EQ(years.Reading().paper.questions.size(), 2U);
}

}  // namespace
}  // namespace quorvantis::test
