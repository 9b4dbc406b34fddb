// SPDX-License-Identifier: MIT
#include "cli/bank/BankSubcommands.h"

#include "bank/search/BankQuery.h"
#include "bank/search/BankSearch.h"
#include "bank/tags/TagTexts.h"
#include "cli/bank/BankSession.h"
#include "cli/console/CommandError.h"
#include "cli/console/TerminalLine.h"
#include "cli/form/KindNames.h"
#include "cli/options/CommandOptions.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <string>
#include <vector>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;
using BankJson = nlohmann::ordered_json;

/// The arguments of all commands of the bank.
struct BankRequest {
  fs::path index;  ///< empty for the user's own
  fs::path folder;
  std::vector<std::string> words;
  bool json = false;
  std::size_t limit = 50;
};

std::string Counted(std::size_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string ShownPath(const fs::path& path) {
  return Utf16ToUtf8(PathToText(path));
}

BankJson JsonOf(const BankHit& hit) {
  const BankQuestion& question = hit.question;
  BankJson json{{"exam", ShownPath(question.exam.path)},
                {"title", Utf16ToUtf8(question.exam.title)},
                {"number", question.number},
                {"kind", KindName(question.kind)},
                {"text", Utf16ToUtf8(question.text)},
                {"options", BankJson::array()},
                {"answerText", Utf16ToUtf8(question.answerText)},
                {"essayAnswer", Utf16ToUtf8(question.essayAnswer)},
                {"answerMask", question.answerMask},
                {"score", nullptr},
                {"files", BankJson::array()},
                {"key", question.key},
                {"tags", BankJson::array()},
                {"highlights", BankJson::array()}};
  for (const std::u16string& option : question.options) json["options"].push_back(Utf16ToUtf8(option));
  if (question.score) json["score"] = *question.score;
  for (const IndexedFile& file : question.files)
    json["files"].push_back({{"name", Utf16ToUtf8(file.name)}, {"size", file.size}});
  for (const std::u16string& tag : hit.tags) json["tags"].push_back(Utf16ToUtf8(tag));
  for (const BankHighlight& part : hit.highlights)
    json["highlights"].push_back(
        {{"field", FieldNamed(part.field).key ? FieldNamed(part.field).key : "files"},
         {"index", part.index},
         {"begin", part.span.begin},
         {"end", part.span.end}});
  return json;
}

void FindInBank(Console& console, const CommonOptions& options, const BankRequest& request) {
  BankSession bank(console, options, request.index);
  std::string words;
  for (const std::string& word : request.words) words += (words.empty() ? "" : " ") + word;
  BankSearch search(bank.index, bank.session.services, bank.digest);
  const QueryWords inLanguage(bank.session.services.strings);
  const BankHits found = search.Find(ParseBankQuery(Utf8ToUtf16(words), false, inLanguage), request.limit);
  bank.Require(found.problem);
  for (const UnreadTags& unread : found.unreadTags)
    console.Complain(Utf16ToUtf8(TagProblemText(unread.result, unread.file, bank.session.services.strings)));
  if (request.json) {
    BankJson json{{"total", found.total}, {"hits", BankJson::array()}};
    for (const BankHit& hit : found.hits) json["hits"].push_back(JsonOf(hit));
    console.out << json << "\n";
  } else {
    for (const BankHit& hit : found.hits)
      console.out << TerminalLine(PathToText(hit.question.exam.path)) << ":" << hit.question.number << ": "
                  << TerminalLine(hit.question.text) << "\n";
  }
  console.out.flush();
  console.Tell(std::to_string(found.hits.size()) + " of " + Counted(found.total, "question"));
}

void ListBank(Console& console, const CommonOptions& options, const BankRequest& request) {
  BankSession bank(console, options, request.index);
  BankProblem problem;
  const std::vector<BankExam> exams = bank.index.Exams(problem);
  bank.Require(problem);
  const StringTable& strings = bank.session.services.strings;
  BankJson json{{"folders", BankJson::array()}, {"exams", BankJson::array()}};
  for (const fs::path& folder : bank.index.Folders()) {
    json["folders"].push_back(ShownPath(folder));
    if (!request.json) console.out << TerminalLine(PathToText(folder)) << "\n";
  }
  std::size_t questions = 0;
  for (const BankExam& exam : exams) {
    questions += static_cast<std::size_t>(exam.questions);
    const std::string state = Utf16ToUtf8(StateText(exam, strings));
    json["exams"].push_back({{"path", ShownPath(exam.path)},
                             {"title", Utf16ToUtf8(exam.title)},
                             {"questions", exam.questions},
                             {"problem", state}});
    if (!request.json && !state.empty())
      console.out << TerminalLine(PathToText(exam.path)) << ": " << state << "\n";
  }
  if (request.json) console.out << json << "\n";
  console.out.flush();
  console.Tell(Counted(exams.size(), "exam") + ", " + Counted(questions, "question"));
}

void AddToBank(Console& console, const CommonOptions& options, const BankRequest& request) {
  BankSession bank(console, options, request.index);
  bank.Require(bank.index.AddFolder(request.folder));
  bank.Update();
}

void RemoveFromBank(Console& console, const CommonOptions& options, const BankRequest& request) {
  BankSession bank(console, options, request.index);
  bool wasThere = false;
  bank.Require(bank.index.RemoveFolder(request.folder, wasThere));
  if (!wasThere)
    throw CommandError(request.folder.string() + ": is no folder of the bank; \"bank list\" shows them");
  bank.Update();
}

void UpdateBank(Console& console, const CommonOptions& options, const BankRequest& request) {
  BankSession(console, options, request.index).Update();
}

using BankFunction = void (*)(Console&, const CommonOptions&, const BankRequest&);

CLI::App* AddBankCommand(CLI::App& bank, CommandContext& context, const char* name, const char* description,
                         const std::shared_ptr<BankRequest>& request, BankFunction run) {
  CLI::App* command = AddCommand(bank, context, name, description);
  command
      ->add_option("--index", request->index,
                   "The index to use, with its folders beside it (default: your own)")
      ->type_name("FILE");
  command->callback([&context, request, run] { run(context.console, context.common, *request); });
  return command;
}

void AddBankFind(CLI::App& bank, CommandContext& context) {
  const auto request = std::make_shared<BankRequest>();
  CLI::App* find = AddBankCommand(bank, context, "find", "Find questions", request, FindInBank);
  find->add_option("WORDS", request->words, "What all questions must have")->required()->type_name("");
  find->add_flag("--json", request->json, "Print one JSON object");
  find->add_option("--limit", request->limit, "Print at most so many questions (default: 50)")
      ->check(IsDecimal())
      ->type_name("N");
  find->footer(
      "WORDS: word \"some words\" -word; kind:choice|fillin|essay|oral exam:NAME folder:NAME tag:TAG "
      "-tag:TAG\n"
      "has:files has:key has:tags -has:key after:2024-08-01 before:2025 score:>2 score:1-3. Put -- before a\n"
      "word with \"-\".");
}

}  // namespace

void AddBank(CLI::App& app, CommandContext& context) {
  CLI::App& bank = AddCommandGroup(app, context, "bank", "Find questions in all your exams");
  const auto add = std::make_shared<BankRequest>();
  AddPath(*AddBankCommand(bank, context, "add", "Add a folder of exams", add, AddToBank), "DIR", add->folder,
          "Folder, with all below it");
  const auto remove = std::make_shared<BankRequest>();
  AddPath(*AddBankCommand(bank, context, "remove", "Take a folder out", remove, RemoveFromBank), "DIR",
          remove->folder, "Folder of the bank");
  const auto update = std::make_shared<BankRequest>();
  AddBankCommand(bank, context, "update", "Read new and changed exams", update, UpdateBank);
  const auto list = std::make_shared<BankRequest>();
  AddBankCommand(bank, context, "list", "List the folders, and exams with a problem", list, ListBank)
      ->add_flag("--json", list->json, "Print one JSON object, with all exams");
  AddBankFind(bank, context);
  AddBankLike(bank, context);
  AddBankDraw(bank, context);
}

}  // namespace quorvantis::cli
