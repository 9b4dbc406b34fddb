// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "cli/session/LossMessages.h"
#include "cli/session/UnseenEditor.h"
#include "examfile/ExamFileWriter.h"
#include "platform/posix/ApplicationFolder.h"
#include "recovery/RecoveredExam.h"
#include "shell/session/CloseSequence.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>
#include <ctime>
#include <ostream>

namespace quorvantis::cli {
namespace {

struct RecoverRequest {
  std::string copy;  ///< empty to list them
  std::filesystem::path target;
};

/// As "2025-03-01T12:30:00Z".
std::string TimeText(std::int64_t seconds) {
  const auto time = static_cast<std::time_t>(seconds);
  std::tm parts{};
  char text[32] = "";
  if (::gmtime_r(&time, &parts) != nullptr) std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
  return text;
}

std::string NameOf(const RecoveryCopy& copy) {
  return copy.folder.filename().string();
}

void List(Console& console, const FoundRecoveryCopies& found) {
  for (const RecoveryCopy& copy : found.copies) {
    console.out << NameOf(copy) << '\t' << TimeText(copy.time) << '\t' << copy.questions << '\t'
                << Utf16ToUtf8(PathToText(copy.fileName)) << '\t' << Utf16ToUtf8(copy.title) << '\n';
  }
  for (const auto& folder : found.damaged) console.Complain(folder.string() + ": is damaged");
}

void Restore(ExamSession& session, const RecoveryCopy& copy, const std::filesystem::path& target) {
  UnseenEditor editor(session.exam);
  const auto lost = RestoreExam(copy.folder, editor.Editor());
  if (!lost) throw CommandError(copy.folder.string() + ": cannot be read");
  const auto error = ExamFileWriter(session.exam, session.services).Write(target);
  if (!error) TellSavingLosses(session.console, target, session.exam);
  RunCloseSequence(editor.Editor(), nullptr);
  if (error) throw CommandError(target.string() + ": cannot be written: " + error.message());
  for (const std::u16string& name : *lost) {
    session.console.Complain(Utf16ToUtf8(name) + ": could not be restored; it is saved without content");
  }
}

void Recover(Console& console, CommonOptions options, const std::string& copy,
             const std::filesystem::path& target) {
  if (options.appFolder.empty()) options.appFolder = FindApplicationFolder();
  ExamSession session(console, options);
  const FoundRecoveryCopies found = FindRecoveryCopies(session.services);
  if (copy.empty()) {
    List(console, found);
    return;
  }
  const auto wanted = std::ranges::find(found.copies, copy, NameOf);
  if (wanted == found.copies.end()) {
    throw CommandError("there is no recovery copy " + copy + " in " + options.appFolder.string() +
                       "; \"quorvantis-cli recover\" lists those that there are");
  }
  Restore(session, *wanted, target);
}

}  // namespace

void AddRecover(CLI::App& app, CommandContext& context) {
  CLI::App* recover = AddCommand(app, context, "recover", "List or save exams that an editor did not save");
  const auto request = std::make_shared<RecoverRequest>();
  CLI::Option* copy = recover->add_option("COPY", request->copy, "Copy to save, as listed")->type_name("");
  CLI::Option* target =
      recover->add_option("OUT", request->target, "Exam file to write; the copy is kept")->type_name("");
  copy->needs(target);
  recover->footer(
      "Prints a line for each: name, time, number of questions, file and title, with tabs between them.\n"
      "Without --app-folder, the folder is that of the window.");
  recover->callback(
      [&context, request] { Recover(context.console, context.common, request->copy, request->target); });
}

}  // namespace quorvantis::cli
