// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/main/menu/KeysDlg.h"
#include "shell/settings/RecentExams.h"

#include <QClipboard>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>

#include <map>

namespace quorvantis::test {
namespace {

class Menus : public WindowTest {
 protected:
  QString Number() { return Control<QLabel>("questionNumber").text(); }
  bool CanAct(const char* name) { return Entry(name).isEnabled(); }

  /// The keys that the menus show, with the command beside them; menus in menus included.
  void CollectKeys(const QMenu& menu, std::multimap<QString, QAction*>& keys) {
    for (QAction* action : menu.actions()) {
      if (action->menu() != nullptr) CollectKeys(*action->menu(), keys);
      for (const QString& key : action->text().section('\t', 1).split(", ", Qt::SkipEmptyParts))
        keys.emplace(key, action);
    }
  }

  void UseAnother(const std::filesystem::path& file) {
    exam.WriteExamFile(file);
    window->OpenExam(file);
  }

  const RecentExams recent{services.applicationFolder, files, services.codePage};
};

TEST_F(Menus, EveryKeyOfTheWindowStandsInOneEntryAndIsOwnedOnce) {
  Open();
  std::multimap<QString, QAction*> shown;
  for (auto* menu : Control<QMenuBar>("menuBar").actions()) CollectKeys(*menu->menu(), shown);
  std::map<QString, int> owned;
  for (const auto* shortcut : window->findChildren<QShortcut*>()) {
    const QString key = shortcut->key().toString();
    const bool isForEveryKind = key == "Alt+Y";  // of whichever answer field is visible
    EXPECT_TRUE(++owned[key] == 1 || isForEveryKind) << qPrintable(key);
    EXPECT_EQ(shown.count(key), key == "F10" ? 0 : 1) << qPrintable(key);
  }
  EXPECT_GT(owned.size(), 40);
  for (const auto* action : window->findChildren<QAction*>())
    EXPECT_TRUE(action->shortcut().isEmpty() || !owned.contains(action->shortcut().toString()))
        << qPrintable(action->text());
  for (const auto* button : Area().findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
    EXPECT_FALSE(button->toolTip().contains("Alt+")) << qPrintable(button->toolTip());
  }
  EXPECT_EQ(Control("save").toolTip(), "[135 %s]");
  Press("questionText", Qt::Key_X, Qt::AltModifier);
  EXPECT_EQ(Number(), "2");
}

TEST_F(Menus, F10OpensTheBarAndAltLeavesTheKeyboardAlone) {
  Open();
  Control("questionText").setFocus();
  QTest::keyPress(window.get(), Qt::Key_Alt, Qt::AltModifier);
  QTest::keyRelease(window.get(), Qt::Key_Alt);
  EXPECT_EQ(QApplication::focusWidget(), &Control("questionText"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
  ASSERT_EQ(QApplication::activePopupWidget(), &Control("menuFile"));
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
  ASSERT_EQ(QApplication::activePopupWidget(), &Control("menuQuestion"));
  while (Control<QMenu>("menuQuestion").activeAction() != window->findChild<QAction*>("questionNext"))
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  EXPECT_EQ(Number(), "2");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget(), &Control("questionText"));
}

TEST_F(Menus, EntriesActOnlyWhenTheyCan) {
  Open();
  EXPECT_FALSE(CanAct("fileImport") || CanAct("editUndoImport") || CanAct("fileRecent"));
  EXPECT_TRUE(CanAct("questionRight") && CanAct("questionAnswers") && !CanAct("questionSeparator"));
  Entry("questionFillIn").trigger();
  EXPECT_TRUE(Entry("questionFillIn").isChecked() && !Entry("questionChoice").isChecked());
  EXPECT_TRUE(!CanAct("questionRight") && CanAct("questionSeparator") && !CanAct("questionOralSwitch"));
  Entry("questionAnswers").trigger();
  EXPECT_EQ(QApplication::focusWidget(), &Control("answer"));
  Entry("questionOral").trigger();
  EXPECT_TRUE(CanAct("questionOralSwitch"));

  QApplication::clipboard()->clear();
  Type("questionText", "word");
  EXPECT_FALSE(CanAct("editCut") || CanAct("editCopy") || CanAct("editPaste"));
  Entry("editSelectAll").trigger();
  Entry("editCut").trigger();
  EXPECT_TRUE(!CanAct("editSelectAll") && CanAct("editPaste"));
  Entry("examTitle").trigger();
  Entry("editPaste").trigger();
  EXPECT_EQ(exam.Question(1).text + u"|", u"|");
  EXPECT_EQ(Line("title").text(), "word");
  Click("next");
  Control("save").setFocus();  // a button
  EXPECT_FALSE(CanAct("editPaste") || CanAct("editSelectAll"));
  Entry("examRandom").trigger();
  EXPECT_TRUE(Entry("examRandom").isChecked());
  EXPECT_EQ(Entry("examRandom").text().section('\t', 0, 0), Control<QAbstractButton>("random").text());
}

TEST_F(Menus, QuitAsksAndTheDocumentIsExportedAsSaveAsDoes) {
  std::vector<std::filesystem::path> exported;
  exportDocument = [&](const FrameSetExam& document, const auto& target) {
    EXPECT_EQ(document.Question(1).text, u"x");
    exported.push_back(target);
  };
  Open();
  Type("questionText", "x");
  Turn();
  Entry("exportDocument").trigger();  // cancelled
  world.dialogs.filesToSave = {folder / "exam.doc"};
  Entry("exportDocument").trigger();
  EXPECT_EQ(exported, std::vector{folder / "exam.doc"});
  Entry("fileQuit").trigger();
  EXPECT_TRUE(window->isVisible() && world.dialogs.questions.size() == 1);
  world.dialogs.answers = {SaveAnswer::No};
  QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(Menus, RecentExamsSurviveARestartAndVanishedOnesAreDropped) {
  Open();
  window->KeepRecent(recent);
  for (int i = 1; i <= 12; ++i) UseAnother(folder / (std::to_string(i) + " & \"é.exm"));
  window->OpenExam(folder / "12 & \"é.exm");
  window->OpenExam(folder / "never.exm");
  EXPECT_EQ(recent.Read().size(), RecentExams::kMost);
  Open();
  window->KeepRecent(recent);
  EXPECT_TRUE(Entry("fileRecent").isEnabled());
  EXPECT_TRUE(Entry("recent1").text().contains(QStringLiteral("12 && \"é.exm")));
  Entry("recent2").trigger();
  EXPECT_TRUE(window->Shows(folder / "11 & \"é.exm"));
  EXPECT_EQ(recent.Read()[1], folder / "12 & \"é.exm");

  std::filesystem::remove(folder / "12 & \"é.exm");
  world.dialogs.errors.clear();
  Entry("recent2").trigger();
  EXPECT_EQ(world.dialogs.errors.size(), 1);
  EXPECT_TRUE(window->Shows(folder / "11 & \"é.exm"));
  EXPECT_EQ(recent.Read()[1], folder / "10 & \"é.exm");
  Entry("clearRecent").trigger();
  EXPECT_FALSE(Entry("fileRecent").isEnabled());
}

TEST_F(Menus, APdfFileIsCompleteAndOneThatIsGivenUpIsTold) {
  constexpr int kPatience = 60'000;  // milliseconds, for a browser on a slow machine
  exam.Question(1).text = u"x";
  Open();
  const auto given = folder / "given up.pdf";
  const auto target = WriteBytes(folder / "exam.pdf", "old");
  world.dialogs.filesToSave = {given, target, folder / "no folder" / "exam.pdf"};
  Entry("exportPdf").trigger();
  Entry("exportPdf").trigger();
  const auto written = [&] { return window->findChild<QDialog*>("pdfWritten") != nullptr; };
  ASSERT_TRUE(QTest::qWaitFor(written, kPatience));
  EXPECT_TRUE(ReadBytes(target).starts_with("%PDF"));
  EXPECT_FALSE(std::filesystem::exists(given));
  EXPECT_EQ(world.dialogs.errors, std::vector<std::u16string>{u"[1443 " + PathToText(given) + u"]"});
  Entry("exportPdf").trigger();
  const auto failed = [&] { return world.dialogs.errors.size() == 2; };
  ASSERT_TRUE(QTest::qWaitFor(failed, kPatience));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  for (const auto& left : std::filesystem::directory_iterator(services.applicationFolder))
    EXPECT_NE(left.path().extension(), ".pdf");
}

TEST_F(Menus, TheListOfKeysHasEveryKeyOfTheMenus) {
  Open();
  Entry("helpKeys").trigger();
  Entry("helpKeys").trigger();
  ASSERT_EQ(window->findChildren<KeysDlg*>().size(), 1);
  const auto& list = Control<QTreeWidget>("keyList");
  for (const char* key : {"Ctrl+Shift+S, Alt+A", "Alt+3", "PgDown, Alt+X", "F10", "Ctrl+V"})
    EXPECT_EQ(list.findItems(key, Qt::MatchExactly | Qt::MatchRecursive, 1).size(), 1) << key;
}

}  // namespace
}  // namespace quorvantis::test
