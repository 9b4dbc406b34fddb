// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "cli/console/TerminalProgress.h"
#include "cli/options/CommonOptions.h"
#include "cli/session/ScriptedDialogs.h"
#include "examfile/ExamFileReader.h"
#include "host/ApplicationFolderClaim.h"
#include "host/ExamHost.h"
#include "model/LongAnswerFlags.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PrivateFolder.h"
#include "shell/language/LanguageInUse.h"

#include <filesystem>
#include <memory>

namespace quorvantis::cli {

/// One exam document and its environment while a command runs: an application folder, private and removed at
/// the end unless one was given, and the services of this machine.
class ExamSession {
 public:
  /// Throws CommandError when the application folder cannot be used, when another program works in it, or
  /// when there is no library of the language.
  ExamSession(Console& console, const CommonOptions& options);
  ~ExamSession() = default;
  ExamSession(const ExamSession&) = delete;
  ExamSession& operator=(const ExamSession&) = delete;

  /// Throws what Load would throw for a file that cannot be opened: for commands that create the application
  /// folder, before they create a session.
  static void RequireReadable(const std::filesystem::path& file);

  /// Reads an exam file into the document. Throws CommandError if it cannot be opened; reports on standard
  /// error what is missing from it.
  ExamReadOutcome Load(const std::filesystem::path& file);

  /// Throws CommandError if attached files of the exam read last are not in the work folder, for lack of
  /// space or access.
  void RequireUnpacked(const std::filesystem::path& file) const;

  /// Throws CommandError if one of the pages composed last is not in its file.
  void RequireWrittenPages() const;

 private:
  const std::unique_ptr<PrivateFolder> privateFolder_;  ///< null when a folder was named
  const ApplicationFolderClaim folder_;
  LanguageInUse language_;
  TerminalProgress progress_;
  LongAnswerFlags longAnswerFlags_;

 public:
  Console& console;
  ScriptedDialogs dialogs;
  const int languageId;  ///< of the texts

 private:
  ExamHost host_;

 public:
  ExamServices& services;
  WordDocuments& papers;
  WordWriter& writer;
  FrameSetExam exam;
};

}  // namespace quorvantis::cli
