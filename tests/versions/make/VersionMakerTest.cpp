// SPDX-License-Identifier: MIT
#include "examfile/ExamFileWriter.h"
#include "host/PlanJson.h"
#include "platform/PaperPrinter.h"
#include "platform/PdfText.h"
#include "platform/WholeFile.h"
#include "platform/digest/OpenSslDigest.h"
#include "platform/posix/PosixFolderGuard.h"
#include "text/PathText.h"
#include "versions/VersionsTest.h"
#include "versions/make/VersionMaker.h"
#include "versions/verify/VersionVerifier.h"

#include <map>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

/// Prints nothing but what the job says; reads it back as a page that has everything.
class ToyPrinter : public PaperPrinter, public PdfText {
 public:
  std::optional<std::string> Print(std::span<const PaperJob> jobs, Progress&) override {
    if (!problem.empty()) return problem;
    for (const PaperJob& job : jobs) WriteBytes(job.target, std::string(lengths[job.version], '.'));
    return std::nullopt;
  }
  bool IsInstalled() const override { return isInstalled; }
  std::optional<int> PageCount(const fs::path& pdf) override {
    return static_cast<int>(ReadBytes(pdf).size());
  }
  PdfPages Read(const fs::path&) override { return {{}, "nothing can be read here"}; }

  std::string problem;
  bool isInstalled = true;
  std::map<std::u16string, std::size_t> lengths;
};

class CancelledProgress : public Progress {
 public:
  int left = 0;  ///< how often it is asked before the user cancels
  void Report(std::uint64_t, std::uint64_t) override {}
  bool IsCancelled() override { return left-- <= 0; }
};

class VersionFolders : public VersionsTest {
 protected:
  VersionFolders() {
    for (int i = 1; i <= 6; ++i) {
      const std::u16string number = FormatInteger(i);
      ExamQuestion& question =
          AddChoice(u"What is " + number, {u"a" + number, u"b" + number, u"c" + number}, u"b");
      question.attachmentNames[0] = u"file.txt";
      question.attachmentPaths[0] =
          PathToText(WriteBytes(folder / ("file" + std::to_string(i)), std::string(9, 'x')));
    }
    Add(QuestionKind::FillIn, u"Fill in").answerText = std::u16string(300, u'x') + u"<@>=1+1";
    Add(QuestionKind::Essay, u"Write").essayAnswer = u"much, \"more\"\r\nthan that";
    exam.title = u"Biology";
    Save();
  }

  void Save() { ASSERT_FALSE(ExamFileWriter(exam, Whole()).Write(source)); }
  const ExamServices& Whole() {
    world.longAnswerFlags.SetWhereNeeded(exam);
    return world.services;
  }

  MadeVersions Make(bool replaces = false) {
    return VersionMaker(world.services, folder / "work", ports)
        .Make({source, target, Request(3, 7), replaces});
  }
  VerifiedVersions Verify(const fs::path& exams = {}) {
    return VersionVerifier(world.services, folder / "work", ports).Verify(target, exams);
  }
  std::map<std::string, std::string> Files(const fs::path& place) const {
    std::map<std::string, std::string> found;
    for (const auto& entry : fs::directory_iterator(place))
      found[entry.path().filename().string()] = entry.is_regular_file() ? ReadBytes(entry.path()) : "";
    return found;
  }

  const fs::path source = folder / "Biology.exm";
  const fs::path target = folder / "out";
  OpenSslDigest digest;
  PlanJson form{digest};
  VersionPorts ports{digest, form, nullptr, nullptr, nullptr, "1"};
};

TEST_F(VersionFolders, AreTheSameForTheSameSeed) {
  ASSERT_EQ(Make().problem, u"");
  const auto first = Files(target);
  EXPECT_EQ(first.size(), 9U) << "three exams, three keys, all keys, the report and the plan";
  EXPECT_EQ(Verify().faults, std::vector<std::u16string>());
  EXPECT_NE(Make().problem, u"") << "nothing is replaced unasked";
  EXPECT_EQ(Make(true).problem, u"");
  EXPECT_EQ(Files(target), first);
  WriteBytes(target / "notes.txt", "the teacher's own");
  EXPECT_NE(Make(true).problem, u"");
  EXPECT_EQ(ReadBytes(target / "notes.txt"), "the teacher's own");
  fs::rename(source, folder / "elsewhere.exm");
  EXPECT_EQ(Verify().faults.size(), 1U) << "the source is gone";
  EXPECT_EQ(Verify(folder / "elsewhere.exm").faults.size(), 0U);
}

TEST_F(VersionFolders, TellEveryChangedByte) {
  ASSERT_EQ(Make().problem, u"");
  SeededRandom random(5);
  auto all = Files(target);
  all["../Biology.exm"] = ReadBytes(source);
  for (const auto& [name, bytes] : all) {
    const std::size_t step = bytes.size() / 6 + 1;
    for (std::size_t at = random.Below(step); at < bytes.size(); at += step) {
      std::string changed = bytes;
      changed[at] = static_cast<char>(changed[at] ^ (1 << random.Below(8)));
      WriteBytes(target / name, changed);
      EXPECT_FALSE(Verify().faults.empty()) << name << " at " << at;
    }
    WriteBytes(target / name, bytes);
  }
  EXPECT_TRUE(Verify().faults.empty());
}

/// A plan whose digests are those of other files: then what they say must be found wrong.
TEST_F(VersionFolders, AreComparedByWhatTheySay) {
  PlanRecord record = Make().record;
  const auto digestAgain = [&] {
    for (MadeFile& file : record.files) file.digest = digest.OfFile(target / TextToPath(file.name));
    WriteBytes(target / "plan.json", form.Write(record));
    return Verify().faults.size();
  };
  ASSERT_EQ(digestAgain(), 0U);
  const auto all = Files(target);
  const auto changedIn = [&](const char* name, std::string_view what, std::string_view by) {
    std::string bytes = all.at(name);
    bytes.replace(bytes.find(what), what.size(), by);
    WriteBytes(target / name, bytes);
    const std::size_t faults = digestAgain();
    WriteBytes(target / name, all.at(name));
    return faults;
  };
  const std::string key = all.at("A key.csv");
  EXPECT_GT(changedIn("A key.csv", key.substr(key.find("choice,"), 8), "choice,E"), 0U);
  EXPECT_GT(changedIn("keys.csv", "\r\n2,", "\r\n3,"), 0U);
  EXPECT_GT(changedIn("B.exm", "xxxxxxxxx", "xxxxyxxxx"), 0U) << "an attached file";
  EXPECT_GT(changedIn("C.exm", std::string_view("W\0h\0a\0t", 7), std::string_view("W\0H\0a\0t", 7)), 0U);
  EXPECT_GT(changedIn("report.txt", "A", "B"), 0U);
  const PlanRecord right = record;
  const auto changedTo = [&](const auto& change) {
    change(record);
    const std::size_t faults = digestAgain();
    record = right;
    return faults;
  };
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.plan.moves = QuestionMoves::None; }), 0U);
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.request.moves = QuestionMoves::All; }), 0U);
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.request.pins.questions.insert(1); }), 0U);
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.plan.pinned.push_back({1}); }), 0U);
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.files[0].pages = 2; }), 0U);
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.files.push_back({u"../Biology.exm", "", 0}); }), 0U);
  EXPECT_GT(changedTo([](PlanRecord& plan) { plan.files.push_back(plan.files[0]); }), 0U);
  EXPECT_EQ(changedTo([](PlanRecord& plan) { plan.program = "older"; }), 0U);
  EXPECT_EQ(Verify().notes.size(), 1U) << "what another version has planned is not planned again";
  std::swap(record.plan.versions[0].options[0][0], record.plan.versions[0].options[0][1]);
  EXPECT_GT(digestAgain(), 0U);
  record.plan.versions[0].options[0].fill(1);
  EXPECT_GT(digestAgain(), 0U);
}

TEST_F(VersionFolders, LeaveNothingHalfMade) {
  CancelledProgress progress;
  const ExamServices cancelled{world.services.applicationFolder,
                               world.strings,
                               world.dialogs,
                               world.codePage,
                               world.debug,
                               files,
                               progress,
                               world.longAnswerFlags,
                               world.ids,
                               world.registry,
                               world.pages};
  const auto before = Files(folder.Path());
  for (int after = 0; after < 12; after += 2) {
    progress.left = after;
    const MadeVersions made =
        VersionMaker(cancelled, folder / "work", ports).Make({source, target, Request(3, 7)});
    EXPECT_TRUE(made.isCancelled) << after;
    EXPECT_EQ(Files(folder.Path()), before);
  }
  exam.questionCount = 0;
  exam.questions.assign(kQuestionSlots, {});
  Save();
  EXPECT_NE(Make().problem, u"") << "no questions";
  fs::resize_file(source, 5000);
  EXPECT_NE(Make().problem, u"") << "damaged";
  EXPECT_EQ(Files(folder.Path()).size(), before.size());
}

TEST_F(VersionFolders, ReplaceWhatKilledProgramsHaveLeft) {
  PosixFolderGuard guard;
  ports.guard = &guard;
  for (const char* name : {".making-versions-1", ".making-versions-2", ".making-versions-9",
                           ".replaced-versions-1", ".old-versions-1", ".making-versions-x"}) {
    fs::create_directory(folder / name);
    WriteBytes(folder / name / "A.exm", "half");
  }
  const auto living = guard.Hold(folder / ".making-versions-2");
  ASSERT_NE(living, nullptr);
  EXPECT_EQ(guard.Hold(folder / ".making-versions-2"), nullptr);
  EXPECT_EQ(Make().problem, u"");
  EXPECT_EQ(Make(true).problem, u"");
  std::vector<std::string> hidden;
  for (const auto& [name, bytes] : Files(folder.Path())) {
    if (name.starts_with(".")) hidden.push_back(name);
  }
  EXPECT_EQ(hidden,
            (std::vector<std::string>{".making-versions-2", ".making-versions-x", ".old-versions-1"}));
}

TEST_F(VersionFolders, AreNotMadeThroughLinksThatLeadNowhere) {
  fs::create_directory_symlink(folder / "nowhere", target);
  EXPECT_EQ(Make(true).problem.substr(0, 5), u"[2135");
  EXPECT_TRUE(fs::is_symlink(target));
  fs::create_directory(folder / "nowhere");
  EXPECT_EQ(Make().problem, u"");
  EXPECT_TRUE(fs::exists(folder / "nowhere" / "plan.json"));
}

TEST_F(VersionFolders, HoldSheetsIfTheyCanBePrinted) {
  ToyPrinter printer;
  ports.printer = &printer;
  ports.pdfText = &printer;
  printer.problem = "a full disk";
  EXPECT_NE(Make().problem, u"");
  EXPECT_FALSE(fs::exists(target));
  printer.isInstalled = false;
  const MadeVersions without = Make();
  EXPECT_EQ(without.problem, u"");
  EXPECT_EQ(without.report.back().substr(0, 5), u"[2066");
  EXPECT_EQ(Files(target).size(), 9U);
  printer.isInstalled = true;
  printer.problem.clear();
  EXPECT_NE(Make(true).problem, u"") << "sheets that cannot be read back are not proved";
  EXPECT_EQ(Files(target).size(), 9U) << "the old ones stay";
}

TEST(VersionNames, AreOfFiles) {
  NumberStrings strings;
  EXPECT_EQ(ProblemWithNames({u"A", u"Gruppe 2", u"甲", u"أ"}, strings), u"");
  EXPECT_EQ(ProblemWithNames({u"É", u"E", u"È", u"S", u"ß"}, strings), u"");
  const std::vector<std::vector<std::u16string>> kWrong{{},
                                                        {u""},
                                                        {u"a/b"},
                                                        {u".."},
                                                        {u" A"},
                                                        {u"A."},
                                                        {u"con"},
                                                        {u"NUL.x"},
                                                        {u"A", u"a"},
                                                        {u"É", u"é"},
                                                        {u"É", u"e\u0301"},
                                                        {u"Maß", u"MASS"},
                                                        {u"\u1E9E", u"ss"},
                                                        {u"\uFB01", u"FI"},
                                                        {u"\n"},
                                                        {u"\u202Eexe"},
                                                        {std::u16string(1, u'\xD800')},
                                                        {std::u16string(41, u'A')},
                                                        {27, u"A"}};
  for (const auto& names : kWrong)
    EXPECT_NE(ProblemWithNames(names, strings), u"") << testing::PrintToString(names);
}

}  // namespace
}  // namespace quorvantis::test
