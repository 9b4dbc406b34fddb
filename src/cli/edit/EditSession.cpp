// SPDX-License-Identifier: MIT
#include "cli/edit/EditSession.h"

#include "cli/console/CommandError.h"
#include "host/ImportRules.h"
#include "shell/commands/ExportCommand.h"

#include <utility>

namespace quorvantis::cli {
namespace {

std::string Shortened(const std::string& word) {
  constexpr std::size_t kEnoughToRecognise = 40;
  return word.size() <= kEnoughToRecognise ? word : word.substr(0, kEnoughToRecognise) + "...";
}

}  // namespace

EditSession::EditSession(Console& console, const CommonOptions& options,
                         const std::filesystem::path& importRules)
    : session_(console, options),
      life_(
          session_.exam, view_,
          [this](const FrameSetExam& exam, const std::filesystem::path& target) {
            ExportCommand(exam, session_.writer, nullptr).ExportWordDocument(target);
          },
          nullptr),
      importAnswers_(session_.console),
      import_(life_.Editor(), life_.Steps(), session_.papers, importAnswers_,
              importRules.empty() ? FindImportRules(session_.services.applicationFolder) : importRules) {
  life_.Begin();
}

void EditSession::OpenExam(const std::filesystem::path& file) {
  Editor().files.OpenExam(file);
  session_.RequireUnpacked(file);
}

/// A script continues without a recovery copy.
void EditSession::TellRecovery() {
  const std::error_code failure = life_.RecoveryFailure();
  if (std::exchange(recoveryFails_, static_cast<bool>(failure)) || !failure) return;
  session_.console.Complain(life_.RecoveryRoot().string() +
                            ": what is not saved cannot be kept there: " + failure.message());
}

void EditSession::Run(const EditScriptLine& line) {
  if (line.command.empty()) return;
  Editor().state.DeliverContentChanged();
  const EditCommand* command = FindEditCommand(line.command);
  if (command == nullptr) throw CommandError("unknown command \"" + Shortened(line.command) + "\"");
  const std::size_t count = line.arguments.size();
  if (count < command->argumentCount || count > command->argumentCount + command->optionalArguments) {
    const bool takesNone = command->usage.empty();
    throw CommandError(
        "usage: " + line.command +
        (takesNone ? ""
                   : " " + std::string(command->usage) + "; a text with blanks stands in double quotes"));
  }
  if (closed_ && line.command != "state") throw CommandError("the exam is closed");
  lacksReply_ = false;
  const int errors = session_.dialogs.ErrorCount();
  life_.Steps().EndTyping();
  command->run(*this, line.arguments);
  life_.Steps().Look();
  life_.KeepUnsaved();
  TellRecovery();
  if (session_.dialogs.ErrorCount() > errors) throw CommandError(line.command + " failed");
}

}  // namespace quorvantis::cli
