// SPDX-License-Identifier: MIT
// The bank with 1,000 exams of 50 questions, a tenth of them with tags: the first index, updates without
// changes, searches beside grep over the texts of the same questions, and how many of the planted near
// duplicates are found. Needs 1.2 GB in --folder; --exams=N for fewer.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "bank/index/BankUpdate.h"
#include "bank/near/NearQuestions.h"
#include "bank/search/BankMemory.h"
#include "bank/search/BankQuestions.h"
#include "bank/search/BankSearch.h"
#include "bank/tags/TagFile.h"
#include "cli/session/ExamSession.h"
#include "examfile/ExamFileWriter.h"
#include "likeness/Shingles.h"
#include "platform/QuietProgress.h"
#include "platform/digest/OpenSslDigest.h"
#include "text/Utf.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <functional>
#include <iostream>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <utility>
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
    for (std::size_t i = 0; i < words; ++i) text += isChinese ? Chinese() : Word() + u" ";
    return text;
  }
  /// The same question with a word, an option or the order of the options changed.
  ExamQuestion Changed(ExamQuestion question) {
    const std::size_t change = random_() % 3;
    if (change == 0) question.text += Word();
    if (change == 1) question.options[random_() % 4] = Sentence(4);
    if (change == 2) std::swap(question.options[0], question.options[1 + random_() % 3]);
    return question;
  }
  std::size_t Below(std::size_t limit) { return random_() % limit; }
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
  /// One in twenty has two letters.
  std::u16string Word() { return random_() % 20 == 0 ? u"is" : Latin(Rank()); }
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

  /// The exams, and their texts in one file with a line for each question. One question in ten is nearly the
  /// same as one of the exam before.
  void MakeExams(int count) {
    fs::create_directories(folder_ / "papers");
    std::ofstream lines(folder_ / "texts.txt");
    std::vector<ExamQuestion> before;
    for (int n = 0; n < count; ++n) {
      std::vector<ExamQuestion> questions;
      for (std::size_t place = 0; place < kQuestions; ++place) {
        const bool isPlanted = !before.empty() && place % 10 == 0;
        questions.push_back(isPlanted ? words_.Changed(before[place + 1]) : NewQuestion());
        if (isPlanted) Plant(static_cast<std::size_t>(n), place, before[place + 1], questions.back());
        lines << Utf16ToUtf8(questions.back().text);
        for (const std::u16string& option : questions.back().options) lines << Utf16ToUtf8(option);
        lines << "\n";
      }
      WriteExam(folder_ / "papers" / (std::to_string(n) + ".exm"), questions);
      before = std::move(questions);
    }
  }

  void Open() {
    BankProblem problem;
    index_ = BankIndex::Open(BankPlaceAt(folder_ / "bank.sqlite"), session_.services.files, problem);
    if (!index_ || index_->AddFolder(folder_ / "papers").IsAnything()) std::exit(1);
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
  void AddFolder(const fs::path& folder) {
    if (index_->AddFolder(folder).IsAnything()) std::exit(1);
  }

  /// How many of the planted pairs are found in the index.
  std::size_t FindPlanted() {
    std::vector<QuestionSketch> sketches;
    std::vector<std::int64_t> identifiers;
    ReadSketches(sketches, identifiers);
    BankQuestions rows(*index_);
    const NearQuestions near = FindNearQuestions(sketches, [&](std::size_t place) {
      return ShinglesOf(ContentOfHit(*rows.Read(identifiers[place])));
    });
    std::set<std::pair<std::size_t, std::size_t>> found;
    for (const NearPair& pair : near.pairs) found.emplace(pair.first, pair.second);
    for (const auto& group : near.equal) {
      for (const std::size_t member : group) found.emplace(group.front(), member);
    }
    return static_cast<std::size_t>(std::count_if(
        planted_.begin(), planted_.end(), [&found](const auto& pair) { return found.contains(pair); }));
  }
  std::size_t PlantedCount() const { return planted_.size(); }

  /// Makes the memory that looks questions up.
  void Remember() { memory_.emplace(*index_); }

  /// Looks up where a planted copy stands elsewhere. Whether it is told.
  bool IsTold(std::size_t planted) {
    QuietProgress progress;
    const auto& [original, copy] = planted_[planted % planted_.size()];
    const auto question = BankQuestions(*index_).Read(identifiers_[copy]);
    const BankLikeness likeness = memory_->Elsewhere(*index_, digest_, *question, progress);
    return std::any_of(likeness.uses[0].begin(), likeness.uses[0].end(),
                       [&, id = identifiers_[original]](const BankUse& use) { return use.question == id; });
  }

 private:
  static constexpr std::size_t kQuestions = 50;  // of an exam

  ExamQuestion NewQuestion() {
    ExamQuestion question;
    question.text = words_.Sentence(25);
    for (std::u16string& option : question.options) option = words_.Sentence(4);
    question.answerLetters = u"a";
    return question;
  }

  /// Remembers a pair of one exam and the one before by the places among all questions.
  void Plant(std::size_t exam, std::size_t place, const ExamQuestion& original, const ExamQuestion& copy) {
    const double likeness = ShinglesOf(ContentOf(original, {})).Likeness(ShinglesOf(ContentOf(copy, {})));
    const std::size_t first = exam * kQuestions;
    if (likeness >= kAlike) planted_.emplace_back(first - kQuestions + place + 1, first + place);
  }

  void WriteExam(const fs::path& file, const std::vector<ExamQuestion>& questions) {
    if (fs::exists(file)) return;
    session_.exam.Reset();
    for (std::size_t i = 0; i < questions.size(); ++i)
      session_.exam.Question(static_cast<int>(i) + 1) = questions[i];
    session_.exam.CountQuestions();
    if (ExamFileWriter(session_.exam, session_.services).Write(file)) std::exit(1);
  }

  /// In the order of the exams and of the questions in them, as they were made.
  void ReadSketches(std::vector<QuestionSketch>& sketches, std::vector<std::int64_t>& identifiers) {
    Statement rows = index_->Data().Prepare(
        "SELECT question.id, sketch FROM question JOIN content ON content.question = question.id "
        "JOIN exam ON exam.id = question.exam ORDER BY length(path), path, number");
    while (rows.Step()) {
      identifiers.push_back(rows.Integer(0));
      sketches.push_back(*QuestionSketch::FromBytes(rows.Bytes(1)));
    }
    identifiers_ = identifiers;
  }

  fs::path folder_;
  std::istringstream noInput_;
  std::ostringstream output_;
  cli::Console console_{noInput_, output_, std::cerr};
  cli::ExamSession session_{console_, {folder_ / "app", false}};
  OpenSslDigest digest_;
  std::shared_ptr<FolderTags> tags_ = std::make_shared<FolderTags>(session_.services.files);
  std::optional<BankIndex> index_;
  Words words_;
  std::vector<std::pair<std::size_t, std::size_t>> planted_;
  std::vector<std::int64_t> identifiers_;  // of all questions, as they were made
  std::optional<BankMemory> memory_;
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

void CompareNearDuplicates(Bank& bank) {
  std::size_t found = 0;
  const double pairs = SecondsOf([&] { found = bank.FindPlanted(); });
  const std::string of = std::to_string(found) + " of " + std::to_string(bank.PlantedCount());
  bench::PrintRow("bank, planted near duplicates found", Milliseconds(pairs), "", of, "all, 10 s");
  const double remember = MedianOf([&bank] { bank.Remember(); });
  bench::PrintRow("bank, memory of all questions", Milliseconds(remember), "", Milliseconds(remember) + " ms",
                  "");
  std::size_t asked = 0;
  std::size_t told = 0;
  const double lookUp = MedianOf([&] { told += bank.IsTold(asked++ * 97) ? 1 : 0; });
  bench::PrintRow("bank, the same question elsewhere", Milliseconds(lookUp), "",
                  std::to_string(told) + " of " + std::to_string(asked), "all, 50 ms");
}

void UpdateAmongOtherFiles(Bank& bank, const fs::path& folder) {
  constexpr int kFiles = 100'000;
  fs::create_directories(folder);
  for (int i = 0; i < kFiles; ++i) {
    const fs::path file = folder / (std::to_string(i) + ".txt");
    if (!fs::exists(file)) std::ofstream(file).flush();
  }
  bank.AddFolder(folder);
  const double first = SecondsOf([&bank] { bank.Update(); });
  const double again = MedianOf([&bank] { bank.Update(); });
  bench::PrintRow("bank, nothing changed among 100,000 other files", Milliseconds(again), Milliseconds(first),
                  PeakMegabytes(), "< 1 s, 100 MB");
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
  UpdateAmongOtherFiles(bank, folder / "other");
  bank.Tag();
  CompareSearches(bank, folder);
  const double cold = MedianOf([&bank] {
    bank.ForgetTags();
    bank.Find(u"tag:mitosis");
  });
  bench::PrintRow("bank, find a tag for the first time", Milliseconds(cold), "", Milliseconds(cold) + " ms",
                  "");
  CompareNearDuplicates(bank);
  return 0;
}
