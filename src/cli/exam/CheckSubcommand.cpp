// SPDX-License-Identifier: MIT
#include "check/CheckRules.h"
#include "check/ExamCheck.h"
#include "check/IgnoredFindings.h"
#include "check/ScoreRules.h"
#include "cli/console/CommandError.h"
#include "cli/console/TerminalLine.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/texts/CheckTexts.h"
#include "platform/texts/SavingTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {
namespace {

/// The arguments of `check`.
struct ExamCheckRequest {
  std::filesystem::path exam;
  bool json = false;
  std::vector<std::string> ignore;  ///< identifiers of rules
  bool leavesOutIgnored = false;    ///< also what was ignored in the window
};

struct SeverityRow {
  const char* key;  ///< in JSON
  int text;
};

const SeverityRow& RowOf(Severity severity) {
  static constexpr SeverityRow kRows[] = {{"wrong", text_id::kSeverityWrong},
                                          {"doubtful", text_id::kSeverityDoubtful},
                                          {"hint", text_id::kSeverityHint}};
  return kRows[static_cast<std::size_t>(severity)];
}

/// Where the finding is in the JSON of `show`; null where that has no such key.
const char* FieldKey(const TextPlace& place) {
  switch (place.field) {
    case ExamFieldName::AttachmentName:
      return "attachments";
    case ExamFieldName::RangeStart:
    case ExamFieldName::RangeEnd:
    case ExamFieldName::RangeScore:
      return "scoreRanges";
    default:
      return FieldNamed(place.field).key;
  }
}

void LeaveOutIgnored(ExamSession& session, const ExamCheckRequest& request,
                     const std::filesystem::path& folder, std::vector<Finding>& findings) {
  IgnoredFindings ignored(folder, session.services.files);
  if (request.leavesOutIgnored) ignored.Open(std::filesystem::absolute(request.exam).lexically_normal());
  std::erase_if(findings, [&](const Finding& finding) {
    const bool isNamed =
        std::find(request.ignore.begin(), request.ignore.end(), finding.rule) != request.ignore.end();
    return isNamed || ignored.Has(finding, session.exam);
  });
}

void PrintFindings(ExamSession& session, const std::vector<Finding>& findings) {
  const StringTable& strings = session.services.strings;
  for (const Finding& finding : findings) {
    std::u16string line = strings.Text(RowOf(finding.severity).text) + u": " + finding.text;
    if (finding.place.question > 0)
      line = FillMessage(strings.Text(text_id::kOfQuestion), {FormatInteger(finding.place.question), line});
    session.console.out << TerminalText(line) << " [" << finding.rule << "]\n";
  }
}

void PrintFindingsJson(ExamSession& session, const std::vector<Finding>& findings) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const Finding& finding : findings) {
    list.push_back({{"rule", finding.rule},
                    {"severity", RowOf(finding.severity).key},
                    {"question", finding.place.question},
                    {"field", FieldKey(finding.place)},
                    {"index", finding.place.index},
                    {"text", Utf16ToUtf8(finding.text)}});
  }
  nlohmann::ordered_json json{{"findings", std::move(list)},
                              {"wrong", CountOf(findings, Severity::Wrong)},
                              {"doubtful", CountOf(findings, Severity::Doubtful)},
                              {"hints", CountOf(findings, Severity::Hint)},
                              {"totalScore", nullptr}};
  if (const auto sum = SumOfScores(session.exam)) json["totalScore"] = Utf16ToUtf8(FormatScore(*sum));
  session.console.out << json << "\n";
}

std::string Summary(const FrameSetExam& exam, const std::vector<Finding>& findings) {
  const int hints = CountOf(findings, Severity::Hint);
  std::string summary = std::to_string(CountOf(findings, Severity::Wrong)) + " wrong, " +
                        std::to_string(CountOf(findings, Severity::Doubtful)) + " doubtful, " +
                        std::to_string(hints) + (hints == 1 ? " hint" : " hints");
  if (const auto sum = SumOfScores(exam))
    summary += "; the scores add up to " + Utf16ToUtf8(FormatScore(*sum));
  return summary;
}

void CheckExamFile(Console& console, const CommonOptions& options, const ExamCheckRequest& request) {
  ExamSession session(console, options);
  session.Load(request.exam);
  session.RequireUnpacked(request.exam);
  std::vector<Finding> findings = CheckExam(session.exam);
  const bool looksIntoWindow = request.leavesOutIgnored && options.appFolder.empty();
  LeaveOutIgnored(session, request, looksIntoWindow ? FindApplicationFolder() : options.appFolder, findings);
  request.json ? PrintFindingsJson(session, findings) : PrintFindings(session, findings);
  console.out.flush();
  const std::string summary = request.exam.string() + ": " + Summary(session.exam, findings);
  if (CountOf(findings, Severity::Wrong) > 0) throw CommandError(summary);
  console.Tell(summary);
}

/// Empty if it is the identifier of a rule of the check.
std::string WhyNoCheckRule(const std::string& id) {
  if (FindCheckRule(id) != nullptr) return {};
  std::string why = "there is no rule " + id + ". The rules are ";
  for (const CheckRuleRow& row : CheckRules())
    why.append(&row == &CheckRules().front() ? "" : ", ").append(row.id);
  return why;
}

}  // namespace

void AddCheck(CLI::App& app, CommandContext& context) {
  CLI::App* check = AddCommand(app, context, "check", "Look for mistakes in an exam");
  const auto request = std::make_shared<ExamCheckRequest>();
  AddPath(*check, "EXAM", request->exam, "Exam file (.exm)");
  check->add_flag("--json", request->json, "Print one JSON object");
  check->add_option("--ignore", request->ignore, "A rule not to check; may be given several times")
      ->type_name("ID")
      ->allow_extra_args(false)
      ->check(CLI::Validator(WhyNoCheckRule, ""));
  check->add_flag("--ignored", request->leavesOutIgnored,
                  "Also leave out what was ignored in the window,\nor in the folder of --app-folder");
  check->footer(
      "Prints a line for each finding, with its rule in brackets. Fails if something is wrong;\n"
      "what is doubtful and what is a hint does not count.");
  check->callback([&context, request] { CheckExamFile(context.console, context.common, *request); });
}

}  // namespace quorvantis::cli
