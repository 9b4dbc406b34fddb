// SPDX-License-Identifier: MIT
// bank like: what of an exam was asked before.
#include "bank/search/BankMemory.h"
#include "cli/bank/BankSession.h"
#include "cli/bank/BankSubcommands.h"
#include "cli/console/TerminalLine.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;
using LikeJson = nlohmann::ordered_json;

struct LikeRequest {
  fs::path index;  ///< empty for the user's own
  fs::path exam;
  bool json = false;
};

const char* RelationWord(QuestionRelation relation) {
  switch (relation) {
    case QuestionRelation::Equal:
      return "equal";
    case QuestionRelation::NearlyEqual:
      return "nearly equal";
    case QuestionRelation::OtherNumbers:
      return "other numbers";
    case QuestionRelation::OtherFiles:
      return "other files";
    case QuestionRelation::OtherOptions:
      return "other options";
    case QuestionRelation::OtherText:
      return "other text";
    case QuestionRelation::Different:
      break;
  }
  return "different";
}

std::string PathOf(const BankExam& exam) {
  return Utf16ToUtf8(PathToText(exam.path));
}

void PrintLikeness(std::ostream& out, const BankLikeness& likeness) {
  for (std::size_t i = 0; i < likeness.uses.size(); ++i) {
    for (const BankUse& use : likeness.uses[i])
      out << i + 1 << ": " << RelationWord(use.relation) << ": " << TerminalLine(PathToText(use.exam.path))
          << ":" << use.number << "\n";
  }
  for (const BankShare& share : likeness.exams)
    out << TerminalLine(PathToText(share.exam.path)) << ": " << std::lround(share.share * 100) << " %, "
        << share.same << " the same, " << share.variants
        << (share.variants == 1 ? " variant\n" : " variants\n");
}

void PrintLikenessJson(std::ostream& out, const BankLikeness& likeness) {
  LikeJson json{{"uses", LikeJson::array()}, {"exams", LikeJson::array()}};
  for (std::size_t i = 0; i < likeness.uses.size(); ++i) {
    for (const BankUse& use : likeness.uses[i])
      json["uses"].push_back({{"question", i + 1},
                              {"relation", RelationWord(use.relation)},
                              {"exam", PathOf(use.exam)},
                              {"number", use.number}});
  }
  for (const BankShare& share : likeness.exams)
    json["exams"].push_back({{"exam", PathOf(share.exam)},
                             {"title", Utf16ToUtf8(share.exam.title)},
                             {"same", share.same},
                             {"variants", share.variants},
                             {"share", share.share}});
  out << json << "\n";
}

void TellLikeness(Console& console, const CommonOptions& options, const LikeRequest& request) {
  ExamSession::RequireReadable(request.exam);
  BankSession bank(console, options, request.index);
  bank.Update();
  std::error_code ignored;
  const BankLikeness likeness =
      BankMemory(bank.index)
          .Like(bank.index, bank.digest, bank.ContentsOf(request.exam), fs::canonical(request.exam, ignored),
                bank.session.services.progress);
  bank.Require(likeness.problem);
  request.json ? PrintLikenessJson(console.out, likeness) : PrintLikeness(console.out, likeness);
  console.out.flush();
  const auto known = std::count_if(likeness.uses.begin(), likeness.uses.end(),
                                   [](const std::vector<BankUse>& uses) { return !uses.empty(); });
  console.Tell(std::to_string(known) + " of " + std::to_string(likeness.uses.size()) +
               " questions were asked before");
}

}  // namespace

void AddBankLike(CLI::App& bank, CommandContext& context) {
  CLI::App* like = AddCommand(bank, context, "like", "Tell which questions of an exam were asked before");
  const auto request = std::make_shared<LikeRequest>();
  AddPath(*like, "EXAM", request->exam, "Exam file (.exm)");
  like->add_option("--index", request->index,
                   "The index to use, with its folders beside it (default: your own)")
      ->type_name("FILE");
  like->add_flag("--json", request->json, "Print one JSON object");
  like->footer(
      "Updates the bank first. Prints a line for each earlier use of a question, then one for each exam\n"
      "with questions in common.");
  like->callback([&context, request] { TellLikeness(context.console, context.common, *request); });
}

}  // namespace quorvantis::cli
