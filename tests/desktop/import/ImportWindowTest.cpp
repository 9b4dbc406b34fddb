// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/import/ImportWindows.h"
#include "editor/UnseenView.h"
#include "history/History.h"
#include "import/ImportCommand.h"

#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace quorvantis::test {
namespace {

class ImportWindow : public WindowTest {
 protected:
  void OpenWithRules() {
    std::filesystem::create_directories(folder / "app");
    WriteBytes(folder / "app" / "ImportExam.ini",
               "[Repository]\nSize=2\n[0]\nName=Maths\nPreQuestion=Q;\nPreAnswer=A;\nPattern=(?<Q2>.+)\n"
               "[1]\nName=Broken\n");
    paper = WriteBytes(folder / "paper.txt", "Q;oneA;1Q;twoA;2.bmp");
    Open();
  }

  /// Runs `work` on each modal dialog that appears in turn.
  void WhenAsked(std::vector<std::function<void(QDialog&)>> works) {
    script = std::move(works);
    QObject::connect(&timer, &QTimer::timeout, [this] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || next == script.size()) return;
      if (dialog->objectName() == "importWait") return;  // appears on a busy machine only
      script[next++](*dialog);
    });
    timer.start(20);
  }
  static void Press(QDialog& dialog, const char* caption) {
    for (auto* button : dialog.findChildren<QPushButton*>()) {
      if (button->text().remove('&') == QString::fromUtf8(caption)) return button->click();
    }
    ADD_FAILURE() << caption;
    dialog.reject();
  }

  std::filesystem::path paper;
  std::vector<std::function<void(QDialog&)>> script;
  std::size_t next = 0;
  QTimer timer;
};

TEST_F(ImportWindow, ReadsTheChosenPaper) {
  OpenWithRules();
  Type("questionText", "typed");
  Turn();
  const auto choose = [this](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "ImportExam");
    auto& repository = *dialog.findChild<QComboBox*>("repository");
    EXPECT_EQ(repository.currentText(), "Maths");
    repository.setCurrentText("Broken");
    Press(dialog, "导入试卷");
    world.dialogs.filesToOpen = {paper};
    Press(dialog, "浏览");
    EXPECT_EQ(world.dialogs.requests.back().filter, u"[151 %s][1126 %s]");
    Press(dialog, "浏览");  // cancelled: the path stays
    Press(dialog, "导入试卷");
    repository.setCurrentText("Maths");
    Press(dialog, "导入试卷");
  };
  WhenAsked({choose,
             [](QDialog& dialog) {
               EXPECT_EQ(dialog.windowTitle(), QString::fromUtf8("图片处理"));
               Press(dialog, "强行导入");
             },
             [](QDialog& dialog) {
               EXPECT_EQ(dialog.windowTitle(), "[168 %s]");
               EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).text(), "2,[167 %s]");
               dialog.accept();
             }});
  Click("import");
  EXPECT_EQ(next, 3U);
  EXPECT_EQ(world.dialogs.errors, (std::vector<std::u16string>{u"[162 %s]", u"[163 %s]"}));
  EXPECT_EQ(exam.Question(1).text + exam.Question(2).text + exam.Question(3).text, u"onetwotyped");
  auto& summary = *window->findChild<QDialog*>("importSummary");
  EXPECT_TRUE(summary.isVisible());
  world.dialogs.yesNoAnswers = {true};
  summary.findChild<QPushButton*>("undoImport")->click();
  EXPECT_FALSE(summary.isVisible());
  EXPECT_EQ(exam.Question(2).text, u"");
  EXPECT_EQ(Lines("questionText").toPlainText(), "typed");
  EXPECT_TRUE(ShowsChange());
}

TEST_F(ImportWindow, OffersToWorkOutRulesForAPaperThatTheyDoNotFit) {
  OpenWithRules();
  ImportWindows dialogs(services, nullptr, *window);
  UnseenView view;
  FrameSetExam other(services);
  ExamEditor editor(other, view, {});
  History history(editor);
  ImportCommand import(editor, history, papers, dialogs, {});
  std::filesystem::path offered;
  const auto isOffered = [&](const std::u16string& pattern) {
    ImportSettings rules;
    rules.m_strPreQuestion = u"Q;";
    rules.m_strPreAnswer = u"A;";
    rules.m_strPattern = pattern;
    EXPECT_EQ(import.ImportChosen(paper, rules, ImportPlace::FirstQuestion), ImportOutcome::Imported);
    for (auto* summary : window->findChildren<QDialog*>("importSummary")) {
      auto* button = summary->isVisible() ? summary->findChild<QPushButton*>("workOutRules") : nullptr;
      if (button != nullptr) return button->click(), true;
    }
    return false;
  };
  WriteBytes(paper, "Q;oneA;1Q;twoA;2");
  EXPECT_FALSE(isOffered(u"nothing like it"));
  dialogs.SetWorkOutRules([&](const std::filesystem::path& document) { offered = document; });
  EXPECT_FALSE(isOffered(u"(?<Q2>.+)"));
  EXPECT_TRUE(isOffered(u"nothing like it"));
  EXPECT_EQ(offered, paper);
}

}  // namespace
}  // namespace quorvantis::test
