// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/EditSession.h"
#include "cli/InputFile.h"
#include "examfile/ExamFileLayout.h"

#include <fstream>
#include <istream>

namespace quorvantis::cli {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

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

}  // namespace

void Edit(Console& console, const CommonOptions& options, const std::optional<std::filesystem::path>& script,
          bool keepsRecovery) {
  std::ifstream file;
  if (script) file = OpenInput(*script);
  EditSession session(console, options);
  if (keepsRecovery) session.KeepRecovery();
  RunScript(session, script ? file : console.in, script ? script->string() : "standard input");
}

}  // namespace quorvantis::cli
