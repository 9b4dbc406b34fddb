// SPDX-License-Identifier: MIT
#include "desktop/controls/QtText.h"
#include "desktop/dialogs/QtProgress.h"
#include "desktop/dialogs/QtUserDialogs.h"
#include "support/TemporaryFolder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <queue>

#include <gtest/gtest.h>

#include <functional>

namespace quorvantis::test {
namespace {

/// A user who answers the dialogs that appear, one after another.
class UserDialogsTest : public testing::Test {
 protected:
  UserDialogsTest() {
    QObject::connect(&watch_, &QTimer::timeout, [this] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || answers_.empty()) return;
      const auto answer = answers_.front();
      answers_.pop();
      answer(*dialog);
    });
    watch_.start(20);
  }
  ~UserDialogsTest() override { EXPECT_TRUE(answers_.empty()); }

  void Answer(QMessageBox::StandardButton button) {
    answers_.push([button](QWidget& dialog) {
      QTest::mouseClick(dynamic_cast<QMessageBox&>(dialog).button(button), Qt::LeftButton);
    });
  }
  void EnterName(const QString& name, const QString& filter = {}) {
    answers_.push([name, filter](QWidget& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      if (!filter.isEmpty()) files.selectNameFilter(filter);
      auto* line = files.findChild<QLineEdit*>("fileNameEdit");
      line->setText(name);
      QTest::keyClick(line, Qt::Key_Return);
    });
  }
  void LookAt(std::function<void(QFileDialog&)> look) {
    answers_.push([look](QWidget& dialog) { look(dynamic_cast<QFileDialog&>(dialog)); });
  }
  void Press(Qt::Key key) {
    answers_.push([key](QWidget& dialog) { QTest::keyClick(&dialog, key); });
  }
  QString Path(const char* name) { return PathToQString(folder / name); }

  TemporaryFolder folder;
  QtUserDialogs dialogs;
  const FileDialogRequest save{u"Exam files (*.exm)|*.exm|Word files (*.doc)|*.doc|", u"exm", u"MyExam"};

 private:
  QTimer watch_;
  std::queue<std::function<void(QWidget&)>> answers_;
};

TEST_F(UserDialogsTest, SavingAddsTheExtensionOfTheChosenKind) {
  EnterName(Path("two"), "Word files (*.doc) (*.doc)");
  EXPECT_EQ(dialogs.ChooseFileToSave(save), folder / "two.doc");
  Press(Qt::Key_Escape);
  EXPECT_EQ(dialogs.ChooseFileToSave(save), std::nullopt);
}

TEST_F(UserDialogsTest, OverwritingIsConfirmedUnderTheFinalName) {
  const auto old = WriteBytes(folder / "old.exm", "exam");
  EnterName(Path("old"));
  Press(Qt::Key_Return);  // no answer that loses anything
  for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
    EnterName(Path("old"));
    Answer(button);
  }
  EXPECT_EQ(dialogs.ChooseFileToSave(save), old);
  EnterName(Path("old.exm"));
  EXPECT_EQ(dialogs.ChooseFileToOpen({u"Exam files, (*.exm)|*.exm|", {}, {}}), old);
}

TEST_F(UserDialogsTest, OpeningBeginsWithTheKindAndInTheFolderOfLastTime) {
  const FileDialogRequest attach{u"Text files(*.txt)|*.txt|All files|*|", {}, {}};
  const auto exams = WriteBytes(folder / "exams/a.exm", "exam").parent_path();
  const auto picture = WriteBytes(folder / "pictures/a.pdf", "picture");
  const auto check = [&](const std::filesystem::path& where, const QString& kind, const QString& choose) {
    LookAt([=](QFileDialog& files) {
      EXPECT_EQ(QStringToPath(files.directory().absolutePath()), where);
      EXPECT_EQ(files.selectedNameFilter(), kind);
    });
    choose.isEmpty() ? Press(Qt::Key_Escape) : EnterName(choose, "All files (*)");
    EXPECT_EQ(dialogs.ChooseFileToOpen(attach).has_value(), !choose.isEmpty());
  };
  dialogs.BeginIn(exams);
  check(exams, "Text files(*.txt)", PathToQString(picture));
  check(picture.parent_path(), "All files", {});
  dialogs.BeginIn(folder / "gone");
  check(QStringToPath(QDir::homePath()), "All files", {});
}

TEST_F(UserDialogsTest, NothingCanBeDeletedInAFileDialog) {
  WriteBytes(folder / "kept/inside.exm", "exam");
  WriteBytes(folder / "file.exm", "exam");
  const FileDialogRequest open{u"Exam files, (*.exm)|*.exm|", {}, {}};
  const auto tryToDelete = [](QFileDialog& files) {
    const auto close = qScopeGuard([&files] { files.reject(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&files));
    int tries = 0;
    QTimer confirm;  // a question would be answered with Yes
    QObject::connect(&confirm, &QTimer::timeout, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr && box->button(QMessageBox::Yes) != nullptr) box->button(QMessageBox::Yes)->click();
    });
    confirm.start(10);
    for (const char* name : {"listView", "treeView"}) {
      auto* list = files.findChild<QAbstractItemView*>(name);
      ASSERT_NE(list, nullptr);
      files.setViewMode(name == std::string("listView") ? QFileDialog::List : QFileDialog::Detail);
      for (const char* entry : {"kept", "file.exm"}) {
        QModelIndex index;
        const auto isListed = [&] {
          const auto found = list->model()->match(list->model()->index(0, 0, list->rootIndex()),
                                                  Qt::DisplayRole, entry, 1, Qt::MatchExactly);
          if (!found.isEmpty()) index = found.front();
          return index.isValid();
        };
        ASSERT_TRUE(QTest::qWaitFor(isListed)) << name << entry;
        list->setFocus();
        list->setCurrentIndex(index);
        QTest::keyClick(list, Qt::Key_Delete);
        auto* action = files.findChild<QAction*>("qt_delete_action");
        if (action != nullptr) action->setEnabled(true), action->trigger();
        ++tries;
        QTest::qWait(50);
      }
    }
    EXPECT_EQ(tries, 4);
  };
  dialogs.BeginIn(folder.Path());
  LookAt(tryToDelete);
  EXPECT_EQ(dialogs.ChooseFileToSave(save), std::nullopt);
  LookAt(tryToDelete);
  EXPECT_EQ(dialogs.ChooseFileToOpen(open), std::nullopt);
  EXPECT_EQ(ReadBytes(folder / "kept/inside.exm"), "exam");
  EXPECT_EQ(ReadBytes(folder / "file.exm"), "exam");
}

TEST_F(UserDialogsTest, NothingIsLostByEnterOrEscape) {
  const LossQuestion question{u"Saving loses something:", {u"a", u"b"}, u"Store", u"Save anyway", u"Go back"};
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    Press(key);
    EXPECT_EQ(dialogs.AskAboutLosses(question), LossAnswer::GoBack);
  }
}

TEST_F(UserDialogsTest, ProgressShowsAfterHalfASecondAndEndsWithTheWork) {
  QtProgress progress;
  progress.Report(1, 10);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  QTest::qSleep(600);
  for (std::uint64_t done = 1; done < 5; ++done) {
    progress.Report(done, 1000);  // at this rate it takes long
    ASSERT_NE(QApplication::activeModalWidget(), nullptr) << done;
    QTest::qSleep(60);
  }
  QTest::qWait(50);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace quorvantis::test
