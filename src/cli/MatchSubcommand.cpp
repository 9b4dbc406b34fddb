// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/InputFile.h"
#include "cli/JsonNode.h"
#include "regex/RegexPattern.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <istream>
#include <iterator>
#include <ostream>

namespace quorvantis::cli {
namespace {

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

}  // namespace

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

}  // namespace quorvantis::cli
