// SPDX-License-Identifier: MIT
#include "cli/EditSession.h"

#include "cli/CommandError.h"
#include "host/ImportRules.h"
#include "shell/commands/ExportCommand.h"
#include "shell/session/CloseSequence.h"
#include "shell/settings/BackupSetting.h"

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
      editor_(session_.exam, *this,
              [this](FrameSetExam& exam, const std::filesystem::path& target) {
                ExportCommand(exam, session_.documents, nullptr).ExportWordDocument(target);
              }),
      importAnswers_(session_.console),
      import_(editor_, session_.papers, importAnswers_,
              importRules.empty() ? FindImportRules(session_.services.applicationFolder) : importRules) {
  editor_.files.SetBackups(KeepsBackups(session_.services.applicationFolder));
  editor_.questions.LoadCurrentQuestion();
}

EditSession::~EditSession() {
  if (recovery_) recovery_->Left(Parting::Leave);
  RunCloseSequence(session_.exam, nullptr);
}

void EditSession::KeepRecovery() {
  recovery_.emplace(editor_);
  recovery_->Entered();
}

void EditSession::OpenExam(const std::filesystem::path& file) {
  editor_.files.OpenExam(file);
  session_.RequireUnpacked(file);
}

/// A script continues without a recovery copy.
void EditSession::TellRecovery() {
  const std::error_code failure = recovery_->Failure();
  if (std::exchange(recoveryFails_, static_cast<bool>(failure)) || !failure) return;
  session_.console.Complain(RecoveryRoot(session_.services.applicationFolder).string() +
                            ": what is not saved cannot be kept there: " + failure.message());
}

void EditSession::Run(const EditScriptLine& line) {
  if (line.command.empty()) return;
  editor_.state.DeliverContentChanged();
  const EditCommand* command = FindEditCommand(line.command);
  if (command == nullptr) throw CommandError("unknown command \"" + Shortened(line.command) + "\"");
  const std::size_t count = line.arguments.size();
  if (count < command->argumentCount || count > command->argumentCount + command->optionalArguments) {
    throw CommandError("usage: " + line.command + " " + std::string(command->usage) +
                       "; a text with blanks stands in double quotes");
  }
  if (closed_ && line.command != "state") throw CommandError("the exam is closed");
  const int errors = session_.dialogs.ErrorCount();
  command->run(*this, line.arguments);
  if (recovery_) {
    recovery_->LookAndWait();
    TellRecovery();
  }
  if (session_.dialogs.ErrorCount() > errors) throw CommandError(line.command + " failed");
}

}  // namespace quorvantis::cli
