// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/console/WhyUnreadable.h"
#include "cli/edit/ScriptedImport.h"
#include "cli/form/PrintedOverview.h"
#include "cli/options/CommandOptions.h"
#include "cli/papers/PaperSubcommands.h"
#include "cli/papers/PrintedReading.h"
#include "cli/papers/RuleOptions.h"
#include "cli/papers/StudiedPaper.h"
#include "cli/session/ExamSession.h"
#include "host/ImportRules.h"
#include "host/SavedRules.h"
#include "import/ExamImport.h"
#include "learn/rules/RefusalText.h"
#include "model/document/ExamServices.h"
#include "platform/WholeFile.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <ostream>
#include <utility>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

/// The arguments of `rules learn`.
struct LearnRequest {
  std::filesystem::path paper;
  std::filesystem::path marks;  ///< empty for none
  std::string repository;       ///< the name; empty for that of the paper's file
  std::filesystem::path rules;  ///< the file to add the rules to; empty to print them
  std::filesystem::path text;   ///< for the paper's text; empty for none
};

/// The arguments of `rules check`.
struct CheckRequest {
  std::filesystem::path paper;
  std::filesystem::path rules;  ///< "ImportExam.ini"
  std::string repository;       ///< as in ImportRequest
};

Repository RepositoryOf(const LearnRequest& request, const PaperStudy& study) {
  const std::u16string name =
      request.repository.empty() ? PathToText(request.paper.stem()) : Utf8ToUtf16(request.repository);
  return {name, study.Rules()};
}

/// Names are what can be mended here.
std::string Remedy(RepositoryRefusal refusal) {
  constexpr RepositoryRefusal kOfNames[] = {RepositoryRefusal::NameEmpty, RepositoryRefusal::NameTaken,
                                            RepositoryRefusal::NamePrefix, RepositoryRefusal::NameUnsafe};
  const bool isOfName = std::ranges::find(kOfNames, refusal) != std::end(kOfNames);
  return isOfName ? ". Give the rules another name with --repository" : "";
}

std::string WithoutDot(std::string sentence) {
  if (sentence.ends_with('.')) sentence.pop_back();
  return sentence;
}

/// A whole file, which can be used as it is. What cannot be added to a file must not be printed for one,
/// either.
void PrintRules(ExamSession& session, const fs::path& paper, const Repository& repository) {
  const AddedRepository added = AddRepository({}, repository, session.services.codePage);
  if (added.refusal != RepositoryRefusal::None) {
    const std::string reason = Utf16ToUtf8(RefusalText(added, repository, session.services.strings));
    throw CommandError(paper.string() + ": " + WithoutDot(reason) + Remedy(added.refusal));
  }
  session.console.out << added.file;
}

void SaveSection(ExamSession& session, const fs::path& file, const Repository& repository) {
  const SavedRules saved = SaveRules(file, repository, session.services.codePage, session.services.files);
  if (saved.AreSaved()) return;
  std::string reason = Utf16ToUtf8(WhyNotSaved(saved, file, repository, session.services.strings));
  if (saved.outcome == SavedRules::Outcome::Refused)
    reason = file.string() + ": " + WithoutDot(std::move(reason)) + Remedy(saved.refusal);
  if (saved.outcome == SavedRules::Outcome::NotRead) reason += ". " + WhyUnreadable(file);
  throw CommandError(reason);
}

void WritePaperText(ExamSession& session, const fs::path& file, const Paper& paper) {
  if (file.empty()) return;
  if (const auto error = SaveWholeFile(session.services.files, file, Utf16ToUtf8(paper.source.characters)))
    throw CommandError(file.string() + ": cannot be written: " + error.message());
}

ImportSettings RulesOf(ExamSession& session, const CheckRequest& request) {
  const fs::path rules =
      request.rules.empty() ? FindImportRules(session.services.applicationFolder) : request.rules;
  ExamImport import(rules, session.services.codePage);
  import.Open();
  ScriptedImport answers(session.console);
  ImportAnswers given;
  given.document = fs::absolute(request.paper);
  given.repository = Utf8ToUtf16(request.repository);
  answers.Prepare(given);
  answers.AskDocument(import);
  answers.ThrowIfRefused();
  return import;
}

void PrintQuestions(ExamSession& session, const ReadPaper& paper) {
  StoreQuestions(paper, session.exam, 1);
  session.exam.CountQuestions();
  PrintOverview(session.console.out, session.exam);
}

void LearnRepository(Console& console, const CommonOptions& options, const LearnRequest& request) {
  RefuseSameTarget({request.rules, request.text});
  for (const fs::path& target : {request.rules, request.text}) {
    RefuseToOverwrite(request.paper, target);
    RefuseToOverwrite(request.marks, target);
  }
  ExamSession session(console, options);
  if (!request.text.empty())
    WritePaperText(session, request.text, ReadPaperFile(session, request.paper, true));
  const PaperStudy study = LearnPaper(session, request.paper, request.marks);
  const Repository repository = RepositoryOf(request, study);
  if (request.rules.empty())
    PrintRules(session, request.paper, repository);
  else
    SaveSection(session, request.rules, repository);
}

void CheckRepository(Console& console, const CommonOptions& options, const CheckRequest& request) {
  constexpr double kEnough = 0.9;
  constexpr double kPercent = 100;
  ExamSession session(console, options);
  const ImportSettings rules = RulesOf(session, request);
  PaperStudy study(ReadPaperFile(session, request.paper, rules.listLabels));
  study.SetRules(rules);
  RequireReading(session, request.paper, study);
  PrintRuleMatches(console.out, study);
  PrintUntakenLines(console.out, study);
  PrintQuestions(session, study.Reading().paper);
  console.out.flush();
  TellWarnings(session, study);
  const int percent = static_cast<int>(std::floor(study.Explained() * kPercent));
  const std::string explained = std::to_string(percent) + " % of its text";
  if (study.Explained() < kEnough)
    throw CommandError(request.paper.string() + ": the rules explain only " + explained);
  console.Tell(request.paper.string() + ": the rules explain " + explained);
}

void AddRulesLearn(CLI::App& rules, CommandContext& context) {
  CLI::App* learn = AddCommand(rules, context, "learn", "Work out the rules of a question paper");
  const auto request = std::make_shared<LearnRequest>();
  AddPath(*learn, "PAPER", request->paper, "Question paper: .doc, .docx, .odt, .rtf, .txt or .md");
  AddMarks(*learn, request->marks);
  learn->add_option("--repository", request->repository, "The name of the rules (default: that of the paper)")
      ->type_name("NAME");
  learn->add_option("--ini", request->rules, "Add the rules to this file instead of printing them")
      ->type_name("FILE");
  learn->add_option("--text", request->text, "Also write the paper's text")->type_name("FILE");
  learn->footer(
      "Prints a whole file of rules; --ini adds them to those of a file.\n"
      "Tells on standard error what was understood, and what to look at.\n" +
      MarksHelp());
  learn->callback([&context, request] { LearnRepository(context.console, context.common, *request); });
}

void AddRulesCheck(CLI::App& rules, CommandContext& context) {
  CLI::App* check = AddCommand(rules, context, "check", "Show what rules make of a question paper");
  const auto request = std::make_shared<CheckRequest>();
  AddPath(*check, "PAPER", request->paper, "Question paper: .doc, .docx, .odt, .rtf, .txt or .md");
  AddRepositoryName(*check, request->repository)->required();
  AddRulesFile(*check, request->rules);
  check->footer(
      "Prints what each rule matches, the lines that nothing takes, and the questions.\n"
      "Fails if less than 90 % of the text is explained.");
  check->callback([&context, request] { CheckRepository(context.console, context.common, *request); });
}

}  // namespace

void AddRules(CLI::App& app, CommandContext& context) {
  CLI::App& rules =
      AddCommandGroup(app, context, "rules", "Work out or check the rules for a question paper");
  AddRulesLearn(rules, context);
  AddRulesCheck(rules, context);
}

}  // namespace quorvantis::cli
