// SPDX-License-Identifier: MIT
#include "desktop/start/DesktopWindows.h"

#include "desktop/controls/Pictures.h"
#include "desktop/dialogs/LanguageDlg.h"
#include "desktop/dialogs/QtProgress.h"
#include "desktop/main/CQuorvantisDlg.h"
#include "desktop/start/EndingSignals.h"
#include "desktop/start/SecondStart.h"
#include "host/ExamHost.h"
#include "platform/posix/LinuxProcessTable.h"
#include "shell/commands/ExportCommand.h"
#include "text/Utf.h"

#include <QApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QPixmap>
#include <QSaveFile>
#include <QTimer>

#include <algorithm>
#include <iostream>

namespace quorvantis {
namespace {

constexpr int kUntilPainted = 300;  // milliseconds
constexpr int kNoPicture = 1;       // exit code

/// Saves the picture whole or not at all. Returns an error message, or an empty text.
QString SavePicture(const QPixmap& picture, const QString& file) {
  QSaveFile out(file);
  out.setDirectWriteFallback(true);  // for a folder that accepts no new files
  if (!out.open(QIODevice::WriteOnly)) return out.errorString();
  QImageWriter writer(&out, QFileInfo(file).suffix().toLatin1());
  if (!writer.write(picture.toImage())) return writer.errorString();
  return out.commit() ? QString() : out.errorString();
}

/// The main window, for a second start.
class OpenWindow : public FirstStart {
 public:
  explicit OpenWindow(CQuorvantisDlg& window) : window_(window) {}

  /// Whether only the main window is open: no dialog, which waits for its answer, and no preview, which shows
  /// the open exam. A window that prints is invisible.
  bool IsFree() const override {
    const auto isOther = [&](const QWidget* other) {
      const bool isReal = other->windowType() == Qt::Window || other->windowType() == Qt::Dialog;
      const bool isShown = other->isVisible() && !other->testAttribute(Qt::WA_DontShowOnScreen);
      return other != &window_ && isReal && isShown;
    };
    return std::ranges::none_of(QApplication::topLevelWidgets(), isOther);
  }

  void ComeForward(const std::filesystem::path& exam) override {
    window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
    window_.raise();
    window_.activateWindow();
    if (!exam.empty()) window_.OpenExam(exam);
  }

 private:
  CQuorvantisDlg& window_;
};

}  // namespace

DesktopWindows::DesktopWindows(const WindowArguments& options) : options_(options) {
  QApplication::setWindowIcon(Pictures(nullptr).Picture(kProgramIcon));
}

void DesktopWindows::LanguageApplied(const LanguageInUse& language) {
  qtLanguage_.Use(language.Id().value_or(kEnglish));
}

void DesktopWindows::ShowFailure(std::u16string_view message) {
  std::cerr << "quorvantis: " << Utf16ToUtf8(message) << std::flush;
  if (!TakesPicture()) dialogs_.ShowError(message);
}

bool DesktopWindows::ChooseLanguage(LanguageChoice& choice, const LanguageInUse& language) {
  return TakesPicture() || LanguageDlg(choice, language).exec() == QDialog::Accepted;
}

/// A screenshot run leaves the settings alone.
void DesktopWindows::RememberFolders(const ExamFolderSetting& setting) {
  dialogs_.BeginIn(setting.Read());
  if (!TakesPicture()) dialogs_.KeepFolders([&setting](const auto& folder) { setting.Write(folder); });
}

/// A restored exam is not opened over itself.
void DesktopWindows::OpenFirstExam(CQuorvantisDlg& window) {
  const bool restored = !TakesPicture() && window.OfferRecovery();
  const std::filesystem::path& exam = options_.exam;
  if (!exam.empty() && !(restored && window.Shows(exam))) window.OpenExam(exam);
}

int DesktopWindows::RunMainWindow(CQuorvantisApp& application) {
  const LanguageInUse& language = application.Language();
  QtProgress progress;
  ExamHost host(application.ModuleFolder(), language.Id().value_or(kEnglish), options_.debug,
                {language, dialogs_, progress, application.LongAnswers()});
  FrameSetExam exam(host.Services());
  const ExamFolderSetting examFolder(application.ModuleFolder(), host.Services().files,
                                     host.Services().codePage);
  RememberFolders(examFolder);
  LinuxProcessTable processes;
  OfficeControl office(host.Services(), processes);
  const auto exportDocument = [&](const FrameSetExam& document, const std::filesystem::path& target) {
    ExportCommand(document, host.Writer(), &office).ExportWordDocument(target);
  };
  const RecentExams recentExams(application.ModuleFolder(), host.Services().files, host.Services().codePage);
  CQuorvantisDlg window(exam, host.Pages(), host.Papers(), TakesPicture() ? nullptr : &office, exportDocument,
                        &language, application.LanguageId());
  if (!TakesPicture()) window.KeepRecent(recentExams);
  window.Begin();
  dialogs_.SetParent(&window);
  progress.SetParent(&window);
  window.show();
  OpenWindow openWindow(window);
  const SecondStartListener secondStarts(application.ModuleFolder(), openWindow);
  if (TakesPicture()) {  // before opening: no message may get in the way
    QTimer::singleShot(kUntilPainted, &window, [&] { TakePicture(window); });
  }
  const EndingSignals endings;
  QObject::connect(&endings, &EndingSignals::Arrived, &window, [&window] {
    window.KeepUnsavedWork();
    QCoreApplication::exit();  // also leaves dialogs
  });
  QTimer::singleShot(0, &window, [&] { OpenFirstExam(window); });  // in the event loop, which signals need
  if (!TakesPicture()) QTimer::singleShot(kUntilPainted, &window, [&] { window.WarmBrowser(); });
  const int exitCode = QApplication::exec();
  if (!TakesPicture() || pictureTaken_ || exitCode != 0) return exitCode;
  ShowFailure(u"the window was closed before its picture was taken\n");
  return kNoPicture;
}

void DesktopWindows::TakePicture(QWidget& window) {
  const QString problem = SavePicture(window.grab(), options_.screenshot);
  pictureTaken_ = problem.isEmpty();
  if (!pictureTaken_) ShowFailure((options_.screenshot + ": " + problem + '\n').toStdU16String());
  QCoreApplication::exit(pictureTaken_ ? 0 : kNoPicture);
}

}  // namespace quorvantis
