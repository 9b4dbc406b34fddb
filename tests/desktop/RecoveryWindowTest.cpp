// SPDX-License-Identifier: MIT
#include "WindowTest.h"
#include "desktop/EndingSignals.h"
#include "recovery/RecoveredExam.h"

#include <QMessageBox>
#include <QProcess>

#include <csignal>

namespace quorvantis::test {
namespace {

constexpr int kLongest = 2000;  // milliseconds from the last change to its copy

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
  constexpr const char* kFolder = "QUORVANTIS_TEST_FOLDER";  // set in the process that this test starts
  if (qEnvironmentVariableIsSet(kFolder)) return TypeUntilKilled(qEnvironmentVariable(kFolder));
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kFolder, PathToQString(folder / "app"));
  process.setProcessEnvironment(environment);
  process.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=RecoveryWindow.AKilled*"});
  while (!process.readAllStandardOutput().contains("typed")) ASSERT_TRUE(process.waitForReadyRead());
  QTest::qSleep(kLongest);
  process.kill();
  ASSERT_TRUE(process.waitForFinished());
  Open();
  Restore();
  EXPECT_EQ(Lines("questionText").toPlainText(), "before the end");
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
