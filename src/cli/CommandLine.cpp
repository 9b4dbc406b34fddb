// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "cli/LanguagesSubcommand.h"
#include "cli/bank/BankSubcommands.h"
#include "cli/console/CommandError.h"
#include "cli/edit/EditSubcommands.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/options/CommandOptions.h"
#include "cli/options/Version.h"
#include "cli/papers/PaperSubcommands.h"
#include "cli/versions/VersionsSubcommands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <span>

namespace quorvantis::cli {
namespace {

constexpr int kWrongUsage = 2;

/// In the order of the help.
constexpr void (*kSubcommands[])(CLI::App&, CommandContext&) = {
    AddShow,   AddCheck, AddBuild,    AddUnpack,  AddPreview,  AddPrint,   AddPdf,
    AddKey,    AddScore, AddExport,   AddConvert, AddEdit,     AddRecover, AddLanguages,
    AddImport, AddRules, AddVersions, AddBank,    AddBankTags, AddMatch};

/// An empty argument is a mistake in the calling script, most likely an unset variable. It must not count as
/// absent, or as the current folder.
void RefuseEmptyArguments(CLI::App& command, const std::set<const CLI::Option*>& mayBeEmpty) {
  const auto refuse = [](const std::string& value) { return std::string(value.empty() ? "is empty" : ""); };
  for (CLI::Option* option : command.get_options()) {
    if (option->get_items_expected_max() > 0 && !mayBeEmpty.contains(option))
      option->transform(CLI::Validator(refuse, ""));
  }
  for (CLI::App* subcommand : command.get_subcommands({})) RefuseEmptyArguments(*subcommand, mayBeEmpty);
}

/// The arguments in reverse order, as the parser wants them. It would take the argument after "--name=" as
/// its value, so that is given an empty one.
std::vector<std::string> ReversedArguments(int count, const char* const* values) {
  std::vector<std::string> arguments;
  bool optionsEnded = false;
  for (const char* value : std::span(values, static_cast<std::size_t>(count)).subspan(1)) {
    std::string argument = value;
    optionsEnded = optionsEnded || argument == "--";
    const bool hasEmptyValue = !optionsEnded && argument.starts_with("--") && argument.ends_with('=') &&
                               argument.find('=') == argument.size() - 1;
    if (hasEmptyValue) argument.pop_back();
    arguments.push_back(std::move(argument));
    if (hasEmptyValue) arguments.emplace_back();
  }
  std::ranges::reverse(arguments);
  return arguments;
}

/// Names a command that does not exist, which CLI11 would report as a missing one.
bool IsUnknownCommand(const CLI::App& app, int argumentCount, const char* const* arguments) {
  const std::string first = argumentCount > 1 ? arguments[1] : "-";
  const auto named = [&](const CLI::App* command) { return command->get_name() == first; };
  return !first.starts_with('-') && app.get_subcommands(named).empty();
}

int Parse(CLI::App& app, int argumentCount, const char* const* arguments, Console& console) {
  try {
    app.parse(ReversedArguments(argumentCount, arguments));
    return 0;
  } catch (const CLI::ParseError& problem) {
    const int status = app.exit(problem, console.out, console.err);
    return status == 0 ? 0 : kWrongUsage;
  } catch (const CommandError& problem) {
    console.Complain(problem.what());
    return problem.Status();
  } catch (const std::bad_alloc&) {
    console.Complain("there is not enough memory");
  } catch (const std::exception& problem) {
    console.Complain(problem.what());
  }
  return kCommandFailed;
}

}  // namespace

int RunCommandLine(int argumentCount, const char* const* argumentValues, Console& console) {
  CLI::App app("Reads, writes and edits Quorvantis exam files.", "quorvantis-cli");
  app.set_version_flag("--version", std::string("quorvantis-cli ") + kVersion);
  app.require_subcommand(1);
  CommandContext context{console};
  AddCommonOptions(app, context.common);
  for (const auto add : kSubcommands) add(app, context);
  RefuseEmptyArguments(app, context.mayBeEmpty);
  if (IsUnknownCommand(app, argumentCount, argumentValues)) {
    console.Complain("unknown command \"" + std::string(argumentValues[1]) + "\"; see quorvantis-cli --help");
    return kWrongUsage;
  }
  const int status = Parse(app, argumentCount, argumentValues, console);
  console.out.flush();
  if (console.out.good()) return status;
  console.Complain("standard output cannot be written");
  return kCommandFailed;
}

}  // namespace quorvantis::cli
