// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/start/EndingSignals.h"
#include "recovery/RecoveredExam.h"

#include <QMessageBox>
#include <QProcess>

#include <csignal>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = "QUORVANTIS_TEST_FOLDER";  // set in the processes that tests start
constexpr int kLongest = 2000;                             // milliseconds from the last change to its copy

class RecoveryWindow : public WindowTest {
 protected:
  /// Answers the question of the start, and gives its text.
  QString Restore() {
    QString question;
    const auto answer = [&] {
      auto* box = window->findChild<QMessageBox*>();
      ASSERT_NE(box, nullptr);
      question = box->text();
      box->findChild<QAbstractButton*>("restore")->click();
    };
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, answer);
    timer.start(0);
    EXPECT_TRUE(window->OfferRecovery());
    return question;
  }
  std::size_t Copies() { return FindRecoveryCopies(services).copies.size(); }

  /// What the process does that is killed.
  void TypeUntilKilled(const QString& applicationFolder) {
    services.applicationFolder = QStringToPath(applicationFolder);
    Open();
    Type("questionText", "before the end");
    std::cout << "typed" << std::endl;
    QTest::qWait(60'000);
  }

  /// What the process does that is ended by a signal, as the program does it.
  void SaveUntilTerminated(const fs::path& place) {
    services.applicationFolder = place / "app";
    fs::create_directories(services.applicationFolder);
    Open();
    world.dialogs.filesToOpen = {place / "large.bin"};
    world.dialogs.filesToSave = {place / "exam.exm"};
    Click("attachToQuestion");
    bool ended = false;
    const EndingSignals endings;
    QObject::connect(&endings, &EndingSignals::Arrived, [&] {
      window->KeepUnsavedWork();
      ended = true;
    });
    while (!ended) {
      Type("questionText", "x");
      Click("save");
      std::cout << "saved" << std::endl;
      Turn();
    }
    window.reset();
  }

  /// Runs this test in a process of its own, in which `folder` is the value of kFolder, until it has printed
  /// a word.
  void StartAgain(QProcess& process, const fs::path& place) {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kFolder, PathToQString(place));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(),
                  {QString("--gtest_filter=RecoveryWindow.%1").arg(test->name())});
    for (QByteArray output; !output.contains("ed\n"); output += process.readAllStandardOutput())
      ASSERT_TRUE(process.waitForReadyRead());
  }
};

TEST_F(RecoveryWindow, EscapeLosesNothing) {
  world.dialogs.filesToOpen = {MakeFile("note.txt")};
  Open();
  Click("attachToQuestion");
  Type("title", "my title");
  Type("questionText", "typed at last");
  Press("questionText", Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  window.reset();
  exam = FrameSetExam(services);
  Open();
  EXPECT_EQ(Restore(), "[1040 my title]");
  EXPECT_EQ(Lines("questionText").toPlainText(), "typed at last");
  EXPECT_TRUE(ShowsChange());
  EXPECT_EQ(ReadBytes(exam.Question(1).attachmentPaths[0]), "content");
  EXPECT_EQ(Copies(), 1u) << "until it is saved";
  world.dialogs.filesToSave = {folder / "saved.exm"};
  Click("save");
  EXPECT_EQ(Copies(), 0u);
}

TEST_F(RecoveryWindow, AKilledWindowLosesTwoSecondsAtMost) {
  if (qEnvironmentVariableIsSet(kFolder)) return TypeUntilKilled(qEnvironmentVariable(kFolder));
  QProcess process;
  StartAgain(process, folder / "app");
  QTest::qSleep(kLongest);
  process.kill();
  ASSERT_TRUE(process.waitForFinished());
  Open();
  Restore();
  EXPECT_EQ(Lines("questionText").toPlainText(), "before the end");
}

TEST_F(RecoveryWindow, ATerminatedWindowLeavesAWholeExam) {
  if (qEnvironmentVariableIsSet(kFolder))
    return SaveUntilTerminated(QStringToPath(qEnvironmentVariable(kFolder)));
  constexpr std::size_t kSize = 60'000'000;
  fs::resize_file(WriteBytes(folder / "large.bin", ""), kSize);
  exam.SetHostMode(1);
  for (const unsigned long delay : {0UL, 40UL, 90UL, 230UL}) {
    QProcess process;
    StartAgain(process, folder.Path());
    QTest::qSleep(static_cast<int>(delay));
    process.terminate();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    exam.Reset();
    exam.ReadExamFile(folder / "exam.exm");
    EXPECT_EQ(world.dialogs.warnings, std::vector<std::u16string>());
    EXPECT_EQ(fs::file_size(exam.Question(1).attachmentPaths[0]), kSize);
    for (const auto& entry : fs::directory_iterator(folder.Path()))
      EXPECT_NE(entry.path().filename().string()[0], '.') << entry.path();
    EXPECT_TRUE(FindRecoveryCopies(services).damaged.empty());
  }
}

TEST(EndingSignals, Arrive) {
  const EndingSignals endings;
  int arrived = 0;
  QObject::connect(&endings, &EndingSignals::Arrived, [&] { ++arrived; });
  std::raise(SIGTERM);
  EXPECT_TRUE(QTest::qWaitFor([&] { return arrived == 1; }));
}

}  // namespace
}  // namespace quorvantis::test
