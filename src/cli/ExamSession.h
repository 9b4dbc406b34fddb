// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"
#include "cli/ScriptedDialogs.h"
#include "cli/TerminalProgress.h"
#include "examfile/ExamFileReader.h"
#include "model/FrameSetExam.h"
#include "model/LongAnswerFlags.h"
#include "platform/ExamServices.h"
#include "platform/posix/FileRegistry.h"
#include "platform/posix/FolderLock.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PrivateFolder.h"
#include "platform/posix/RandomIds.h"
#include "platform/posix/StandardErrorDebug.h"
#include "render/ComposedPages.h"
#include "shell/BuiltInStrings.h"

#include <filesystem>
#include <optional>

namespace quorvantis::cli {

/// Options that every command takes.
struct CommonOptions {
  std::filesystem::path appFolder;  ///< empty: a private folder
  bool debug = false;
};

/// One exam document with the world that it lives in while a command runs: an application folder, private and
/// removed at the end unless one was named, and the services of this machine.
class ExamSession {
 public:
  /// Throws CommandError when the application folder cannot be used, or when another program works in it.
  ExamSession(Console& console, const CommonOptions& options);
  ~ExamSession() = default;
  ExamSession(const ExamSession&) = delete;
  ExamSession& operator=(const ExamSession&) = delete;

  /// Reads an exam file into the document. Throws CommandError when it cannot be opened; what is missing from
  /// it is told on standard error.
  ExamReadOutcome Load(const std::filesystem::path& file);

 private:
  std::optional<PrivateFolder> privateFolder_;
  BuiltInStrings strings_;
  TerminalProgress progress_;
  StandardErrorDebug debug_;
  PosixFiles files_;
  LongAnswerFlags longAnswerFlags_;
  RandomIds ids_;
  ComposedPages pages_;
  const std::filesystem::path applicationFolder_;
  FolderLock lock_;
  FileRegistry registry_;
  IconvCodePage codePage_;

 public:
  Console& console;
  ScriptedDialogs dialogs;
  ExamServices services;
  FrameSetExam exam;
};

}  // namespace quorvantis::cli
