// SPDX-License-Identifier: MIT
#include "cli/ExamSession.h"

#include "cli/CommandError.h"
#include "cli/WhyUnreadable.h"
#include "examfile/ExamFileMessages.h"
#include "shell/CodePageChoice.h"
#include "text/Utf.h"

#include <unistd.h>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

/// The given folder as a full path without a separator at its end, made if missing; or a private one.
fs::path UseFolder(const fs::path& given, std::optional<PrivateFolder>& privateFolder) {
  if (given.empty()) return privateFolder.emplace().Path();
  std::error_code error;
  fs::path folder = fs::absolute(given).lexically_normal();
  if (!folder.has_filename() && folder != folder.root_path()) folder = folder.parent_path();
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder, error)) {
    throw CommandError(given.string() +
                       ": cannot be used as the application folder; name a folder that can be made");
  }
  return folder;
}

FolderLock LockFolder(const fs::path& folder) {
  std::optional<FolderLock> lock = FolderLock::Take(folder);
  if (!lock)
    throw CommandError(folder.string() + ": another program works in it; close that, or name another folder");
  return *std::move(lock);
}

}  // namespace

ExamSession::ExamSession(Console& theConsole, const CommonOptions& options)
    : progress_(theConsole.err, ::isatty(STDERR_FILENO) != 0),
      debug_(options.debug || DebugAskedFor()),
      applicationFolder_(UseFolder(options.appFolder, privateFolder_)),
      lock_(LockFolder(applicationFolder_)),
      registry_(applicationFolder_ / kRegistryFile, files_),
      codePage_(ChooseCodePage(applicationFolder_, kEnglish)),
      console(theConsole),
      dialogs(theConsole),
      services{applicationFolder_, strings_,         dialogs, codePage_, debug_, files_,
               progress_,          longAnswerFlags_, ids_,    registry_, pages_},
      exam(services) {
  exam.SetHostMode(1);
}

ExamReadOutcome ExamSession::Load(const fs::path& file) {
  const ExamReadOutcome outcome = ExamFileReader(exam, services).Read(file);
  if (!outcome.opened) {
    throw CommandError(Utf16ToUtf8(OpenFileError(services, file)) + " " + WhyUnreadable(file));
  }
  ShowReadLosses(services, outcome);
  return outcome;
}

}  // namespace quorvantis::cli
