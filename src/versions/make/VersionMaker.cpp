// SPDX-License-Identifier: MIT
#include "versions/make/VersionMaker.h"

#include "examfile/ExamFileWriter.h"
#include "examfile/FileFailure.h"
#include "examfile/WorkFolder.h"
#include "model/document/ServicesWith.h"
#include "platform/FileDigest.h"
#include "platform/PaperPrinter.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"
#include "platform/WholeFile.h"
#include "platform/texts/VersionTexts.h"
#include "taking/CollectedMessages.h"
#include "taking/PrivateServices.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"
#include "versions/folder/PartOfProgress.h"
#include "versions/folder/ReadExam.h"
#include "versions/folder/VersionExam.h"
#include "versions/folder/VersionFiles.h"
#include "versions/folder/VersionKeys.h"
#include "versions/folder/VersionReport.h"
#include "versions/make/PendingFolder.h"
#include "versions/make/TargetFolder.h"
#include "versions/make/VersionSheets.h"
#include "versions/plan/VersionNames.h"
#include "versions/plan/VersionPlanner.h"
#include "versions/verify/VersionVerifier.h"

#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// The path without links in its folders, so that the way from one path to another can be told.
fs::path WithoutLinks(const fs::path& path) {
  std::error_code error;
  const fs::path folder = fs::weakly_canonical(path.parent_path(), error);
  return error ? path : folder / path.filename();
}

/// Makes the versions of one order, step by step. Each step returns what is wrong, empty if nothing is.
class Making {
 public:
  Making(const ExamServices& services, const fs::path& workFolder, const VersionPorts& ports,
         const VersionOrder& order)
      : services_(services),
        ports_(ports),
        order_(order),
        verifyFolder_(workFolder / "verified"),
        source_(services, workFolder / "source", order.exam),
        pending_(order.folder, ports.guard) {}

  MadeVersions Run() {
    using Step = std::u16string (Making::*)();
    for (const Step step :
         {&Making::Begin, &Making::Plan, &Making::WriteVersions, &Making::WriteTables, &Making::Print,
          &Making::WriteReport, &Making::WritePlan, &Making::Verify, &Making::Finish}) {
      made_.problem = (this->*step)();
      if (!made_.problem.empty()) break;
    }
    return std::move(made_);
  }

 private:
  std::u16string Filled(int text, std::initializer_list<std::u16string_view> values) const {
    return FillMessage(services_.strings.Text(text), values);
  }
  std::u16string NotWritten(const fs::path& file, std::error_code why) const {
    return Filled(text_id::kVersionsNotWritten, {PathToText(file), FileFailureText(services_.strings, why)});
  }
  std::u16string Cancelled() {
    made_.isCancelled = true;
    return services_.strings.Text(text_id::kVersionsCancelled);
  }

  std::u16string Begin() {
    if (pending_.Error()) return NotWritten(order_.folder, pending_.Error());
    made_.record.request = order_.request;
    made_.record.program = ports_.program;
    made_.record.languageId = ports_.languageId;
    made_.record.sourceDigest = ports_.digest.OfFile(order_.exam);
    made_.record.source = PathToText(order_.exam.lexically_relative(order_.folder));
    return source_.Problem();
  }

  std::u16string Plan() {
    PlanOutcome outcome = PlanVersions(source_.Exam(), source_.QuestionCount(), order_.request);
    switch (outcome.problem) {
      case PlanOutcome::Problem::NoQuestions:
        return Filled(text_id::kVersionsNoQuestions, {PathToText(order_.exam)});
      case PlanOutcome::Problem::TooFewOrders:
        return Filled(text_id::kVersionsTooFew, {FormatInteger(static_cast<std::int64_t>(outcome.possible))});
      case PlanOutcome::Problem::None:
        break;
    }
    PlanRecord& record = made_.record;
    record.plan = std::move(outcome.plan);
    chance_ = outcome.chance;
    for (const PlannedVersion& version : record.plan.versions)
      record.codes.push_back(CodeOfVersion(ports_.digest, record.sourceDigest, order_.request, version.name));
    made_.report = PlanReport(source_.Exam(), order_.request, record.plan, chance_, services_.strings);
    return {};
  }

  std::u16string WriteVersions() {
    const std::vector<PlannedVersion>& versions = made_.record.plan.versions;
    PartOfProgress third(services_.progress, 0, 3);
    for (std::size_t i = 0; i < versions.size(); ++i) {
      if (services_.progress.IsCancelled()) return Cancelled();
      PartOfProgress part(third, i, versions.size());
      const std::u16string problem = WriteVersion(versions[i], part);
      if (!problem.empty()) return problem;
    }
    return {};
  }

  std::u16string WriteVersion(const PlannedVersion& version, Progress& progress) {
    FrameSetExam exam = VersionOf(source_.Exam(), version);
    LongAnswerFlags flags;
    flags.SetWhereNeeded(exam);
    CollectedMessages messages;
    const ExamServices shown = ServicesWith(services_, progress);
    const ExamServices own = PrivateServices(shown, services_.applicationFolder, messages, flags);
    const fs::path file = pending_.Path() / TextToPath(ExamFileOf(version.name));
    if (const auto error = ExamFileWriter(exam, own).Write(file)) return NotWritten(file, error);
    Note(ExamFileOf(version.name));
    papers_.push_back(exam);
    return {};
  }

  std::u16string WriteTables() {
    const VersionPlan& plan = made_.record.plan;
    for (std::size_t i = 0; i < plan.versions.size(); ++i) {
      const PlannedVersion& version = plan.versions[i];
      const std::u16string problem = WriteFile(KeyFileOf(version.name), VersionKeyCsv(papers_[i], version));
      if (!problem.empty()) return problem;
    }
    return WriteFile(std::u16string(kCombinedKeysFile), CombinedKeysCsv(papers_, plan));
  }

  /// Where nothing can print, versions are good without PDF files; what fails on the way must not pass for
  /// it.
  std::u16string Print() {
    if (ports_.printer == nullptr) return {};
    PartOfProgress third(services_.progress, 1, 3);
    const auto problem = PrintSheets(pending_.Path(), made_.record, *ports_.printer, third);
    if (services_.progress.IsCancelled()) return Cancelled();
    if (problem && ports_.printer->IsInstalled())
      return Filled(text_id::kVersionsNoSheets, {Utf8ToUtf16(*problem)});
    if (problem) {
      made_.report.push_back(Filled(text_id::kVersionsNoSheets, {Utf8ToUtf16(*problem)}));
      return {};
    }
    for (const PlannedVersion& version : made_.record.plan.versions) {
      for (const Sheet sheet : kVersionSheets) {
        const std::u16string file = SheetFileOf(version.name, sheet);
        const int pages = ports_.printer->PageCount(pending_.Path() / TextToPath(file)).value_or(0);
        Note(file, pages);
      }
    }
    if (DoPapersDiffer(made_.record))
      made_.report.push_back(services_.strings.Text(text_id::kVersionsPagesDiffer));
    return {};
  }

  std::u16string WriteReport() {
    return WriteFile(std::u16string(kReportFile),
                     ReportText(source_.Exam(), made_.record, chance_, services_.strings));
  }

  std::u16string WritePlan() {
    const std::u16string name(kPlanFile);
    const std::string bytes = ports_.form.Write(made_.record);
    const fs::path file = pending_.Path() / TextToPath(name);
    if (const auto error = SaveWholeFile(services_.files, file, bytes)) return NotWritten(file, error);
    return {};
  }

  std::u16string WriteFile(const std::u16string& name, const std::string& bytes) {
    const fs::path file = pending_.Path() / TextToPath(name);
    if (const auto error = SaveWholeFile(services_.files, file, bytes)) return NotWritten(file, error);
    Note(name);
    return {};
  }

  void Note(const std::u16string& name, int pages = 0) {
    made_.record.files.push_back({name, ports_.digest.OfFile(pending_.Path() / TextToPath(name)), pages});
  }

  std::u16string Verify() {
    PartOfProgress third(services_.progress, 2, 3);
    const ExamServices services = ServicesWith(services_, third);
    const VersionVerifier verifier(services, verifyFolder_, ports_);
    const VerifiedVersions verified = verifier.Verify(pending_.Path(), order_.exam);
    if (verified.isCancelled) return Cancelled();
    made_.report.insert(made_.report.end(), verified.notes.begin(), verified.notes.end());
    if (verified.faults.empty()) return {};
    return Filled(text_id::kVersionsNotProved, {verified.faults.front()});
  }

  /// The folder is looked at again, since making takes a while.
  std::u16string Finish() {
    const std::u16string problem =
        ProblemWithFolder(order_.folder, order_.exam, order_.replaces, ports_.form, services_.strings);
    if (!problem.empty()) return problem;
    if (const auto error = pending_.Commit()) return NotWritten(order_.folder, error);
    return {};
  }

  const ExamServices& services_;
  const VersionPorts& ports_;
  const VersionOrder& order_;
  fs::path verifyFolder_;
  ReadExam source_;
  PendingFolder pending_;
  MadeVersions made_;
  CopyingChance chance_;
  std::vector<ExamPaper> papers_;  ///< the versions, for their keys
};

}  // namespace

MadeVersions VersionMaker::Make(const VersionOrder& given) const {
  std::error_code ignored;
  VersionOrder order = given;
  order.exam = WithoutLinks(order.exam);
  if (!order.folder.has_filename()) order.folder = order.folder.parent_path();
  order.folder = WithoutLinks(order.folder);
  if (fs::is_directory(order.folder, ignored)) order.folder = fs::canonical(order.folder, ignored);
  MadeVersions made;
  made.problem = ProblemWithNames(order.request.names, services_.strings);
  if (made.problem.empty()) {
    made.problem =
        ProblemWithFolder(order.folder, order.exam, order.replaces, ports_.form, services_.strings);
  }
  if (made.problem.empty()) made = Making(services_, workFolder_, ports_, order).Run();
  RemoveFolder(workFolder_);
  return made;
}

}  // namespace quorvantis
