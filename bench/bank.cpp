// SPDX-License-Identifier: MIT
// The bank with 1,000 exams of 50 questions, a tenth of them with tags: the first index, an update without
// changes, and searches beside grep over the texts of the same questions. Needs 1.2 GB in --folder; --exams=N
// for fewer.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "bank/index/BankUpdate.h"
#include "bank/search/BankSearch.h"
#include "bank/tags/TagFile.h"
#include "cli/ExamSession.h"
#include "examfile/ExamFileWriter.h"
#include "likeness/Shingles.h"
#include "platform/digest/OpenSslDigest.h"
#include "text/Utf.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

using namespace quorvantis;
namespace fs = std::filesystem;

double SecondsOf(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

std::string Milliseconds(double seconds) {
  std::ostringstream text;
  text.precision(4);
  text << seconds * 1000;
  return text.str();
}

/// Texts of words that are as unequally frequent as those of a language, one in five in Chinese.
class Words {
 public:
  std::u16string Sentence(std::size_t words) {
    std::u16string text;
    const bool isChinese = random_() % 5 == 0;
    for (std::size_t i = 0; i < words; ++i) text += isChinese ? Chinese() : Latin(Rank()) + u" ";
    return text;
  }
  /// The word of a rank, 0 for the most frequent one.
  static std::u16string Latin(std::size_t rank) {
    constexpr std::u16string_view kSyllables[] = {u"ta",  u"ri",  u"no", u"mel", u"sa",  u"ko",
                                                  u"phy", u"the", u"an", u"is",  u"ver", u"lo",
                                                  u"qui", u"bra", u"en", u"du"};
    std::u16string word;
    for (std::size_t left = rank * 7 + 3; left > 0; left /= 16) word += kSyllables[left % 16];
    return word;
  }

 private:
  std::size_t Rank() {
    const double even = static_cast<double>(random_() % 100'000 + 1) / 100'000;
    return static_cast<std::size_t>(std::pow(20'000.0, even)) - 1;
  }
  std::u16string Chinese() {
    std::u16string word;
    for (int i = 0; i < 2; ++i) word += static_cast<char16_t>(0x4E00 + Rank() % 3'000);
    return word;
  }

  std::mt19937 random_{7};
};

class Bank {
 public:
  explicit Bank(const fs::path& folder) : folder_(folder) {}

  /// The exams, and their texts in one file with a line for each question.
  void MakeExams(int count) {
    fs::create_directories(folder_ / "exams");
    std::ofstream lines(folder_ / "texts.txt");
    Words words;
    for (int n = 0; n < count; ++n) {
      session_.exam.Reset();
      for (int number = 1; number <= 50; ++number) {
        ExamQuestion& question = session_.exam.Question(number);
        question.text = words.Sentence(25);
        for (std::u16string& option : question.options) option = words.Sentence(4);
        question.answerLetters = u"a";
        lines << Utf16ToUtf8(question.text);
        for (const std::u16string& option : question.options) lines << Utf16ToUtf8(option);
        lines << "\n";
      }
      session_.exam.CountQuestions();
      const fs::path file = folder_ / "exams" / (std::to_string(n) + ".exm");
      if (!fs::exists(file) && ExamFileWriter(session_.exam, session_.services).Write(file)) std::exit(1);
    }
  }

  void Open() {
    BankProblem problem;
    index_ = BankIndex::Open(BankPlaceAt(folder_ / "bank.sqlite"), session_.services.files, problem);
    if (!index_ || index_->AddFolder(folder_ / "exams").IsAnything()) std::exit(1);
  }

  void Update() {
    BankUpdate update(*index_, session_.services, digest_);
    update.Run();
    if (update.Report().problem.IsAnything()) std::exit(1);
  }

  std::size_t Find(const std::u16string& query) {
    return BankSearch(*index_, session_.services, digest_, tags_).Find(ParseBankQuery(query), 50).total;
  }

  /// Gives every tenth question tags, as if that had been long ago.
  void Tag() {
    BankProblem problem;
    const BankSearch search(*index_, session_.services, digest_);
    std::vector<TagChange> changes;
    for (const std::int64_t id : search.FindAll({}, problem)) {
      const auto question = search.Question(id, problem);
      if (!question || id % 10 != 0) continue;
      changes.push_back({question->key, question->text, QuestionSketch(Shingles(question->text)), {}, {}});
      changes.back().add = {u"class:8b", id % 100 == 0 ? u"mitosis" : u"cells"};
    }
    fs::remove(folder_ / "exams" / kTagFileName);
    TagFile file(folder_ / "exams", session_.services.files);
    if (!file.Change(changes).IsDone()) std::exit(1);
    fs::last_write_time(file.Path(), fs::last_write_time(file.Path()) - std::chrono::hours(1));
  }

  void ForgetTags() { tags_ = std::make_shared<FolderTags>(session_.services.files); }

 private:
  fs::path folder_;
  std::istringstream noInput_;
  std::ostringstream output_;
  cli::Console console_{noInput_, output_, std::cerr};
  cli::ExamSession session_{console_, {folder_ / "app", false}};
  OpenSslDigest digest_;
  std::shared_ptr<FolderTags> tags_ = std::make_shared<FolderTags>(session_.services.files);
  std::optional<BankIndex> index_;
};

std::string PeakMegabytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return std::to_string(usage.ru_maxrss / 1024) + " MB";
}

double MedianOf(const std::function<void()>& work) {
  std::vector<double> times;
  for (int i = 0; i < 9; ++i) times.push_back(SecondsOf(work));
  std::nth_element(times.begin(), times.begin() + 4, times.end());
  return times[4];
}

void CompareSearches(Bank& bank, const fs::path& folder) {
  const std::pair<const char*, std::u16string> queries[] = {
      {"a rare word", Words::Latin(15'000)},
      {"a frequent word", Words::Latin(1)},
      {"part of many words", u"the"},
      {"two words", Words::Latin(40) + u" " + Words::Latin(60)},
      {"two Chinese characters", u"\u4E00\u4E05"},
      {"one Chinese character", u"\u4E03"},
      {"a short word", u"is"},
      {"without", Words::Latin(40) + u" -" + Words::Latin(1)},
      {"a filter", Words::Latin(40) + u" kind:choice has:key"},
      {"a tag", u"tag:mitosis"},
      {"a frequent tag", u"tag:class:8b"},
      {"a word and a tag", Words::Latin(1) + u" tag:class:8b"},
      {"without a tag", u"the -tag:class:8b"},
      {"without tags", u"-has:tags"}};
  for (const auto& [what, query] : queries) {
    const std::u16string first = query.substr(0, query.find(u' '));
    const std::string grep =
        "grep -c -i -F '" + Utf16ToUtf8(first) + "' '" + (folder / "texts.txt").string() + "' > /dev/null";
    const bool isText = first.find(u':') == first.npos;  // texts have no tags
    const double peer = isText ? MedianOf([&grep] { (void)std::system(grep.c_str()); }) : 0;
    std::size_t total = 0;
    const double ours = MedianOf([&, &q = query] { total = bank.Find(q); });
    bench::PrintRow(std::string("bank, find ") + what + " (" + std::to_string(total) + ")",
                    Milliseconds(ours), isText ? Milliseconds(peer) : "", Milliseconds(ours) + " ms",
                    "< 50 ms");
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const fs::path folder = bench::TakeFolder(argumentCount, arguments) / "bank";
  const int exams = std::stoi(bench::TakeArgument(argumentCount, arguments, "--exams=").value_or("1000"));
  Bank bank(folder);
  bank.MakeExams(exams);
  for (const char* suffix : {"", "-wal", "-shm"}) fs::remove(folder / (std::string("bank.sqlite") + suffix));
  bank.Open();
  const double first = SecondsOf([&bank] { bank.Update(); });
  bench::PrintRow("bank, first index", Milliseconds(first), "", PeakMegabytes(), "< 60 s, 100 MB");
  bank.Update();  // knows now that the files have settled
  const double again = MedianOf([&bank] { bank.Update(); });
  bench::PrintRow("bank, nothing changed", Milliseconds(again), "", Milliseconds(again) + " ms", "< 1 s");
  bank.Tag();
  CompareSearches(bank, folder);
  const double cold = MedianOf([&bank] {
    bank.ForgetTags();
    bank.Find(u"tag:mitosis");
  });
  bench::PrintRow("bank, find a tag for the first time", Milliseconds(cold), "", Milliseconds(cold) + " ms",
                  "");
  return 0;
}
