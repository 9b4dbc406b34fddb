// SPDX-License-Identifier: MIT
// The desktop program. Read shell/start/CQuorvantisApp.h next, then CQuorvantisDlg.h.
#include "desktop/dialogs/HarmlessFileDialog.h"
#include "desktop/start/DesktopWindows.h"
#include "desktop/start/SecondStart.h"
#include "desktop/start/WindowArguments.h"
#include "host/ApplicationFolderClaim.h"
#include "host/ImportRules.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFiles.h"
#include "preview/BrowserEngine.h"
#include "shell/settings/CodePageChoice.h"
#include "shell/start/CQuorvantisApp.h"
#include "text/Utf.h"

#include <QApplication>

#include <chrono>
#include <clocale>
#include <filesystem>
#include <iostream>
#include <memory>
#include <thread>

namespace {

using namespace quorvantis;

constexpr int kNoApplicationFolder = 2;

/// A program that was just killed still holds the folder until its memory is released.
constexpr int kMostTries = 15;
constexpr auto kPause = std::chrono::milliseconds(200);

/// Brings the program that uses the folder to the front.
HandOverResult HandOver(const ApplicationFolderClaim& claim, const WindowArguments& options) {
  const bool inUse = claim.WhatIsWrong() == ApplicationFolderClaim::Problem::InUse;
  return inUse && options.screenshot.isEmpty() ? HandOverStart(claim.Folder(), options.exam)
                                               : HandOverResult::NoAnswer;
}

/// The folder cannot be used. Returns the exit code.
int Refuse(const ApplicationFolderClaim& claim, HandOverResult handOver, DesktopWindows& windows) {
  if (handOver == HandOverResult::Taken) {
    std::cerr << "quorvantis: it is open already in " << claim.Folder().string()
              << "; its window has come forward\n";
    return 0;
  }
  windows.ShowFailure(handOver == HandOverResult::Busy
                          ? u"Quorvantis is open already and busy; the exam was not opened.\n"
                          : Utf8ToUtf16(claim.Explanation() + " (--app-folder DIR)\n"));
  return kNoApplicationFolder;
}

int RunIn(const std::filesystem::path& folder, const WindowArguments& options, DesktopWindows& windows) {
  if (options.applicationFolder.empty()) ProvideImportRules(ExecutableFolder(), folder);
  DynamicLanguageLibraries libraries;
  PosixFiles files;
  const IconvCodePage codePage(ChooseCodePage(folder, kEnglish));
  CQuorvantisApp application(folder, LanguageFolder(folder, ExecutableFolder()), options.language,
                             {libraries, files, codePage, windows});
  application.InitInstance();
  return application.ExitInstance();
}

int Run(const WindowArguments& options) {
  DesktopWindows windows(options);
  const bool elsewhere = !options.applicationFolder.empty();
  for (int tries = 1;; ++tries) {
    const ApplicationFolderClaim claim(elsewhere ? options.applicationFolder : FindApplicationFolder());
    if (claim.WhatIsWrong() == ApplicationFolderClaim::Problem::None)
      return RunIn(claim.Folder(), options, windows);
    const HandOverResult handOver = HandOver(claim, options);
    const bool mayBeFreed =
        claim.WhatIsWrong() == ApplicationFolderClaim::Problem::InUse && handOver == HandOverResult::NoAnswer;
    if (!mayBeFreed || tries == kMostTries) return Refuse(claim, handOver, windows);
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace

int main(int argc, char** argv) {
  PrepareBrowserEngine();
  const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
  HarmlessFileDialogs harmless;
  application->installEventFilter(&harmless);
  // Qt has taken the format of numbers from the environment; there is no other thread yet.
  std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe)
  QApplication::setApplicationName("quorvantis");
  QApplication::setApplicationVersion(QUORVANTIS_VERSION);
  QGuiApplication::setDesktopFileName("quorvantis");
  return Run(ParseWindowArguments(*application));
}
