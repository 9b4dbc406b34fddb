// SPDX-License-Identifier: MIT
#include "cli/ExamSession.h"

#include "cli/CommandError.h"
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

}  // namespace

ExamSession::ExamSession(Console& theConsole, const CommonOptions& options)
    : progress_(theConsole.err, ::isatty(STDERR_FILENO) != 0),
      debug_(options.debug || DebugAskedFor()),
      applicationFolder_(UseFolder(options.appFolder, privateFolder_)),
      codePage_(ChooseCodePage(applicationFolder_, kEnglish)),
      console(theConsole),
      dialogs(theConsole),
      services{applicationFolder_, strings_,         dialogs, codePage_, debug_, files_,
               progress_,          longAnswerFlags_, ids_,    classes_,  pages_},
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

std::string WhyUnreadable(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (!fs::exists(status))
    return error && error != std::errc::no_such_file_or_directory ? error.message() + "."
                                                                  : "There is no such file; check the path.";
  if (fs::is_directory(status)) return "It is a folder; name a file.";
  if (!fs::is_regular_file(status)) return "It is no regular file; copy it into one.";
  return "It may not be read; check its permissions.";
}

}  // namespace quorvantis::cli
