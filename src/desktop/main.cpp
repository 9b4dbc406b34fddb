// SPDX-License-Identifier: MIT
// The desktop program. Read CQuorvantisDlg.h next.
#include "desktop/CQuorvantisDlg.h"
#include "desktop/CommandLine.h"
#include "desktop/DesktopWorld.h"
#include "desktop/QtText.h"
#include "platform/StringTable.h"
#include "platform/Texts.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/FolderLock.h"
#include "preview/BrowserEngine.h"
#include "text/PathText.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <clocale>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <system_error>

namespace {

using namespace quorvantis;

void SaveScreenshot(QWidget& window, const QString& file) {
  QCoreApplication::exit(window.grab().save(file) ? 0 : 1);
}

/// The folder to work in, made if it is missing; empty when that cannot be done.
std::filesystem::path UseApplicationFolder(const std::filesystem::path& given) {
  const std::filesystem::path folder = given.empty() ? FindApplicationFolder() : given;
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return std::filesystem::is_directory(folder, error) ? folder : std::filesystem::path();
}

int Run(const CommandLine& options) {
  const std::filesystem::path folder = UseApplicationFolder(options.applicationFolder);
  if (folder.empty()) {
    std::cerr << "quorvantis: the application folder cannot be used; name another one with --app-folder\n";
    return 2;
  }
  const std::optional<FolderLock> lock = FolderLock::Take(folder);
  if (!lock) {
    const QString text =
        QCoreApplication::translate("main", "Quorvantis is already open in this folder:\n%1");
    std::cerr << "quorvantis: another one is open in the application folder\n";
    if (options.screenshot.isEmpty()) {
      QMessageBox::information(nullptr, "Quorvantis", text.arg(ToQString(PathToText(folder))));
    }
    return 2;
  }
  DesktopWorld world(folder, options.debug);
  FrameSetExam exam(world.Services());
  // A picture is taken without asking anything.
  OfficeControl* const office = options.screenshot.isEmpty() ? &world.Office() : nullptr;
  CQuorvantisDlg window(exam, world.Pages(), office, [&world](FrameSetExam&, const std::filesystem::path&) {
    world.Services().dialogs.ShowError(world.Services().strings.Text(text_id::kCannotExport));
  });
  world.SetWindow(&window);
  window.show();
  constexpr int kUntilPainted = 300;    // milliseconds
  if (!options.screenshot.isEmpty()) {  // before opening: a message must not keep it from being taken
    QTimer::singleShot(kUntilPainted, &window, [&] { SaveScreenshot(window, options.screenshot); });
  }
  if (!options.exam.empty()) window.OpenExam(options.exam);
  if (options.screenshot.isEmpty()) {
    QTimer::singleShot(kUntilPainted, &window, [&] { window.WarmBrowser(); });
  }
  return QApplication::exec();
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
