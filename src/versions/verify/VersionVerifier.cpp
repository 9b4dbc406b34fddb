// SPDX-License-Identifier: MIT
#include "versions/verify/VersionVerifier.h"

#include "examfile/WorkFolder.h"
#include "model/document/ServicesWith.h"
#include "platform/FileDigest.h"
#include "platform/PdfText.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"
#include "platform/WholeFile.h"
#include "platform/texts/FileTexts.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"
#include "versions/folder/PartOfProgress.h"
#include "versions/folder/ReadExam.h"
#include "versions/folder/VersionFiles.h"
#include "versions/folder/VersionKeys.h"
#include "versions/folder/VersionReport.h"
#include "versions/plan/VersionNames.h"
#include "versions/plan/VersionPlanner.h"
#include "versions/verify/CsvText.h"
#include "versions/verify/ExamComparison.h"
#include "versions/verify/PaperComparison.h"
#include "versions/verify/PinsHold.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

using Table = std::vector<CsvRow>;

/// Empty outside of the table.
std::u16string CellAt(const Table& table, std::size_t line, std::size_t column) {
  return line < table.size() && column < table[line].size() ? table[line][column] : std::u16string();
}

/// The line and column of the first cell that differs; those of the first cell if only the form differs.
std::pair<std::size_t, std::size_t> FirstDifference(const Table& table, const Table& other) {
  for (std::size_t line = 0; line < std::max(table.size(), other.size()); ++line) {
    const std::size_t columns =
        std::max(line < table.size() ? table[line].size() : 0, line < other.size() ? other[line].size() : 0);
    for (std::size_t column = 0; column < columns; ++column) {
      if (CellAt(table, line, column) != CellAt(other, line, column)) return {line, column};
    }
  }
  return {};
}

/// Verifies one folder.
class Verification {
 public:
  Verification(const ExamServices& services, const fs::path& workFolder, const VersionPorts& ports,
               const fs::path& folder)
      : services_(services), workFolder_(workFolder), ports_(ports), folder_(folder) {}

  VerifiedVersions Run(const fs::path& source) {
    if (!ReadPlan()) return std::move(verified_);
    CheckFiles();
    const fs::path file = source.empty() ? folder_ / TextToPath(verified_.record->source) : source;
    if (!IsStopped() && IsSource(file)) CheckVersions(file);
    return std::move(verified_);
  }

 private:
  bool IsStopped() {
    verified_.isCancelled = verified_.isCancelled || services_.progress.IsCancelled();
    return verified_.isCancelled;
  }

  std::u16string Filled(int text, std::initializer_list<std::u16string_view> values) const {
    return FillMessage(services_.strings.Text(text), values);
  }
  void Tell(int text, std::initializer_list<std::u16string_view> values) {
    verified_.faults.push_back(Filled(text, values));
  }
  void TellOf(std::u16string_view file, std::u16string_view what) { Tell(text_id::kInFile, {file, what}); }

  bool ReadPlan() {
    const auto bytes = ReadWholeFile(folder_ / kPlanFile, kLargestTable);
    verified_.record = bytes ? ports_.form.Read(*bytes) : std::nullopt;
    if (verified_.record && !IsUsable(*verified_.record)) verified_.record.reset();
    if (!verified_.record) Tell(text_id::kPlanUnreadable, {PathToText(folder_ / kPlanFile)});
    return verified_.record.has_value();
  }

  /// A plan that this program has made: its names are possible, and its codes follow from the rest.
  bool IsUsable(const PlanRecord& record) const {
    for (std::size_t i = 0; i < record.codes.size(); ++i) {
      const std::u16string& name = record.plan.versions[i].name;
      if (record.codes[i] != CodeOfVersion(ports_.digest, record.sourceDigest, record.request, name))
        return false;
    }
    return ProblemWithNames(record.request.names, services_.strings).empty();
  }

  /// That each file is there, and has its bytes.
  void CheckFiles() {
    const PlanRecord& record = *verified_.record;
    const auto isSheet = [](const MadeFile& made) { return made.name.ends_with(u".pdf"); };
    std::vector<std::u16string> wanted =
        FilesOf(record.plan.versions, std::ranges::any_of(record.files, isSheet));
    for (const MadeFile& made : record.files) {
      if (IsStopped()) return;
      services_.progress.Wait();
      const auto expected = std::ranges::find(wanted, made.name);
      if (expected == wanted.end()) {
        TellOf(kPlanFile, Filled(text_id::kFileNotExpected, {made.name}));
        continue;
      }
      wanted.erase(expected);
      CheckFile(made);
    }
    for (const std::u16string& name : wanted) Tell(text_id::kFileMissing, {name});
  }

  void CheckFile(const MadeFile& made) {
    const std::string digest = ports_.digest.OfFile(folder_ / TextToPath(made.name));
    if (digest != made.digest)
      Tell(digest.empty() ? text_id::kFileMissing : text_id::kFileChanged, {made.name});
    if (!made.name.ends_with(u".pdf")) CheckPages(made, 0);
  }

  void CheckPages(const MadeFile& made, std::size_t pages) {
    if (made.pages == static_cast<int>(pages)) return;
    const auto count = [](std::int64_t number) { return FormatInteger(number); };
    TellOf(kPlanFile, Filled(text_id::kPageCountDiffers,
                             {made.name, count(made.pages), count(static_cast<std::int64_t>(pages))}));
  }

  bool IsSource(const fs::path& file) {
    const std::string digest = ports_.digest.OfFile(file);
    if (digest == verified_.record->sourceDigest) return true;
    Tell(digest.empty() ? text_id::kSourceMissing : text_id::kSourceChanged,
         {PathToText(file.lexically_normal())});
    return false;
  }

  void CheckVersions(const fs::path& sourceFile) {
    const ReadExam source(services_, workFolder_ / "source", sourceFile);
    const VersionPlan& plan = verified_.record->plan;
    CheckDerived(source);
    std::vector<ExamPaper> papers;
    for (const PlannedVersion& version : plan.versions) {
      if (IsStopped()) return;
      PartOfProgress part(services_.progress, papers.size(), plan.versions.size());
      const ExamServices services = ServicesWith(services_, part);
      const std::u16string file = ExamFileOf(version.name);
      const ReadExam exam(services, workFolder_ / "version", folder_ / TextToPath(file));
      if (!CheckPlan(source, version)) return;
      for (const std::u16string& what : CompareWithSource(source.Exam(), version, exam.Exam()))
        TellOf(file, what);
      CheckTable(KeyFileOf(version.name), VersionKeyCsv(exam.Exam(), version));
      CheckSheets(exam.Exam(), papers.size());
      papers.push_back(exam.Exam());
    }
    CheckTable(std::u16string(kCombinedKeysFile), CombinedKeysCsv(papers, plan));
  }

  /// That exam, seed and choices give this plan and this report. Another version of the program may plan and
  /// say something else.
  void CheckDerived(const ReadExam& source) {
    const PlanRecord& record = *verified_.record;
    if (record.program.empty() || record.program != ports_.program) {
      verified_.notes.push_back(services_.strings.Text(text_id::kPlannedByAnother));
      return;
    }
    const PlanOutcome again = PlanVersions(source.Exam(), source.QuestionCount(), record.request);
    if (again.plan != record.plan) return TellOf(kPlanFile, services_.strings.Text(text_id::kPlanNotDerived));
    if (record.languageId != ports_.languageId)
      verified_.notes.push_back(services_.strings.Text(text_id::kReportNotCompared));
    else
      CheckReport(ReportText(source.Exam(), record, again.chance, services_.strings));
  }

  void CheckReport(std::string_view wanted) {
    const auto bytes = ReadWholeFile(folder_ / TextToPath(kReportFile), kLargestTable);
    if (bytes == wanted) return;
    const std::string_view given = bytes ? std::string_view(*bytes) : std::string_view();
    const auto differs = std::ranges::mismatch(given, wanted).in1;
    const auto line = std::count(given.begin(), differs, '\n') + 1;
    TellOf(kReportFile, Filled(text_id::kReportDiffers, {FormatInteger(line)}));
  }

  bool CheckPlan(const ReadExam& source, const PlannedVersion& planned) {
    if (!IsComplete(planned, source.QuestionCount())) {
      TellOf(kPlanFile, services_.strings.Text(text_id::kPlanIncomplete));
      return false;
    }
    if (const int moved = QuestionNotKept(verified_.record->plan, planned))
      TellOf(ExamFileOf(planned.name), Filled(text_id::kPinnedPartMoved, {FormatInteger(moved)}));
    return true;
  }

  /// That each PDF file of a version shows what it should.
  void CheckSheets(const FrameSetExam& exam, std::size_t version) {
    const PlanRecord& record = *verified_.record;
    const SheetHead head{record.plan.versions[version].name, Utf8ToUtf16(record.codes[version])};
    for (const Sheet sheet : kVersionSheets) {
      const std::u16string file = SheetFileOf(head.versionName, sheet);
      const auto made = std::ranges::find(record.files, file, &MadeFile::name);
      if (made == record.files.end() || IsStopped()) continue;
      services_.progress.Wait();
      const PdfPages printed = ports_.pdfText != nullptr ? ports_.pdfText->Read(folder_ / TextToPath(file))
                                                         : PdfPages{{}, "cannot be read here"};
      if (!printed.problem) CheckPages(*made, printed.pages.size());
      const PaperDifferences found = ComparePaper(exam, sheet, head, printed, services_.strings);
      for (const std::u16string& what : found.faults) TellOf(file, what);
      if (!found.notCompared.empty())
        verified_.notes.push_back(Filled(text_id::kPaperNotCompared, {file, ListOf(found.notCompared)}));
    }
  }

  static std::u16string ListOf(const std::vector<int>& numbers) {
    std::u16string list;
    for (const int number : numbers) list += (list.empty() ? u"" : u", ") + FormatInteger(number);
    return list;
  }

  /// That a table in a file says the same as `wanted`.
  void CheckTable(const std::u16string& file, std::string_view wanted) {
    const auto bytes = ReadWholeFile(folder_ / TextToPath(file), kLargestTable);
    if (bytes == wanted) return;
    const auto rows = bytes ? ReadCsv(*bytes) : std::nullopt;
    const auto right = ReadCsv(wanted);
    if (!rows || !right) return TellOf(file, services_.strings.Text(text_id::kTableUnreadable));
    const auto [line, column] = FirstDifference(*rows, *right);
    TellOf(file, Filled(text_id::kCellDiffers, {Number(line), Number(column), CellAt(*rows, line, column),
                                                CellAt(*right, line, column)}));
  }

  static std::u16string Number(std::size_t index) {
    return FormatInteger(static_cast<std::int64_t>(index) + 1);
  }

  const ExamServices& services_;
  const fs::path& workFolder_;
  const VersionPorts& ports_;
  const fs::path& folder_;
  VerifiedVersions verified_;
};

}  // namespace

VersionVerifier::VersionVerifier(const ExamServices& services, fs::path workFolder, const VersionPorts& ports)
    : services_(services), workFolder_(std::move(workFolder)), ports_(ports) {}

VersionVerifier::~VersionVerifier() {
  RemoveFolder(workFolder_);
}

VerifiedVersions VersionVerifier::Verify(const fs::path& folder, const fs::path& source) const {
  return Verification(services_, workFolder_, ports_, folder).Run(source);
}

std::string CodeOfVersion(const FileDigest& digest, const std::string& sourceDigest,
                          const VersionRequest& request, std::u16string_view name) {
  constexpr std::size_t kCodeDigits = 8;
  const std::string text = sourceDigest + " " + std::to_string(request.seed) + " " + Utf16ToUtf8(name);
  return digest.OfBytes(text).substr(0, kCodeDigits);
}

}  // namespace quorvantis
