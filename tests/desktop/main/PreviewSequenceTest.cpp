// SPDX-License-Identifier: MIT
// Random sequences of user actions around previews and prints, with random pauses. They need a real window
// manager and take minutes, so they run on demand, on a display of their own:
//   export QT_QPA_PLATFORM=xcb QUORVANTIS_SEQUENCES=100 QUORVANTIS_SEED=7
//   build/tests/test_desktop --gtest_filter='PreviewSequence*'
#include "desktop/WindowTest.h"
#include "preview/PreviewWindow.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>

#include <iostream>
#include <random>

namespace quorvantis::test {
namespace {

constexpr int kSequencePatience = 30'000;  // milliseconds, for a browser on a slow machine
constexpr int kLongestPause = 2000;
constexpr int kSteps = 9;
const char16_t* const kQuestion = u"What is asked here?";

/// A timer runs the steps, because a step may open a dialog that waits for the next ones.
class PreviewSequence : public WindowTest {
 protected:
  void Run(unsigned seed) {
    random_.seed(seed);
    OpenWindow();
    steps_ = kSteps;
    Schedule();
    QElapsedTimer timer;
    timer.start();
    while (steps_ > 0 && !HasFailure()) {
      QTest::qWait(50);
      ASSERT_LT(timer.elapsed(), kSteps * 2 * kSequencePatience) << "it hangs";
    }
    ASSERT_TRUE(
        QTest::qWaitFor([] { return QApplication::activeModalWidget() == nullptr; }, kSequencePatience));
    Quit();
    for (const std::filesystem::path& paper : papers_) {
      EXPECT_TRUE(ReadBytes(paper).starts_with("%PDF")) << paper << " was not printed";
    }
  }

 private:
  void OpenWindow() {
    exam.Question(1).text = kQuestion;
    exam.questionCount = 1;
    Open();
    window->WarmBrowser();
    world.dialogs.filesToSave = {folder / "saved.exm"};
    Click("save");
    closed_.invalidate();
    print_.invalidate();
  }

  static PreviewWindow* Shown() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* preview = qobject_cast<PreviewWindow*>(widget);
      if (preview != nullptr && preview->IsOnScreen()) return preview;
    }
    return nullptr;
  }
  static QDialog* PrintDialog() { return qobject_cast<QPrintDialog*>(QApplication::activeModalWidget()); }

  int Random(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

  /// Sends a key as the window system does: to the window with the keyboard focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWindow* const focus = QGuiApplication::focusWindow();
    QTest::keyClick(focus != nullptr ? focus : window->windowHandle(), key, modifiers);
  }

  void Schedule(int pause = -1) {
    QTimer::singleShot(pause >= 0 ? pause : Random(kLongestPause), window.get(), [this] { Step(); });
  }

  void Step() {
    const bool dialogComes =
        print_.isValid() && PrintDialog() == nullptr && print_.elapsed() < kSequencePatience;
    if (--steps_ == 0 && dialogComes) steps_ = 1;
    if (steps_ <= 0 || HasFailure()) return CloseDialog();
    ASSERT_TRUE(window->isVisible()) << "the window has gone";
    if (QApplication::activeModalWidget() != nullptr) {
      AnswerDialog();
    } else if (Shown() != nullptr) {
      UsePreview();
    } else {
      UseMainWindow();
    }
  }

  void CloseDialog() {
    steps_ = 0;
    print_.invalidate();
    if (QDialog* const dialog = PrintDialog()) dialog->reject();
  }

  void AnswerDialog() {
    QDialog* const dialog = PrintDialog();
    ASSERT_NE(dialog, nullptr);
    print_.invalidate();
    Schedule();
    if (Random(2) == 0) return Note("no printer"), Press(Qt::Key_Escape);
    Note("printer");
    papers_.push_back(folder / ("paper" + std::to_string(papers_.size()) + ".pdf"));
    dialog->findChild<QLineEdit*>("filename")->setText(PathToQString(papers_.back()));
    Press(Qt::Key_Return);
    if (PrintDialog() != nullptr) papers_.pop_back();  // it does not have the keyboard yet
  }

  void UsePreview() {
    ExpectPrintInTime();
    // Most previews are looked at.
    if (!loaded_ && Random(3) != 0) return WaitForPage();
    switch (Random(5)) {
      case 0:
        Note("finish");
        if (!loaded_) return WaitForPage();
        Shown()->findChild<QWebEngineView*>()->page()->runJavaScript(
            "document.querySelector('input[type=button]').click()");
        EXPECT_TRUE(QTest::qWaitFor([] { return Shown() == nullptr; }, kSequencePatience));
        return Closed();
      case 1:
        Note("type");
        for (const Qt::Key key : {Qt::Key_T, Qt::Key_Y, Qt::Key_Return}) Press(key);
        EXPECT_EQ(Lines("questionText").toPlainText().toStdU16String(), kQuestion);
        return Schedule();
      case 2:
        Note("print the preview");
        return AskForPrint();
      default:
        Note("escape");
        for (int times = 1 + Random(3); times > 0; --times) Press(Qt::Key_Escape);
        EXPECT_EQ(Shown(), nullptr);
        return Closed();
    }
  }

  void Closed() {
    EXPECT_TRUE(window->isActiveWindow());
    print_.invalidate();
    closed_.start();
    Schedule();
  }

  void WaitForPage() {
    if (print_.isValid()) return Schedule();  // its dialog would wait for a step
    Note("look");
    QElapsedTimer timer;
    timer.start();
    PreviewWindow* const shown = Shown();
    while (shown == Shown() && !loaded_) {
      ASSERT_LT(timer.elapsed(), kSequencePatience) << "the page does not appear";
      shown->findChild<QWebEngineView*>()->page()->toPlainText(
          [this](const QString& text) { loaded_ = text.contains(QString::fromUtf16(kQuestion)); });
      QTest::qWait(50);
    }
    Schedule();
  }

  /// The next step first: the dialog may appear while the key is being handled.
  void AskForPrint() {
    print_.start();
    Schedule(100 + Random(kLongestPause));
    Press(Qt::Key_P, Qt::ControlModifier);
  }
  void ExpectPrintInTime() {
    EXPECT_TRUE(!print_.isValid() || print_.elapsed() < kSequencePatience)
        << "the print does not ask for a printer";
  }

  void UseMainWindow() {
    ExpectPrintInTime();
    const bool printing = print_.isValid();
    // A preview takes every Escape within a second; half of it is safe on a slow machine.
    const bool escapes = printing || (closed_.isValid() && closed_.elapsed() < 500);
    switch (Random(escapes ? 7 : 6)) {
      case 0:
      case 1:
        Note("preview");
        print_.invalidate();
        loaded_ = false;
        Press(Qt::Key_F5);
        EXPECT_NE(Shown(), nullptr);
        break;
      case 2:
      case 3:
        Note("print");
        return AskForPrint();
      case 4: {
        const bool opens = Random(2) == 0;
        Note(opens ? "open" : "new");
        world.dialogs.answers = {SaveAnswer::No};
        world.dialogs.filesToOpen = {folder / "saved.exm"};
        Press(opens ? Qt::Key_O : Qt::Key_N, Qt::ControlModifier);
        world.dialogs.answers.clear();
        Lines("questionText").setPlainText(QString::fromUtf16(kQuestion));
        break;
      }
      case 5:
        if (printing) break;
        Note("quit");
        Quit();
        OpenWindow();
        break;
      default:
        Note("escape");
        Press(Qt::Key_Escape);
        if (printing) closed_.start();
        print_.invalidate();
        break;
    }
    Schedule();
  }

  void Quit() {
    world.dialogs.answers = {SaveAnswer::No};
    EXPECT_TRUE(window->close());
    world.dialogs.answers.clear();
    window.reset();
  }

  static void Note(const char* what) { std::cout << ' ' << what << ',' << std::flush; }

  std::mt19937 random_;
  int steps_ = 0;
  bool loaded_ = false;
  QElapsedTimer closed_;  ///< time since a preview was left
  QElapsedTimer print_;   ///< time since a print was requested that has not shown its printer dialog yet
  std::vector<std::filesystem::path> papers_;
};

TEST_F(PreviewSequence, EndsHangsAndSkipsNothing) {
  const int sequences = qEnvironmentVariable("QUORVANTIS_SEQUENCES", "0").toInt();
  if (sequences == 0) GTEST_SKIP() << "QUORVANTIS_SEQUENCES says how many";
  const unsigned seed = qEnvironmentVariable("QUORVANTIS_SEED", "1").toUInt();
  for (int i = 0; i < sequences && !HasFailure(); ++i) {
    std::cout << "seed " << seed + static_cast<unsigned>(i) << ':' << std::flush;
    Run(seed + static_cast<unsigned>(i));
    std::cout << '\n';
  }
}

}  // namespace
}  // namespace quorvantis::test
