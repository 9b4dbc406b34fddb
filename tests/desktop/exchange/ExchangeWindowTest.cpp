// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/exchange/ExportQuestionsDlg.h"
#include "desktop/exchange/ImportQuestionsDlg.h"
#include "desktop/import/ImportSummaryDlg.h"
#include "editor/WorkCopies.h"
#include "model/AnswerLetters.h"
#include "platform/texts/ExchangeTexts.h"
#include "platform/texts/ExportTexts.h"

#include <random>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class ExchangeWindow : public WindowTest {
 protected:
  static std::u16string Name(int number) { return QString("question %1").arg(number).toStdU16String(); }

  void Fill(int count) {
    exam.title = u"Colours";
    for (int number = 1; number <= count; ++number) {
      ExamQuestion& question = exam.Question(number);
      question.text = Name(number);
      question.options = {u"red", u"blue"};
      question.answerLetters = u"b";
      question.answerMask = AnswerLettersToMask(u"b");
    }
    exam.CountQuestions();
  }
  void Attach(int number, const char* name, const std::string& bytes) {
    exam.Question(number).attachmentPaths[0] = PathToText(WriteBytes(folder / "given" / name, bytes));
    exam.Question(number).attachmentNames[0] = PathToText(name);
  }

  /// The number of the text that is shown.
  static int Shown(const QString& text) { return text.mid(1).section(' ', 0, 0).toInt(); }
  int QuestionCount() {
    exam.CountQuestions();
    return exam.LastCountedQuestion();
  }
  fs::path Saved(const char* name) {
    world.dialogs.filesToSave = {folder / name};
    Entry("fileSaveAs").trigger();
    return folder / name;
  }

  void OpenExport() {
    Entry("exportQuestions").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Control<ExportQuestionsDlg>("exportQuestions")));
  }
  void Choose(const std::u16string& format) { Control<FormatList>("exportFormats").Choose(format); }
  int LossCount() { return Control<QTreeWidget>("losses").topLevelItemCount(); }
  QString Status() { return Control<QLabel>("exportStatus").text(); }
  /// Writes to `target` as the user does, and waits for the end.
  void ExportTo(const fs::path& target) {
    Control<QLineEdit>("exportFile").setText(PathToQString(target));
    Click("exportWrite");
    ASSERT_TRUE(QTest::qWaitFor([this] { return Control("exportFile").isEnabled(); }, 60'000));
  }
  template <class Dialog>
  void CloseByEscape() {
    QTest::keyClick(window->findChild<Dialog*>(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->findChild<Dialog*>() == nullptr; }));
    EXPECT_TRUE(window->isVisible());
  }
  /// A file of the exam as it is now.
  fs::path Exported(const std::u16string& format, const char* name) {
    OpenExport();
    Choose(format);
    ExportTo(folder / name);
    CloseByEscape<ExportQuestionsDlg>();
    return folder / name;
  }

  void OpenImport(const fs::path& file) {
    world.dialogs.filesToOpen = {file};
    Entry("fileImportQuestions").trigger();
  }
  void WaitForRead() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Control<RunBar>("runProgress").isVisibleTo(window.get()); },
                                60'000));
    Turn();
  }
  void ImportAll(const fs::path& file) {
    OpenImport(file);
    ASSERT_TRUE(QTest::qWaitFor([this] { return Control("importInsert").isEnabled(); }, 60'000));
    Click("importInsert");
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->findChild<ImportQuestionsDlg*>() == nullptr; }));
  }
  int FoldersOfForeignExams() {
    int count = 0;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(AttachmentWorkRoot(services.applicationFolder), error))
      count += entry.path().filename().string().starts_with(".foreign-exam-") ? 1 : 0;
    return count;
  }
};

TEST_F(ExchangeWindow, ShowsTheLossesOfTheChosenFormatAndWrites) {
  Fill(3);
  exam.Question(2).kind = QuestionKind::Oral;
  Attach(1, "red.png", "a picture");
  Open();
  OpenExport();
  Choose(u"moodle");
  EXPECT_EQ(LossCount(), 0);
  EXPECT_EQ(Shown(Control<QPushButton>("exportWrite").text()), text_id::kExchangeDoExport);
  Choose(u"aiken");
  EXPECT_EQ(LossCount(), 3) << "the title, the picture, the oral question";
  EXPECT_EQ(Shown(Control<QPushButton>("exportWrite").text()), text_id::kExchangeExportAnyway);
  EXPECT_TRUE(Control<QLineEdit>("exportFile").text().endsWith("/Colours.aiken"));
  ExportTo(folder / "out.aiken");
  EXPECT_EQ(ReadBytes(folder / "out.aiken"),
            "question 1\nA. red\nB. blue\nANSWER: B\n\nquestion 3\nA. red\nB. blue\nANSWER: B\n\n");
  CloseByEscape<ExportQuestionsDlg>();
  OpenExport();
  EXPECT_EQ(Control<FormatList>("exportFormats").Chosen().name, "aiken") << "remembered";
  EXPECT_EQ(Control<QLineEdit>("exportFile").text(), PathToQString(folder / "Colours.aiken"));
  EXPECT_FALSE(ShowsChange());
}

TEST_F(ExchangeWindow, WritesNothingThatIsNotWanted) {
  Fill(2);
  Open();
  const fs::path file = Saved("exam.exm");
  const std::string bytes = ReadBytes(file);
  OpenExport();
  ExportTo(file);
  EXPECT_EQ(Shown(Status()), text_id::kExchangeTargetIsExam);
  EXPECT_EQ(ReadBytes(file), bytes);
  const fs::path other = WriteBytes(folder / "other.xml", "mine");
  ExportTo(other);
  EXPECT_EQ(world.dialogs.questions.size(), 1U);
  EXPECT_EQ(ReadBytes(other), "mine") << "not replaced without a yes";
  ExportTo(folder / "no such folder" / "out.xml");
  EXPECT_EQ(Shown(Status()), text_id::kCannotWrite);
  ExportTo(folder.Path());
  EXPECT_EQ(Shown(Status()), text_id::kCannotWrite);
  ExportTo({});
  EXPECT_EQ(Shown(Status()), text_id::kExchangeNoTarget);
  ExportTo(folder / "other");
  EXPECT_EQ(world.dialogs.questions.size(), 2U) << "it is about other.xml";
  EXPECT_EQ(Control<QLineEdit>("exportFile").text(), PathToQString(other));
  world.dialogs.filesToSave = {other};
  Click("exportChooseFile");
  ExportTo(other);
  EXPECT_EQ(world.dialogs.questions.size(), 2U) << "the file dialog has asked";
  EXPECT_NE(ReadBytes(other), "mine");
}

TEST_F(ExchangeWindow, ShowsAgainWhatIsLostWhenAFileVanishes) {
  Fill(1);
  Attach(1, "red.png", "a picture");
  Open();
  OpenExport();
  Choose(u"moodle");
  fs::remove(folder / "given" / "red.png");
  ExportTo(folder / "out.xml");
  EXPECT_EQ(Shown(Status()), text_id::kExchangeLossesChanged);
  EXPECT_EQ(LossCount(), 1);
  EXPECT_FALSE(fs::exists(folder / "out.xml"));
  ExportTo(folder / "out.xml");
  EXPECT_TRUE(fs::exists(folder / "out.xml"));
}

TEST_F(ExchangeWindow, TellsLossesByTheNumbersThatAreSeen) {
  Fill(3);
  Open();
  ImportAll(WriteBytes(folder / "in.aiken", "No options\nANSWER: A\n\nQ\nA. a\nB. b\nANSWER: Z\n"));
  ASSERT_EQ(exam.Question(2).text, u"Q");
  ASSERT_NE(window->findChild<ImportSummaryDlg*>(), nullptr);
  const QString summary = window->findChild<ImportSummaryDlg*>()->findChild<QPlainTextEdit*>()->toPlainText();
  EXPECT_TRUE(summary.contains(QString("[%1 2]").arg(text_id::kExchangeQuestion))) << summary.toStdString();
}

TEST_F(ExchangeWindow, InsertsInOneStepThatUndoTakesBackWithTheFiles) {
  Fill(3);
  Attach(2, "red.png", "a picture");
  Open();
  const std::string before = ReadBytes(Saved("before.exm"));
  const fs::path file = Exported(u"moodle", "out.xml");
  Entry("questionNext").trigger();
  ImportAll(file);
  EXPECT_EQ(QuestionCount(), 6);
  EXPECT_EQ(exam.Question(3).text, Name(1)) << "after question 2, which was shown";
  EXPECT_EQ(exam.Question(6).text, Name(3));
  EXPECT_EQ(ReadBytes(TextToPath(exam.Question(4).attachmentPaths[0])), "a picture");
  EXPECT_EQ(exam.title, u"Colours");
  EXPECT_EQ(FoldersOfForeignExams(), 0);
  ASSERT_NE(window->findChild<ImportSummaryDlg*>(), nullptr);
  const std::string after = ReadBytes(Saved("after.exm"));
  Entry("editUndo").trigger();
  EXPECT_TRUE(QTest::qWaitFor([this] { return window->findChild<ImportSummaryDlg*>() == nullptr; }));
  EXPECT_EQ(ReadBytes(Saved("undone.exm")), before);
  Entry("editRedo").trigger();
  EXPECT_EQ(ReadBytes(Saved("redone.exm")), after);
}

TEST_F(ExchangeWindow, FillsAnEmptyExamWithAllOfTheFile) {
  const fs::path file = WriteBytes(folder / "questions.csv",
                                   "kind,question,A,B,right,score\nchoice,one,x,y,B,2\nchoice,two,x,y,A,3\n");
  Open();
  ImportAll(file);
  EXPECT_EQ(QuestionCount(), 2);
  EXPECT_EQ(exam.scoreMode, ScoreMode::Custom);
  EXPECT_EQ(exam.scoreValue[1], 3.0F);
  Click("undoImport");
  EXPECT_EQ(QuestionCount(), 0);
  EXPECT_NE(exam.scoreMode, ScoreMode::Custom);
  EXPECT_FALSE(Entry("editUndo").isEnabled()) << "it was one step";
}

TEST_F(ExchangeWindow, TellsThatAnExamHolds500Questions) {
  Fill(499);
  Open();
  const fs::path file =
      WriteBytes(folder / "three.aiken", "p\nA. x\nANSWER: A\n\nq\nA. x\nANSWER: A\n\nr\nA. x\nANSWER: A\n");
  ImportAll(file);
  EXPECT_EQ(QuestionCount(), 500);
  EXPECT_EQ(exam.Question(2).text, u"p") << "as many as fit have a tick";
  OpenImport(file);
  WaitForRead();
  EXPECT_FALSE(Control("importInsert").isEnabled());
  CloseByEscape<ImportQuestionsDlg>();
  EXPECT_EQ(QuestionCount(), 500);
}

TEST_F(ExchangeWindow, SaysWhyThereIsNothingToRead) {
  Open();
  const auto heading = [this](const fs::path& file) {
    OpenImport(file);
    WaitForRead();
    EXPECT_FALSE(Control("importInsert").isEnabled());
    return Shown(Control<QLabel>("importHeading").text());
  };
  EXPECT_EQ(heading(folder / "gone.xml"), text_id::kExchangeNotOpen);
  CloseByEscape<ImportQuestionsDlg>();
  EXPECT_EQ(heading(WriteBytes(folder / "mine.exm", "x")), text_id::kExchangeIsExam);
  CloseByEscape<ImportQuestionsDlg>();
  EXPECT_EQ(heading(WriteBytes(folder / "bad.xml", "<quiz><question")), text_id::kExchangeNothingRead);
  CloseByEscape<ImportQuestionsDlg>();
  EXPECT_EQ(heading(WriteBytes(folder / "mail.md", "1. red?\n    A. yes  \n    Answer: A\n")),
            text_id::kExchangeIsPaper);
  EXPECT_TRUE(Control<QLabel>("lossHeading").text().isEmpty()) << "not: nothing is lost";
  CloseByEscape<ImportQuestionsDlg>();
  EXPECT_EQ(heading(WriteBytes(folder / "cells", "red?\tyes\n")), text_id::kExchangeNoFormat);
  auto& format = Control<QComboBox>("importFormat");
  format.setCurrentIndex(format.findData("tsv"));
  emit format.activated(format.currentIndex());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Control("importInsert").isEnabled(); }))
      << "read as the format that was chosen";
}

TEST_F(ExchangeWindow, CanBeCancelledAtAnyTime) {
  Fill(60);
  std::mt19937 random(1);
  std::string noise(50'000, ' ');
  for (char& byte : noise) byte = static_cast<char>(random());
  for (int number = 1; number <= 60; ++number)
    Attach(number, QString("%1.png").arg(number).toUtf8().constData(), noise);
  Open();
  const fs::path file = Exported(u"moodle", "whole.xml");
  const std::string whole = ReadBytes(file);
  const std::size_t entries = CountEntries(folder.Path());
  const auto pause = [&random] { QTest::qWait(static_cast<int>(random() % 30)); };
  for (int i = 0; i < 50; ++i) {
    const fs::path target = folder / "part.xml";
    OpenExport();
    Control<QLineEdit>("exportFile").setText(PathToQString(target));
    Click("exportWrite");
    pause();
    QTest::keyClick(&Control<ExportQuestionsDlg>("exportQuestions"), Qt::Key_Escape);
    const auto isOver = [this] {
      auto* dialog = window->findChild<ExportQuestionsDlg*>();
      return dialog == nullptr || Control("exportFile").isEnabled();
    };
    ASSERT_TRUE(QTest::qWaitFor(isOver, 60'000));
    if (fs::exists(target)) {
      EXPECT_TRUE(ReadBytes(target) == whole);
      fs::remove(target);
    }
    if (window->findChild<ExportQuestionsDlg*>() != nullptr) CloseByEscape<ExportQuestionsDlg>();
    OpenImport(file);
    pause();
    CloseByEscape<ImportQuestionsDlg>();
  }
  EXPECT_EQ(CountEntries(folder.Path()), entries);
  EXPECT_EQ(FoldersOfForeignExams(), 0);
  EXPECT_EQ(QuestionCount(), 60);
  EXPECT_FALSE(ShowsChange());
}

}  // namespace
}  // namespace quorvantis::test
