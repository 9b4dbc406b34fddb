// SPDX-License-Identifier: MIT
#include "cli/versions/VersionOptions.h"

#include "cli/options/CommandOptions.h"
#include "cli/options/SeedOption.h"
#include "host/PlanWords.h"
#include "model/AnswerLetters.h"
#include "text/Utf.h"
#include "versions/plan/VersionNames.h"

#include <charconv>
#include <sstream>

namespace quorvantis::cli {
namespace {

/// "A,B,C" as the names of versions.
CLI::Option* AddVersionNames(CLI::App& command, VersionRequest& request) {
  const auto take = [&request](const std::string& text) {
    request.names.clear();
    for (std::size_t at = 0; at <= text.size();) {
      const std::size_t end = std::min(text.find(',', at), text.size());
      request.names.push_back(Utf8ToUtf16(std::string_view(text).substr(at, end - at)));
      at = end + 1;
    }
  };
  return command
      .add_option_function<std::string>("--names", take, "The names of the versions (default: A,B,…)")
      ->type_name("A,B,…");
}

/// "3,7B" as what keeps its place: question 3, and option B of question 7.
void AddKeptParts(CLI::App& command, TeacherPins& pins) {
  const auto take = [&pins](const std::string& text) {
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, ',');) {
      int number = 0;
      const char* const end = part.data() + part.size();
      const auto [rest, error] = std::from_chars(part.data(), end, number);
      const auto option = end - rest == 1 ? OptionIndex(static_cast<char16_t>(*rest)) : std::nullopt;
      if (error != std::errc() || !IsQuestionNumber(number) || (rest != end && !option))
        throw CLI::ValidationError("--keep", "neither a question nor an option: " + part);
      if (option)
        pins.options.insert({number, *option});
      else
        pins.questions.insert(number);
    }
  };
  command.add_option_function<std::string>("--keep", take, "Questions, and options of questions, that stay")
      ->type_name("3,7B,…");
}

void AddVersionMoves(CLI::App& command, VersionRequest& request) {
  const auto takeMoves = [&request](const std::string& word) { request.moves = *MovesOfWord(word); };
  command
      .add_option_function<std::string>("--questions", takeMoves,
                                        "How far questions move (default: neighbours of one kind and score)")
      ->type_name("HOW")
      ->check(CLI::IsMember({"none", "neighbours", "within-kind", "within-score", "all"}));
  const auto takeOptions = [&request](const std::string& word) { request.movesOptions = word == "on"; };
  command.add_option_function<std::string>("--options", takeOptions, "Whether options move (default: on)")
      ->type_name("on|off")
      ->check(CLI::IsMember({"on", "off"}));
}

}  // namespace

void AddVersionOptions(CLI::App& command, MakeVersionsRequest& request) {
  const auto takeCount = [&request](const std::size_t& count) { request.request.names = LetterNames(count); };
  CLI::Option* count = command.add_option_function<std::size_t>("--count", takeCount, "How many, 1 to 26")
                           ->type_name("N")
                           ->check(IsDecimal())
                           ->check(CLI::Range(std::size_t{1}, kMaxVersions));
  count->excludes(AddVersionNames(command, request.request));
  AddSeedOption(command, request.seed, "The number that decides the shuffle (default: random)");
  command
      .add_option("--out", request.folder, "The folder to make (default: \"EXAM versions\" beside the exam)")
      ->type_name("DIR");
  AddVersionMoves(command, request.request);
  AddKeptParts(command, request.request.pins);
  command.add_flag("--replace", request.replaces,
                   "Replace versions of this exam that were made there before");
  const auto skipSheets = [&request] { request.printsSheets = false; };
  command.add_flag_callback("--no-pdf", skipSheets, "Make no PDF files, which take most of the time");
}

}  // namespace quorvantis::cli
