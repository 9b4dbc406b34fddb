// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/form/JsonNode.h"
#include "cli/options/CommandOptions.h"
#include "cli/papers/PaperSubcommands.h"
#include "regex/RegexPattern.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <istream>
#include <iterator>
#include <ostream>

namespace quorvantis::cli {
namespace {

/// The arguments of `match`: a pattern and a text, which is read from the console if none is given; or a file
/// of patterns and texts.
struct MatchRequest {
  std::optional<std::string> pattern;
  int flags = 3;
  int start = -1;
  std::optional<std::string> text;
  std::optional<std::filesystem::path> textFile;
  std::optional<std::filesystem::path> batch;  ///< a JSON object with a pattern and a text on each line
};

using Json = nlohmann::ordered_json;

std::string Lower(std::u16string_view name) {
  std::string lower = Utf16ToUtf8(name);
  for (char& unit : lower) {
    if (unit >= 'A' && unit <= 'Z') unit = static_cast<char>(unit - 'A' + 'a');
  }
  return lower;
}

Json Groups(const MatchResult& result) {
  Json groups = Json::array();
  for (int group = 0; group < result.Groups(); ++group) {
    groups.push_back({result.GroupStart(group), result.GroupEnd(group)});
  }
  return groups;
}

std::string ErrorText(const RegexPattern& pattern) {
  const auto& error = pattern.CompileError();
  return error ? error->reason + ", at " + std::to_string(error->position) : std::string();
}

Json Try(std::u16string_view text, const std::u16string& patternText, int flags, int start) {
  const RegexPattern pattern(patternText, flags);
  const MatchResult result = pattern.Match(TextBeforeNul(text), start);
  Json names = Json::object();
  for (const auto& [name, number] : pattern.GroupNames()) names.emplace(Lower(name), number);
  Json line = {{"compiled", !pattern.IsEmpty()},
               {"error", ErrorText(pattern)},
               {"matched", result.IsMatched()},
               {"groups", Groups(result)},
               {"names", names}};
  if (result.Outcome() == MatchOutcome::TooLarge) line["error"] = "the match needs too much memory";
  return line;
}

Json TryLine(const MatchRequest& request, const JsonNode& line) {
  int flags = request.flags;
  int start = request.start;
  TakeNumber(line, "flags", flags);
  TakeNumber(line, "start", start);
  std::u16string text;
  TakeText(line, "text", text);
  return Try(text, line.Member("pattern").Text(), flags, start);
}

void TryLines(Console& console, const MatchRequest& request, std::istream& lines, const std::string& name) {
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    try {
      const nlohmann::json parsed = nlohmann::json::parse(line);
      console.out << TryLine(request, JsonNode(parsed, "")).dump() << '\n';
    } catch (const nlohmann::json::exception&) {
      throw CommandError(name + ":" + std::to_string(number) + ": is not valid JSON");
    } catch (const CommandError& problem) {
      throw CommandError(name + ":" + std::to_string(number) + ": " + problem.what());
    }
  }
  if (lines.bad()) throw CommandError(name + ": cannot be read to its end");
}

std::string Subject(Console& console, const MatchRequest& request) {
  if (request.text) return *request.text;
  if (request.textFile) return ReadInput(*request.textFile);
  return {std::istreambuf_iterator<char>(console.in), std::istreambuf_iterator<char>()};
}

void Match(Console& console, const MatchRequest& request) {
  if (request.batch) {
    std::ifstream lines = OpenInput(*request.batch);
    TryLines(console, request, lines, request.batch->string());
    return;
  }
  const std::u16string text = Utf8ToUtf16(Subject(console, request));
  console.out << Try(text, Utf8ToUtf16(request.pattern.value_or("")), request.flags, request.start).dump()
              << '\n';
}

}  // namespace

void AddMatch(CLI::App& app, CommandContext& context) {
  CLI::App* match = AddCommand(app, context, "match", "Try a pattern of import rules on a text");
  const auto request = std::make_shared<MatchRequest>();
  const auto add = [match](const char* name, auto& target, const char* description, const char* type) {
    return match->add_option(name, target, description)->type_name(type);
  };
  CLI::Option* pattern = AddText(*match, "PATTERN", request->pattern, "Pattern to try", "");
  add("--flags", request->flags,
      "Sum of 1 single-line, 2 multi-line, 4 global, 8 ignore case,\n16 right-to-left, 32 extended; "
      "default 3",
      "N")
      ->check(CLI::Range(0, 63));
  add("--start", request->start, "Where the scan begins, in UTF-16 units", "N");
  CLI::Option* text = AddText(*match, "--text", request->text, "Text to search", "TEXT");
  CLI::Option* file =
      add("--text-file", request->textFile, "File with the text (default: standard input)", "FILE");
  CLI::Option* batch = add("--batch", request->batch,
                           "File with a {\"pattern\": …, \"flags\": …, \"text\": …} on each line", "FILE");
  text->excludes(file)->excludes(batch);
  batch->excludes(file)->excludes(pattern);
  context.mayBeEmpty.insert({pattern, text});
  match->footer("Prints where the groups matched, in UTF-16 units, as one JSON object.");
  match->callback([&context, request] {
    if (!request->pattern && !request->batch) throw CLI::RequiredError("PATTERN or --batch");
    Match(context.console, *request);
  });
}

}  // namespace quorvantis::cli
