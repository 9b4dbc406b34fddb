// SPDX-License-Identifier: MIT
#include "bank/near/OpenedContent.h"
#include "bank/near/QuestionContentKey.h"
#include "bank/tags/TagFile.h"
#include "bank/tags/TagTexts.h"
#include "cli/bank/BankSubcommands.h"
#include "cli/console/CommandError.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "likeness/QuestionRelation.h"
#include "platform/digest/OpenSslDigest.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

/// The arguments of `bank tag`.
struct TagRequest {
  fs::path exam;
  int number = 0;
  std::vector<std::string> add;
  std::vector<std::string> remove;
  bool takesLike = false;

  bool Changes() const { return !add.empty() || !remove.empty() || takesLike; }
};

/// The arguments of `bank tags`.
struct TagListRequest {
  fs::path folder = ".";
  bool json = false;
};

std::vector<std::u16string> TextsOf(const std::vector<std::string>& arguments) {
  std::vector<std::u16string> texts;
  texts.reserve(arguments.size());
  for (const std::string& argument : arguments) texts.push_back(Utf8ToUtf16(argument));
  return texts;
}

/// Empty if it can be a tag.
std::string WhyNoTag(const std::string& text) {
  return CleanTag(Utf8ToUtf16(text)) ? "" : "a tag has 1 to 100 characters: \"" + text + "\"";
}

void RequireDone(const ExamSession& session, const TagFile& file, const TagResult& result) {
  if (!result.IsDone())
    throw CommandError(Utf16ToUtf8(TagProblemText(result, file.Path(), session.services.strings)));
}

/// A file of a newer program can be read.
TagEntries ReadTags(const ExamSession& session, const TagFile& file) {
  TagResult result;
  TagEntries entries = file.Read(result);
  if (result.outcome != TagOutcome::Newer) RequireDone(session, file, result);
  return entries;
}

TagChange ChangeOf(ExamSession& session, const TagRequest& request) {
  session.exam.CountQuestions();
  if (request.number < 1 || request.number > session.exam.questionCount)
    throw CommandError(request.exam.string() + ": there is no question " + std::to_string(request.number));
  const OpenSslDigest digest;
  const QuestionContent content = OpenedContent(session.exam.Question(request.number), digest);
  const Shingles shingles = ShinglesOf(content);
  if (shingles.IsEmpty())
    throw CommandError("question " + std::to_string(request.number) + " is empty: tags belong to a content");
  return {QuestionContentKey(content, digest), content.text, QuestionSketch(shingles), TextsOf(request.add),
          TextsOf(request.remove)};
}

std::string Joined(const std::vector<std::u16string>& tags) {
  std::string line;
  for (const std::u16string& tag : tags) line += (line.empty() ? "" : ", ") + Utf16ToUtf8(tag);
  return line;
}

void TagQuestion(Console& console, const CommonOptions& options, const TagRequest& request) {
  ExamSession session(console, options);
  session.Load(request.exam);
  session.RequireUnpacked(request.exam);
  const TagChange change = ChangeOf(session, request);
  TagFile file(fs::absolute(request.exam).lexically_normal().parent_path(), session.services.files);
  const auto found = FindTags(ReadTags(session, file), change.key, change.sketch);
  const bool isLike = found && found->key != change.key;
  if (request.takesLike && !found) throw CommandError("no question with tags is like this one");
  if (request.Changes()) {
    const bool takes = request.takesLike && isLike;
    RequireDone(session, file, takes ? file.Carry(found->key, change) : file.Change({change}));
  }
  const TagEntries entries = ReadTags(session, file);
  const auto own = entries.find(change.key);
  if (own != entries.end()) {
    for (const std::u16string& tag : own->second.tags) console.out << Utf16ToUtf8(tag) << "\n";
  } else if (isLike && !request.Changes()) {
    const TagEntry& like = entries.at(found->key);
    console.Tell("\"" + Utf16ToUtf8(like.words) + "\" is like this question and has the tags " +
                 Joined(like.tags) + "; --like takes them");
  }
}

void ListTags(Console& console, const CommonOptions& options, const TagListRequest& request) {
  std::error_code error;
  const fs::directory_iterator entries(request.folder, error);
  if (error) throw CommandError(request.folder.string() + ": " + error.message());
  ExamSession session(console, options);
  const TagFile file(request.folder, session.services.files);
  std::map<std::u16string, std::size_t> counts;
  nlohmann::ordered_json json = nlohmann::ordered_json::array();
  for (const auto& [key, entry] : ReadTags(session, file)) {
    nlohmann::ordered_json tags = nlohmann::ordered_json::array();
    for (const std::u16string& tag : entry.tags) {
      ++counts[tag];
      tags.push_back(Utf16ToUtf8(tag));
    }
    json.push_back({{"key", key}, {"question", Utf16ToUtf8(entry.words)}, {"tags", std::move(tags)}});
  }
  if (request.json) {
    console.out << json << "\n";
    return;
  }
  for (const auto& [tag, count] : counts) console.out << count << "\t" << Utf16ToUtf8(tag) << "\n";
}

void AddTag(CLI::App& bank, CommandContext& context) {
  CLI::App* tag = AddCommand(bank, context, "tag", "Show or change the tags of a question");
  const auto request = std::make_shared<TagRequest>();
  AddPath(*tag, "EXAM", request->exam, "Exam file (.exm)");
  tag->add_option("NUMBER", request->number, "Number of the question")
      ->required()
      ->check(IsDecimal())
      ->type_name("");
  tag->add_option("TAG", request->add, "Tags to add, such as mitosis or class:8b")
      ->check(CLI::Validator(WhyNoTag, ""))
      ->type_name("");
  tag->add_option("--remove", request->remove, "A tag to remove; may be given several times")
      ->check(CLI::Validator(WhyNoTag, ""))
      ->allow_extra_args(false)
      ->type_name("TAG");
  tag->add_flag("--like", request->takesLike,
                "Take the tags of the most similar question with tags, as after\nthe question was edited");
  tag->footer(
      "Prints the tags that the question has then. They are kept in quorvantis-tags.json beside the\n"
      "exam, by the content of the question: every exam there that has the question has its tags.");
  tag->callback([&context, request] { TagQuestion(context.console, context.common, *request); });
}

void AddTagList(CLI::App& bank, CommandContext& context) {
  CLI::App* tags =
      AddCommand(bank, context, "tags", "List the tags of a folder, and how many questions have each");
  const auto request = std::make_shared<TagListRequest>();
  tags->add_option("DIR", request->folder, "Folder of exams (default: this one)")->type_name("");
  tags->add_flag("--json", request->json, "Print a JSON list of the questions that have tags");
  tags->callback([&context, request] { ListTags(context.console, context.common, *request); });
}

}  // namespace

/// Tags need no index, so they are no concern of the other commands of the bank.
void AddBankTags(CLI::App& app, CommandContext& context) {
  const auto groups = app.get_subcommands([](const CLI::App* each) { return each->get_name() == "bank"; });
  CLI::App& bank = groups.empty() ? AddCommandGroup(app, context, "bank", "Find questions in all your exams")
                                  : *groups.front();
  AddTag(bank, context);
  AddTagList(bank, context);
}

}  // namespace quorvantis::cli
