// SPDX-License-Identifier: MIT
#pragma once

#include "cli/edit/EditScriptLine.h"
#include "cli/edit/ScriptedImport.h"
#include "cli/session/ExamSession.h"
#include "editor/UnseenView.h"
#include "shell/session/EditorLife.h"

namespace quorvantis::cli {

/// The question editor of the window, driven by script lines instead of clicks.
class EditSession {
 public:
  /// `importRules` is the file with the repositories; by default that of the application folder, or the one
  /// beside the program.
  EditSession(Console& console, const CommonOptions& options, const std::filesystem::path& importRules = {});

  /// From now on each line leaves a recovery copy of unsaved work.
  void KeepRecovery() { life_.KeepRecovery(); }

  /// Runs one line. Throws CommandError when its command is unknown, has wrong arguments or fails.
  void Run(const EditScriptLine& line);

  /// Opens an exam file as the Open command does. Throws CommandError when attached files could not be
  /// unpacked: a save would lose them.
  void OpenExam(const std::filesystem::path& file);

  ExamEditor& Editor() { return life_.Editor(); }
  History& Steps() { return life_.Steps(); }
  ScriptedDialogs& Dialogs() { return session_.dialogs; }
  ScriptedImport& ImportAnswers() { return importAnswers_; }
  ImportCommand& Import() { return import_; }
  Console& Streams() { return session_.console; }
  ExamSession& Session() { return session_; }
  const StringTable& Texts() { return session_.services.strings; }

  /// The window has been closed: only its state can be queried.
  void Close() { closed_ = true; }
  /// The command that runs is a close without an answer to the save question.
  void LackReplyToClose() { lacksReply_ = true; }
  /// That was the last command.
  bool LacksReplyToClose() const { return lacksReply_; }

 private:
  void TellRecovery();

  ExamSession session_;
  UnseenView view_;
  EditorLife life_;
  ScriptedImport importAnswers_;
  ImportCommand import_;
  bool recoveryFails_ = false;  ///< and this has been reported
  bool closed_ = false;
  bool lacksReply_ = false;
};

/// A command of the script language.
struct EditCommand {
  std::string_view name;
  std::string_view usage;  ///< its arguments, for messages and help
  std::size_t argumentCount;
  void (*run)(EditSession& session, const std::vector<ScriptArgument>& arguments);
  std::size_t optionalArguments = 0;  ///< that may follow
};

/// The command of that name, or null.
const EditCommand* FindEditCommand(std::string_view name);

/// One line a command, for the help text.
std::string EditCommandHelp();

}  // namespace quorvantis::cli
