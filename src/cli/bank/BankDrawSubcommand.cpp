// SPDX-License-Identifier: MIT
// bank draw: questions by lot, as a list or as an exam.
#include "bank/draw/DrawTexts.h"
#include "bank/index/FileStamp.h"
#include "bank/search/BankQuery.h"
#include "bank/search/DrawnList.h"
#include "bank/tags/TagTexts.h"
#include "cli/bank/BankSession.h"
#include "cli/bank/BankSubcommands.h"
#include "cli/bank/DrawnExam.h"
#include "cli/console/CommandError.h"
#include "cli/console/TerminalLine.h"
#include "cli/form/KindNames.h"
#include "cli/options/CommandOptions.h"
#include "cli/options/SeedOption.h"
#include "cli/session/ExamSession.h"
#include "model/ExamLimits.h"
#include "text/DayText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <string>
#include <vector>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;
using DrawJson = nlohmann::ordered_json;

struct DrawArguments {
  fs::path index;  ///< empty for the user's own
  DrawWish wish;
  std::optional<std::chrono::sys_days> notUsedSince;
  fs::path notLike;  ///< empty for none
  std::optional<std::uint64_t> seed;
  fs::path target;  ///< empty for a list alone
  bool json = false;
};

void TellUnreadTags(const BankSession& bank, const std::vector<UnreadTags>& files) {
  for (const UnreadTags& unread : files)
    bank.session.console.Complain(
        Utf16ToUtf8(TagProblemText(unread.result, unread.file, bank.session.services.strings)));
}

DrawnList DrawFrom(BankSession& bank, const DrawRequest& request) {
  DrawnList drawn = DrawFromBank(bank.index, bank.session.services.files, {request, {}});
  bank.Require(drawn.problem);
  TellUnreadTags(bank, drawn.unread);
  if (drawn.hasChanged) throw CommandError("the bank has changed meanwhile; draw again");
  return drawn;
}

/// Without the name of an exam: its path is printed.
std::string Reason(const BankSession& bank, const DrawnRow& row) {
  return Utf16ToUtf8(ReasonText(row.drawn, {}, bank.session.services.strings));
}

std::vector<BankQuestion> QuestionsOf(const DrawnList& drawn) {
  std::vector<BankQuestion> questions;
  questions.reserve(drawn.rows.size());
  for (const DrawnRow& row : drawn.rows) questions.push_back(row.question);
  return questions;
}

void PrintDrawn(const BankSession& bank, const DrawnList& drawn) {
  std::ostream& out = bank.session.console.out;
  for (const DrawnRow& row : drawn.rows) {
    const BankQuestion& question = row.question;
    out << TerminalLine(PathToText(question.exam.path)) << ":" << question.number << ": "
        << TerminalLine(question.text) << "\n    " << Reason(bank, row) << "\n";
  }
}

DrawJson DayJson(std::optional<std::chrono::sys_days> day) {
  return day ? DrawJson(Utf16ToUtf8(DayText(*day))) : DrawJson();
}

void PrintDrawnJson(const BankSession& bank, const DrawnList& drawn, const DrawRequest& request) {
  DrawJson json{{"seed", request.seed}, {"questions", DrawJson::array()}};
  for (const DrawnRow& row : drawn.rows) {
    const BankQuestion& question = row.question;
    json["questions"].push_back({{"exam", Utf16ToUtf8(PathToText(question.exam.path))},
                                 {"number", question.number},
                                 {"kind", KindName(question.kind)},
                                 {"text", Utf16ToUtf8(question.text)},
                                 {"key", question.key},
                                 {"among", row.drawn.among},
                                 {"exams", row.drawn.exams},
                                 {"lastUsed", DayJson(row.drawn.lastUsed)},
                                 {"reason", Reason(bank, row)}});
  }
  bank.session.console.out << json << "\n";
}

void Draw(Console& console, const CommonOptions& options, const DrawArguments& arguments) {
  if (!arguments.notLike.empty()) ExamSession::RequireReadable(arguments.notLike);
  BankSession bank(console, options, arguments.index);
  if (bank.index.Folders().empty()) throw CommandError("the bank has no folders; \"bank add\" takes one in");
  bank.Update();
  DrawRequest request;
  request.wishes = {arguments.wish};
  request.notUsedSince = arguments.notUsedSince;
  request.seed = arguments.seed ? *arguments.seed : RandomSeed();
  if (!arguments.notLike.empty()) {
    for (const QuestionContent& content : bank.ContentsOf(arguments.notLike))
      request.openExam.emplace_back(content);
  }
  const DrawnList drawn = DrawFrom(bank, request);
  const std::string found =
      Utf16ToUtf8(WishText(arguments.wish, drawn.wishes.front(), bank.session.services.strings));
  if (drawn.rows.empty()) throw CommandError("no question can be drawn: " + found);
  if (!arguments.target.empty()) WriteDrawnExam(bank, QuestionsOf(drawn), arguments.target);
  arguments.json ? PrintDrawnJson(bank, drawn, request) : PrintDrawn(bank, drawn);
  console.out.flush();
  const std::string summary = found + "; seed " + std::to_string(request.seed);
  if (drawn.rows.size() < arguments.wish.count) throw CommandError(summary);
  console.Tell(summary);
}

/// The options that say which questions may come.
void AddConditions(CLI::App& draw, DrawArguments& arguments) {
  const auto takeKind = [&arguments](const std::string& word) {
    arguments.wish.kind = KindOfWord(word);
    if (!arguments.wish.kind)
      throw CLI::ValidationError("--kind", word + " is not " + std::string(KindWords()));
  };
  draw.add_option_function<std::string>("--kind", takeKind, "Only questions of this kind")
      ->type_name(std::string(KindWords()));
  const auto takeTag = [&arguments](const std::string& text) {
    const auto tag = CleanTag(Utf8ToUtf16(text));
    if (!tag) throw CLI::ValidationError("--tag", "a tag has 1 to 100 characters: \"" + text + "\"");
    arguments.wish.tags.push_back(*tag);
  };
  draw.add_option_function<std::vector<std::string>>(
          "--tag",
          [takeTag](const std::vector<std::string>& tags) {
            for (const std::string& tag : tags) takeTag(tag);
          },
          "Only questions with this tag; may be given several times")
      ->allow_extra_args(false)
      ->type_name("TAG");
  const auto takeDay = [&arguments](const std::string& text) {
    const auto moment = ParseBankQuery(u"after:" + Utf8ToUtf16(text)).writtenFrom;
    if (!moment) throw CLI::ValidationError("--unused-since", text + " is not a date such as 2024-08-01");
    arguments.notUsedSince = LocalDay(*moment);
  };
  draw.add_option_function<std::string>("--unused-since", takeDay,
                                        "No questions of exams that were changed on this day or later")
      ->type_name("DATE");
  draw.add_option("--not-like", arguments.notLike, "No questions that this exam has")->type_name("EXAM");
}

}  // namespace

void AddBankDraw(CLI::App& bank, CommandContext& context) {
  CLI::App* draw = AddCommand(bank, context, "draw", "Draw questions by lot");
  const auto arguments = std::make_shared<DrawArguments>();
  draw->add_option("--count", arguments->wish.count, "How many questions")
      ->required()
      ->check(IsDecimal())
      ->check(CLI::Range(1, kMaxQuestions))
      ->type_name("N");
  AddConditions(*draw, *arguments);
  AddSeedOption(*draw, arguments->seed, "The number that decides the draw (default: random)");
  draw->add_option("--out", arguments->target, "Make an exam of the questions, in a new file")
      ->type_name("EXAM");
  draw->add_flag("--json", arguments->json, "Print one JSON object");
  draw->add_option("--index", arguments->index,
                   "The index to use, with its folders beside it (default: your own)")
      ->type_name("FILE");
  draw->footer(
      "Updates the bank first. Of questions that are nearly the same one comes at most. Prints each "
      "question\n"
      "and why it came. The same bank, seed and conditions give the same questions. If fewer come than\n"
      "wanted, the exit status is 1.");
  draw->callback([&context, arguments] { Draw(context.console, context.common, *arguments); });
}

}  // namespace quorvantis::cli
