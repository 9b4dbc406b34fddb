// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/start/EndingSignals.h"
#include "recovery/RecoveredExam.h"
#include "recovery/RecoveryFolder.h"

#include <QMessageBox>

#include <csignal>

namespace quorvantis::test {
namespace {

class RecoveryWindow : public WindowTest {
 protected:
  /// Answers the question at the start and returns its text.
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

TEST_F(RecoveryWindow, TellsThatACopyCannotBeWrittenAsLongAsItCannot) {
  const auto root = WriteBytes(RecoveryRoot(services.applicationFolder), "a file in its place");
  Open();
  const auto isTold = [&] { return Control("recoveryFails").isVisible(); };
  Type("title", "a");
  ASSERT_TRUE(QTest::qWaitFor(isTold));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "it keeps nobody from typing";
  EXPECT_TRUE(Control("recoveryFails").toolTip().contains("recovery"));
  EXPECT_EQ(window->childAt(Control("recoveryFails").geometry().center()), &Control("recoveryFails"));
  std::filesystem::remove(root);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isTold() && Copies() == 1; }));
}

TEST_F(RecoveryWindow, ASignalThatEndsTheProgramComesBetweenTwoEvents) {
  Open();
  const EndingSignals endings;
  int arrived = 0;
  QObject::connect(&endings, &EndingSignals::Arrived, [&] {
    ++arrived;
    window->KeepUnsavedWork();
  });
  Type("questionText", "typed at last");
  std::raise(SIGTERM);
  EXPECT_EQ(Copies(), 0u);
  EXPECT_TRUE(QTest::qWaitFor([&] { return arrived == 1; }));
  EXPECT_EQ(Copies(), 1u);
}

}  // namespace
}  // namespace quorvantis::test
