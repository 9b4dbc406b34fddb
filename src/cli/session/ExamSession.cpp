// SPDX-License-Identifier: MIT
#include "cli/session/ExamSession.h"

#include "cli/console/CommandError.h"
#include "cli/console/WhyUnreadable.h"
#include "cli/session/Languages.h"
#include "examfile/ByteSource.h"
#include "examfile/ExamFileMessages.h"
#include "shell/language/BuiltInStrings.h"
#include "shell/settings/CodePageChoice.h"
#include "text/Utf.h"

#include <unistd.h>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

ApplicationFolderClaim ClaimFolder(const fs::path& folder) {
  ApplicationFolderClaim claim(folder);
  if (claim.WhatIsWrong() != ApplicationFolderClaim::Problem::None) throw CommandError(claim.Explanation());
  return claim;
}

LanguageInUse UseLanguage(const CommonOptions& options) {
  LanguageInUse language;
  if (options.language) language.Use(LoadLanguage(options.appFolder, *options.language));
  return language;
}

CommandError NotOpened(const StringTable& strings, const fs::path& file) {
  return CommandError(Utf16ToUtf8(OpenFileError(strings, file)) + " " + WhyUnreadable(file));
}

}  // namespace

ExamSession::ExamSession(Console& theConsole, const CommonOptions& options)
    : privateFolder_(options.appFolder.empty() ? std::make_unique<PrivateFolder>() : nullptr),
      folder_(ClaimFolder(privateFolder_ ? privateFolder_->Path() : options.appFolder)),
      language_(UseLanguage(options)),
      progress_(theConsole.err, ::isatty(STDERR_FILENO) != 0),
      console(theConsole),
      dialogs(theConsole),
      languageId(options.language.value_or(kEnglish)),
      host_(folder_.Folder(), languageId, options.debug, {language_, dialogs, progress_, longAnswerFlags_}),
      services(host_.Services()),
      papers(host_.Papers()),
      writer(host_.Writer()),
      exam(services) {
  exam.SetHostMode(1);
}

void ExamSession::RequireReadable(const fs::path& file) {
  if (!ByteSource(file).IsOpen()) throw NotOpened(BuiltInStrings(), file);
}

ExamReadOutcome ExamSession::Load(const fs::path& file) {
  if (!ByteSource(file).IsOpen()) throw NotOpened(language_, file);
  exam.ReadExamFile(file);
  if (!exam.lastRead->opened) throw NotOpened(language_, file);
  return *exam.lastRead;
}

void ExamSession::RequireUnpacked(const fs::path& file) const {
  if (exam.filesNotUnpacked == 0) return;
  throw CommandError(file.string() + ": " + std::to_string(exam.filesNotUnpacked) +
                     (exam.filesNotUnpacked == 1 ? " attached file" : " attached files") +
                     " could not be unpacked into " + services.applicationFolder.string() +
                     "; make room there");
}

void ExamSession::RequireWrittenPages() const {
  const auto& unwritten = host_.Pages().Unwritten();
  if (unwritten.empty()) return;
  const fs::path& page = unwritten.front();
  throw CommandError(page.string() + ": cannot be written; choose a folder that can be written");
}

}  // namespace quorvantis::cli
