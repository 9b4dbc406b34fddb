// SPDX-License-Identifier: MIT
#include "../editor/EditorTest.h"
#include "import/ImportCommand.h"
#include "text/NumberText.h"

#include <functional>
#include <optional>
#include <vector>

namespace quorvantis::test {
namespace {

/// Answers every dialog of an import, and keeps what it was told.
class AnsweringDialogs : public ImportDialogs {
 public:
  ChoiceResult pictures = ChoiceResult::Force;
  ChoiceResult formulas = ChoiceResult::Force;
  bool cancels = false;
  int asked = 0;
  int failures = 0;
  std::optional<ImportReport> report;

  ImportTarget AskTarget() override { return ++asked, ImportTarget::Continue; }
  bool AskDocument(ExamImport&) override { return ++asked, true; }
  ChoiceResult AskPictures() override { return pictures; }
  ChoiceResult AskFormulas() override { return formulas; }
  void ShowWait(const std::filesystem::path&) override { isWaiting = true; }
  void ShowPicturesRead(std::size_t, std::size_t) override {}
  bool IsCancelled() override { return isWaiting && cancels; }
  void HideWait() override { isWaiting = false; }
  void ShowNotice(std::u16string_view, std::u16string_view) override {}
  void ShowFailure(const ImportReport&, std::u16string_view) override { ++failures; }
  void ShowReport(const ImportReport& shown, ImportCommand&) override { report = shown; }

 private:
  bool isWaiting = false;
};

/// Three questions; in the answer of the second one a picture, in that of the third one a formula.
class ThreeQuestions : public WordDocuments {
 public:
  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override {
    if (file.empty()) return {WordResult::NotFound};
    if (options.isCancelled && options.isCancelled()) return {WordResult::Cancelled};
    WordContent content;
    content.runningText.characters = u"Q;firstA;1Q;secondA;2Q;thirdA;3";
    content.runningText.objects = {{20, WordObjectKind::Picture, 0}, {31, WordObjectKind::Equation, 0}};
    content.pictures = 1;
    return {WordResult::Done, content};
  }
};

class ImportChosenTest : public EditorTest {
 protected:
  ImportChosenTest() {
    rules.m_strPreQuestion = u"Q;";
    rules.m_strPreAnswer = u"A;";
    rules.m_strPattern = u"(?<Q2>.+)";
  }

  /// The exam gets questions "1" to "4", the second of which is shown.
  void FillExam() {
    for (int question = 1; question <= 4; ++question) {
      ShowQuestion(question);
      Type(FormField::Text, FormatInteger(question));
      Turn();
      editor.questions.StoreCurrentQuestion();
    }
    ShowQuestion(2);
    history.Begin();
  }

  ImportOutcome Import(ImportPlace place, const std::filesystem::path& file = "paper") {
    return import.ImportChosen(file, rules, place);
  }

  std::u16string Texts() {
    std::u16string texts;
    const FrameSetExam stored = editor.questions.StoredExam(world.services.longAnswerFlags);
    for (int question = 1; question <= 8; ++question) texts += stored.Question(question).text + u"|";
    return texts.substr(0, texts.find_last_not_of(u'|') + 1);
  }

  /// The exam file that a save would write now.
  std::string Saved() {
    FrameSetExam copy = editor.questions.StoredExam(world.services.longAnswerFlags);
    EXPECT_TRUE(copy.WriteExamFile(folder / "now.exm"));
    return ReadBytes(folder / "now.exm");
  }

  ImportSettings rules;
  ThreeQuestions documents;
  AnsweringDialogs dialogs;
  History history{editor};
  ImportCommand import{editor, history, documents, dialogs, "rules.ini"};
};

TEST_F(ImportChosenTest, PutsQuestionsWhereTheCallerWants) {
  EXPECT_EQ(Import(ImportPlace::FirstQuestion), ImportOutcome::Imported);
  EXPECT_EQ(Texts(), u"first|second|third");
  FillExam();
  EXPECT_EQ(Import(ImportPlace::AfterCurrentQuestion), ImportOutcome::Imported);
  EXPECT_EQ(Texts(), u"1|2|first|second|third");
  EXPECT_EQ(dialogs.report->replaced, (std::vector<int>{3, 4}));
  EXPECT_EQ(dialogs.report->firstSlot, 3);
  import.Undo();
  EXPECT_EQ(Texts(), u"1|2|3|4");
  Change();
  const auto saved = folder / "saved.exm";
  world.dialogs.filesToSave = {saved};
  EXPECT_EQ(Import(ImportPlace::NewExam), ImportOutcome::Imported);
  EXPECT_TRUE(std::filesystem::exists(saved));
  EXPECT_EQ(Texts(), u"first|second|third");
  EXPECT_TRUE(editor.state.IsUntitled());
  import.Undo();
  EXPECT_EQ(Texts(), u"1|changed|3|4");
  EXPECT_EQ(dialogs.asked, 0);
}

TEST_F(ImportChosenTest, InsertsBetweenQuestions) {
  FillExam();
  ShowQuestion(4);
  EXPECT_EQ(import.ImportChosen("paper", rules, ImportPlace::AfterCurrentQuestion, 2),
            ImportOutcome::Imported);
  EXPECT_EQ(Texts(), u"1|first|second|third|2|3|4");
  EXPECT_EQ(dialogs.report->firstSlot, 2);
  EXPECT_EQ(dialogs.report->nextSlot, 5);
  EXPECT_TRUE(dialogs.report->replaced.empty());
  EXPECT_EQ(editor.state.CurrentQuestion(), 4);
  import.Undo();
  EXPECT_EQ(Texts(), u"1|2|3|4");
}

TEST_F(ImportChosenTest, FollowsQuestionOne) {
  FillExam();
  ShowQuestion(1);
  EXPECT_EQ(Import(ImportPlace::AfterCurrentQuestion), ImportOutcome::Imported);
  EXPECT_EQ(Texts(), u"1|first|second|third");
}

TEST_F(ImportChosenTest, EveryWayOutLeavesTheExamAsItWas) {
  const struct {
    const char* name;
    ImportOutcome expected;
    std::function<void()> prepare;
    const char* file = "paper";
  } rows[] = {
      {"pictures closed", ImportOutcome::Cancelled, [this] { dialogs.pictures = ChoiceResult::None; }},
      {"pictures given up", ImportOutcome::Cancelled, [this] { dialogs.pictures = ChoiceResult::GiveUp; }},
      {"formulas closed", ImportOutcome::Cancelled, [this] { dialogs.formulas = ChoiceResult::None; }},
      {"formulas given up", ImportOutcome::Cancelled, [this] { dialogs.formulas = ChoiceResult::GiveUp; }},
      {"wait cancelled", ImportOutcome::Cancelled, [this] { dialogs.cancels = true; }},
      {"no document", ImportOutcome::Failed, [] {}, ""},
      {"endless rule", ImportOutcome::Failed, [this] { rules.m_strPreAnswer = u"@|A;"; }},
  };
  for (const auto& row : rows) {
    for (const ImportPlace place :
         {ImportPlace::AfterCurrentQuestion, ImportPlace::FirstQuestion, ImportPlace::NewExam}) {
      dialogs = {};
      rules.m_strPreAnswer = u"A;";
      FillExam();
      Change();
      history.Look();
      const auto undo = history.LastStep();
      const std::string before = Saved();
      world.dialogs.filesToSave = {folder / "saved.exm"};
      row.prepare();
      EXPECT_EQ(Import(place, row.file), row.expected) << row.name;
      EXPECT_EQ(Saved(), before) << row.name;
      EXPECT_EQ(editor.state.CurrentQuestion(), 2) << row.name;
      EXPECT_TRUE(Modified()) << row.name;
      EXPECT_FALSE(dialogs.report) << row.name;
      EXPECT_EQ(dialogs.failures, row.expected == ImportOutcome::Failed ? 1 : 0) << row.name;
      history.Look();
      EXPECT_EQ(history.LastStep(), undo) << row.name;
    }
  }
}

TEST_F(ImportChosenTest, AnExamThatWasNotSavedStays) {
  FillExam();
  Change();
  EXPECT_EQ(Import(ImportPlace::NewExam), ImportOutcome::Cancelled);
  EXPECT_EQ(world.dialogs.requests.size(), 1U);
  EXPECT_EQ(Texts(), u"1|changed|3|4");
  EXPECT_TRUE(Modified());
}

}  // namespace
}  // namespace quorvantis::test
