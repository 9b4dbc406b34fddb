// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FileFilters.h"
#include "desktop/dialogs/LanguageDlg.h"
#include "desktop/start/QtLanguage.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

TEST(FileFilters, AnExtensionIsAddedUnlessTheNameHasOneOfThem) {
  const auto filters = ParseFilters(u"Exam files (*.exm)|*.exm|Word files (*.doc)|*.doc|");
  const auto named = [&filters](const char* name) { return WithExtension(name, filters, "exm"); };
  EXPECT_EQ(named("/home/a.b/MyExam"), "/home/a.b/MyExam.exm");
  EXPECT_EQ(named("/home/MyExam.exm"), "/home/MyExam.exm");
  EXPECT_EQ(named("/home/MyExam.DOC"), "/home/MyExam.DOC");
  EXPECT_EQ(named("/home/Term 1.2"), "/home/Term 1.2.exm");
  EXPECT_EQ(named("/home/MyExam."), "/home/MyExam.exm");
}

class LanguageDialog : public testing::Test {
 protected:
  void SetUp() override {
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }
  std::string Saved() { return ReadBytes(folder / "system.ini"); }

  TemporaryFolder folder;
  PosixFiles files;
  TestCodePage codePage;
  NumberStrings strings;
  LanguageList list{{u"One", u"Two", u""}, {1, 2, 3}, {"one.dll", "two.dll", "three.dll"}};
  LanguageSetting setting{folder.Path(), files, codePage};
  int languageId = 0;
  LanguageChoice choice{list, setting, languageId};
  LanguageDlg dialog{choice, strings};
  QComboBox& languages = *dialog.findChild<QComboBox*>("languages");
};

TEST_F(LanguageDialog, TakesASelectionAtOnceAndIgnoresEscape) {
  EXPECT_EQ(languages.currentIndex(), -1) << "no language of identifier 0";
  EXPECT_EQ(languages.itemText(2), "three.dll");
  QTest::keyClick(&languages, Qt::Key_End);
  EXPECT_NE(Saved().find("Language=3"), std::string::npos);
  EXPECT_EQ(languageId, 3);
  QTest::keyClick(&languages, Qt::Key_Escape);
  EXPECT_TRUE(dialog.isVisible());
  dialog.close();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(QtLanguage, TurnsTheWindowsRound) {
  QtLanguage language;
  language.Use(0x0401);
  EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
  const QString yes = QCoreApplication::translate("QPlatformTheme", "&Yes");
  EXPECT_EQ(yes.contains('&'), yes == "&Yes") << "translated, it marks no key";
  language.Use(0x0804);
  EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

}  // namespace
}  // namespace quorvantis::test
