// SPDX-License-Identifier: MIT
#include "cli/ExamSession.h"

#include "cli/CommandError.h"
#include "cli/Languages.h"
#include "cli/WhyUnreadable.h"
#include "examfile/ExamFileMessages.h"
#include "shell/CodePageChoice.h"
#include "text/Utf.h"

#include <unistd.h>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

/// The given folder, or a private one.
ApplicationFolderClaim ClaimFolder(const fs::path& given, std::optional<PrivateFolder>& privateFolder) {
  ApplicationFolderClaim claim(given.empty() ? privateFolder.emplace().Path() : given);
  if (claim.WhatIsWrong() != ApplicationFolderClaim::Problem::None) throw CommandError(claim.Explanation());
  return claim;
}

LanguageInUse UseLanguage(const CommonOptions& options) {
  LanguageInUse language;
  if (options.language) language.Use(LoadLanguage(options.appFolder, *options.language));
  return language;
}

}  // namespace

ExamSession::ExamSession(Console& theConsole, const CommonOptions& options)
    : folder_(ClaimFolder(options.appFolder, privateFolder_)),
      language_(UseLanguage(options)),
      progress_(theConsole.err, ::isatty(STDERR_FILENO) != 0),
      console(theConsole),
      dialogs(theConsole),
      languageId(options.language.value_or(kEnglish)),
      host_(folder_.Folder(), languageId, options.debug, {language_, dialogs, progress_, longAnswerFlags_}),
      services(host_.Services()),
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
