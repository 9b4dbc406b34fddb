// SPDX-License-Identifier: MIT
// The desktop program. Read CQuorvantisDlg.h next.
#include "desktop/CQuorvantisDlg.h"
#include "desktop/CommandLine.h"
#include "desktop/DesktopWorld.h"
#include "platform/StringTable.h"
#include "platform/Texts.h"
#include "platform/posix/ApplicationFolder.h"

#include <QApplication>
#include <QTimer>

#include <clocale>
#include <filesystem>
#include <iostream>
#include <memory>
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
  DesktopWorld world(folder, options.debug);
  FrameSetExam exam(world.Services());
  CQuorvantisDlg window(exam, [&world](FrameSetExam&, const std::filesystem::path&) {
    world.Services().dialogs.ShowError(world.Services().strings.Text(text_id::kCannotExport));
  });
  world.SetWindow(&window);
  window.show();
  if (!options.exam.empty()) window.OpenExam(options.exam);
  if (!options.screenshot.isEmpty()) {
    constexpr int kUntilPainted = 300;  // milliseconds
    QTimer::singleShot(kUntilPainted, &window, [&] { SaveScreenshot(window, options.screenshot); });
  }
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
  // Qt has taken the format of numbers from the environment; there is no other thread yet.
  std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe)
  QApplication::setApplicationName("quorvantis");
  QApplication::setApplicationVersion(QUORVANTIS_VERSION);
  QGuiApplication::setDesktopFileName("quorvantis");
  return Run(ParseCommandLine(*application));
}
