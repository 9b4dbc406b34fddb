// SPDX-License-Identifier: MIT
#include "versions/VersionVerifier.h"

#include "examfile/WorkFolder.h"
#include "model/document/ExamServices.h"
#include "platform/FileDigest.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"
#include "platform/TextNumbers.h"
#include "platform/WholeFile.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"
#include "versions/CsvText.h"
#include "versions/ExamComparison.h"
#include "versions/PartOfProgress.h"
#include "versions/PinsHold.h"
#include "versions/ReadExam.h"
#include "versions/VersionFiles.h"
#include "versions/VersionKeys.h"
#include "versions/VersionNames.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

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
    if (verified_.record && !ProblemWithNames(verified_.record->request.names, services_.strings).empty())
      verified_.record.reset();
    if (!verified_.record) Tell(text_id::kPlanUnreadable, {PathToText(folder_ / kPlanFile)});
    return verified_.record.has_value();
  }

  /// That each file is there, and has its bytes.
  void CheckFiles() {
    std::vector<std::u16string> wanted{std::u16string(kCombinedKeysFile), std::u16string(kReportFile)};
    for (const PlannedVersion& version : verified_.record->plan.versions)
      wanted.insert(wanted.end(), {ExamFileOf(version.name), KeyFileOf(version.name)});
    for (const MadeFile& made : verified_.record->files) {
      if (IsStopped()) return;
      services_.progress.Wait();
      CheckFile(made);
      std::erase(wanted, made.name);
    }
    for (const std::u16string& name : wanted) Tell(text_id::kFileMissing, {name});
  }

  void CheckFile(const MadeFile& made) {
    const bool isInside = made.name.find(u'/') == made.name.npos;
    const std::string digest = isInside ? ports_.digest.OfFile(folder_ / TextToPath(made.name)) : "";
    if (digest != made.digest)
      Tell(digest.empty() ? text_id::kFileMissing : text_id::kFileChanged, {made.name});
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
      CheckTable(KeyFileOf(version.name), KeyTableOf(exam.Exam(), version));
      papers.push_back(exam.Exam());
    }
    CheckTable(std::u16string(kCombinedKeysFile), CombinedKeys(papers, plan));
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

  /// That a table in a file says the same as `wanted`, cell by cell.
  void CheckTable(const std::u16string& file, const std::vector<CsvRow>& wanted) {
    const auto bytes = ReadWholeFile(folder_ / TextToPath(file), kLargestTable);
    const auto rows = bytes ? ReadCsv(*bytes) : std::nullopt;
    if (!rows) return TellOf(file, services_.strings.Text(text_id::kTableUnreadable));
    for (std::size_t line = 0; line < std::max(rows->size(), wanted.size()); ++line) {
      const CsvRow row = line < rows->size() ? (*rows)[line] : CsvRow();
      const CsvRow right = line < wanted.size() ? wanted[line] : CsvRow();
      for (std::size_t column = 0; column < std::max(row.size(), right.size()); ++column) {
        const std::u16string cell = column < row.size() ? row[column] : std::u16string();
        const std::u16string rightCell = column < right.size() ? CsvCell(right[column]) : std::u16string();
        if (cell == rightCell && row.size() == right.size()) continue;
        return TellOf(file, Filled(text_id::kCellDiffers,
                                   {FormatInteger(static_cast<std::int64_t>(line) + 1),
                                    FormatInteger(static_cast<std::int64_t>(column) + 1), cell, rightCell}));
      }
    }
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
