// SPDX-License-Identifier: MIT
// Reads a folder of papers, works out the rules of each, and compares what they give with what a person wrote
// down beside each paper (NAME.expected). Prints a line for each paper that is not right, and totals.
//
//   bench_learn_corpus FOLDER [--marks=N] [--totals] [--rules] [--only=NAME]
//
// A line of NAME.expected: "12| how question 12 begins", "A| an option", "=| its key, or its answer", "# a
// remark".
#include "import/PaperDocuments.h"
#include "import/PaperFile.h"
#include "import/labels/LineText.h"
#include "import/marking/RuleKeys.h"
#include "import/prepare/PreparationSteps.h"
#include "learn/PaperLearner.h"
#include "learn/PaperStudy.h"
#include "platform/WholeFile.h"
#include "platform/documents/OfficeWordDocuments.h"
#include "platform/posix/IconvCodePage.h"
#include "support/PaperExpectation.h"
#include "support/PaperNotation.h"
#include "text/Utf.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;
using test::Compare;
using test::ExpectedQuestion;
using test::ReadExpected;
using test::Verdict;

Paper PaperIn(const fs::path& file) {
  if (file.extension() == ".paper")
    return test::NotedPaper(Utf8ToUtf16(ReadWholeFile(file, 10'000'000).value_or("")));
  OfficeWordDocuments word;
  IconvCodePage codePage("UTF-8");
  PaperDocuments documents(codePage, word);
  return OpenPaper(documents, file, {}).paper;
}

struct Totals {
  int papers = 0;
  int rightPapers = 0;
  int questions = 0;
  int rightQuestions = 0;
  int keys = 0;
  int rightKeys = 0;
  double slowest = 0;
};

std::u16string Line(std::u16string_view text) {
  std::u16string line(text.substr(0, 60));
  std::ranges::replace_if(
      line, [](char16_t unit) { return unit < u' '; }, u'~');
  return line;
}

/// Does what a teacher would do about the first question that is wrong. False if there is nothing to point
/// at.
bool AddMark(PaperStudy& study, const std::vector<ExpectedQuestion>& expected) {
  const std::u16string& source = study.StudiedPaper().source.characters;
  std::size_t from = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::size_t place = source.find(expected[i].text.substr(0, 20), from);
    if (place == source.npos) continue;
    from = place + 1;
    const auto& read = study.Reading().paper.questions;
    const Verdict verdict = Compare(expected[i], i < read.size() ? &read[i] : nullptr);
    const auto mark = [&study](TextSpan span, PaperRole role) {
      const bool isNew = std::ranges::find(study.Marks(), PaperMark{span, role}) == study.Marks().end();
      if (isNew) study.AddMark({span, role});
      return isNew;
    };
    if (!verdict.text) {
      const TextSpan number = Trimmed(source, {LineBeginBefore(source, place), place});
      if (!number.IsEmpty() && mark(number, PaperRole::QuestionNumber)) return true;
      if (mark({place, LineEndAfter(source, place)}, PaperRole::Question)) return true;
    }
    if (verdict.text && !verdict.options) {
      std::size_t at = place;
      for (const auto& [letter, option] : expected[i].options) {
        const std::size_t found = source.find(option, at);
        if (found == source.npos) break;
        at = found + option.size();
        if (letter == expected[i].options.rbegin()->first && mark({found, at}, PaperRole::Option))
          return true;
      }
    }
  }
  // Questions that are none.
  const auto& read = study.Reading().paper.questions;
  if (read.size() <= expected.size()) return false;
  for (const RolePart& part : study.Roles()) {
    if (part.role != PaperRole::QuestionNumber || part.question < static_cast<int>(expected.size())) continue;
    const std::size_t begin = part.span.begin;
    study.AddMark(
        {Trimmed(source, {LineBeginBefore(source, begin), LineEndAfter(source, begin)}), PaperRole::NotExam});
    return true;
  }
  return false;
}

class Corpus {
 public:
  Corpus(int marks, bool totalsOnly, bool rules) : marks_(marks), totalsOnly_(totalsOnly), rules_(rules) {}

  void Read(const fs::path& file) {
    const std::vector<ExpectedQuestion> expected =
        ReadExpected(fs::path(file).replace_extension(".expected"));
    if (expected.empty()) return;
    PaperStudy study(PaperIn(file));
    const auto start = std::chrono::steady_clock::now();
    study.Learn();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    totals_.slowest = std::max(totals_.slowest, time.count());
    for (int i = 0; i < marks_ && !IsRight(expected, study); ++i) {
      if (!AddMark(study, expected)) break;
      study.Learn();
    }
    Count(file, expected, study, time.count());
  }

  void PrintTotals() const {
    const auto percent = [](int part, int whole) { return whole == 0 ? 0.0 : 100.0 * part / whole; };
    std::printf(
        "papers %d of %d (%.1f %%), questions %d of %d (%.1f %%), keys %d of %d (%.1f %%), slowest %.2f s\n",
        totals_.rightPapers, totals_.papers, percent(totals_.rightPapers, totals_.papers),
        totals_.rightQuestions, totals_.questions, percent(totals_.rightQuestions, totals_.questions),
        totals_.rightKeys, totals_.keys, percent(totals_.rightKeys, totals_.keys), totals_.slowest);
  }

 private:
  static bool IsRight(const std::vector<ExpectedQuestion>& expected, const PaperStudy& study) {
    const auto& read = study.Reading().paper.questions;
    if (read.size() != expected.size()) return false;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const Verdict verdict = Compare(expected[i], &read[i]);
      if (!verdict.text || !verdict.options) return false;
    }
    return true;
  }

  void Count(const fs::path& file, const std::vector<ExpectedQuestion>& expected, const PaperStudy& study,
             double time) {
    const auto& read = study.Reading().paper.questions;
    ++totals_.papers;
    int wrong = 0;
    int wrongKeys = 0;
    std::string first;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const Verdict verdict = Compare(expected[i], Nearest(expected[i], read, i));
      ++totals_.questions;
      ++totals_.keys;
      if (verdict.text && verdict.options)
        ++totals_.rightQuestions;
      else
        ++wrong;
      if (verdict.key)
        ++totals_.rightKeys;
      else
        ++wrongKeys;
      if ((!verdict.text || !verdict.options || !verdict.key) && first.empty())
        first = Describe(expected[i], i, Nearest(expected[i], read, i));
    }
    const bool isRight = wrong == 0 && read.size() == expected.size();
    if (isRight) ++totals_.rightPapers;
    if (totalsOnly_) return;
    std::printf("%-28s %-5s read %zu of %zu, wrong %d, keys wrong %d, sure %.0f %%, %.2f s, steps %s\n",
                file.filename().c_str(), isRight ? "right" : "WRONG", read.size(), expected.size(), wrong,
                wrongKeys, 100 * study.Learned().confidence, time,
                Utf16ToUtf8(PrepareListText(study.Rules().prepare)).c_str());
    if (!first.empty()) std::printf("%s", first.c_str());
    if (rules_) PrintRules(study.Rules());
  }

  /// The question at that place, or the one nearby that begins like the expected one.
  static const ReadQuestion* Nearest(const ExpectedQuestion& expected, const std::vector<ReadQuestion>& read,
                                     std::size_t i) {
    for (const std::ptrdiff_t by : {0, 1, -1, 2, -2, 3, -3}) {
      const auto at = static_cast<std::ptrdiff_t>(i) + by;
      if (at < 0 || at >= static_cast<std::ptrdiff_t>(read.size())) continue;
      const ReadQuestion& question = read[static_cast<std::size_t>(at)];
      if (Compare(expected, &question).text) return &question;
    }
    return i < read.size() ? &read[i] : nullptr;
  }

  static std::string Describe(const ExpectedQuestion& expected, std::size_t i, const ReadQuestion* read) {
    std::string lines = "    " + std::to_string(i + 1) + " wanted " + Utf16ToUtf8(Line(expected.text));
    for (const auto& [letter, option] : expected.options) lines += " | " + Utf16ToUtf8(Line(option));
    lines += " = " + Utf16ToUtf8(expected.key) + "\n";
    if (read == nullptr) return lines;
    lines += "      got    " + Utf16ToUtf8(Line(read->text));
    for (const std::u16string& option : read->options) lines += " | " + Utf16ToUtf8(Line(option));
    return lines + " = " + Utf16ToUtf8(read->letters) + Utf16ToUtf8(Line(read->answer)) + "\n";
  }

  static void PrintRules(const ImportSettings& rules) {
    for (const PatternRule& rule : kPatternRules) {
      if (!(rules.*rule.pattern).empty())
        std::printf("    %s=%s\n", Utf16ToUtf8(rule.key).c_str(), Utf16ToUtf8(rules.*rule.pattern).c_str());
    }
  }

  int marks_;
  bool totalsOnly_;
  bool rules_;
  Totals totals_;
};

}  // namespace
}  // namespace quorvantis

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  int marks = 0;
  bool totals = false;
  bool rules = false;
  std::string only;
  fs::path folder;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument.starts_with("--marks=")) {
      marks = std::stoi(argument.substr(8));
    } else if (argument == "--totals") {
      totals = true;
    } else if (argument == "--rules") {
      rules = true;
    } else if (argument.starts_with("--only=")) {
      only = argument.substr(7);
    } else {
      folder = argument;
    }
  }
  if (!fs::is_directory(folder)) {
    std::fprintf(stderr, "usage: bench_learn_corpus FOLDER [--marks=N] [--totals] [--rules] [--only=NAME]\n");
    return 2;
  }
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const bool isPaper = entry.path().extension() == ".txt" || entry.path().extension() == ".docx" ||
                         entry.path().extension() == ".paper";
    if (isPaper && entry.path().filename().string().starts_with(only)) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  quorvantis::Corpus corpus(marks, totals, rules);
  for (const fs::path& file : files) corpus.Read(file);
  corpus.PrintTotals();
  return 0;
}
