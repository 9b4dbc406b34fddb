// SPDX-License-Identifier: MIT
// The desktop program. Read shell/CQuorvantisApp.h next, then CQuorvantisDlg.h.
#include "desktop/CommandLine.h"
#include "desktop/DesktopWindows.h"
#include "desktop/QtText.h"
#include "host/ApplicationFolderClaim.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFiles.h"
#include "preview/BrowserEngine.h"
#include "shell/CQuorvantisApp.h"
#include "shell/CodePageChoice.h"
#include "text/Utf.h"

#include <QApplication>

#include <clocale>
#include <filesystem>
#include <memory>

namespace {

using namespace quorvantis;

constexpr int kNoApplicationFolder = 2;

int Run(const CommandLine& options) {
  DesktopWindows windows(options);
  const bool elsewhere = !options.applicationFolder.empty();
  const ApplicationFolderClaim claim(elsewhere ? options.applicationFolder : FindApplicationFolder());
  if (claim.WhatIsWrong() != ApplicationFolderClaim::Problem::None) {
    windows.ShowFailure(Utf8ToUtf16(claim.Explanation() + " (--app-folder DIR)\n"));
    return kNoApplicationFolder;
  }
  const std::filesystem::path& folder = claim.Folder();
  DynamicLanguageLibraries libraries;
  PosixFiles files;
  const IconvCodePage codePage(ChooseCodePage(folder, kEnglish));
  CQuorvantisApp application(folder, LanguageFolder(folder, ExecutableFolder()), options.language,
                             {libraries, files, codePage, windows});
  application.InitInstance();
  return application.ExitInstance();
}

}  // namespace

int main(int argc, char** argv) {
  PrepareBrowserEngine();
  const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
  // Qt has taken the format of numbers from the environment; there is no other thread yet.
  std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe)
  QApplication::setApplicationName("quorvantis");
  QApplication::setApplicationVersion(QUORVANTIS_VERSION);
  QGuiApplication::setDesktopFileName("quorvantis");
  return Run(ParseCommandLine(*application));
}
