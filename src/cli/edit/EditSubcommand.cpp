// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/edit/EditSession.h"
#include "cli/edit/EditSubcommands.h"
#include "cli/options/CommandOptions.h"
#include "examfile/ExamFileLayout.h"
#include "text/Utf.h"

#include <fstream>
#include <istream>

namespace quorvantis::cli {
namespace {

struct EditRequest {
  std::filesystem::path script;  ///< empty for the console
  bool keepsRecovery = false;    ///< a copy after each line that leaves something unsaved
};

void RunScript(EditSession& session, std::istream& script, const std::string& name) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    if (number == 1 && line.starts_with(kByteOrderMark)) {
      throw CommandError(name + ": is no script; to edit an exam file, say: open " + name);
    }
    if (number == 1 && line.starts_with(kUtf8Mark)) line.erase(0, kUtf8Mark.size());
    try {
      session.Run(ParseScriptLine(line));
    } catch (const CommandError& problem) {
      throw CommandError(name + ":" + std::to_string(number) + ": " + problem.what(), problem.Status());
    }
  }
  if (script.bad()) throw CommandError(name + ": cannot be read to its end");
  if (session.LacksReplyToClose())
    throw CommandError(name + ": the exam is not closed; say reply yes or reply no before close");
}

void Edit(Console& console, const CommonOptions& options, const EditRequest& request) {
  const bool isNamed = !request.script.empty();
  std::ifstream file;
  if (isNamed) file = OpenInput(request.script);
  EditSession session(console, options);
  if (request.keepsRecovery) session.KeepRecovery();
  RunScript(session, isNamed ? file : console.in, isNamed ? request.script.string() : "standard input");
}

}  // namespace

void AddEdit(CLI::App& app, CommandContext& context) {
  CLI::App* edit = AddCommand(app, context, "edit", "Edit an exam with a script");
  const auto request = std::make_shared<EditRequest>();
  edit->add_option("SCRIPT", request->script, "Script file (default: standard input)")->type_name("");
  edit->add_flag("--recovery", request->keepsRecovery,
                 "After each line, keep a copy of unsaved work in the application folder");
  edit->footer("One command per line; # begins a comment; a text with blanks or escapes is a JSON string:\n" +
               EditCommandHelp());
  edit->callback([&context, request] { Edit(context.console, context.common, *request); });
}

}  // namespace quorvantis::cli
