// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "desktop/WindowTest.h"
#include "desktop/bank/BankWindow.h"
#include "examfile/ExamFileWriter.h"

#include <QListView>

namespace quorvantis::test {

namespace fs = std::filesystem;

/// The window of the bank over a folder of exams that a test writes.
class BankWindowTest : public WindowTest {
 protected:
  BankWindowTest() {
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME"})
      qputenv(variable, (folder.Path() / variable).string().c_str());
  }

  fs::path WriteExam(const char* name, const std::vector<std::u16string>& texts,
                     const fs::path& attached = {}) {
    FrameSetExam other(services);
    other.title = u"Life";
    for (std::size_t i = 0; i < texts.size(); ++i) {
      ExamQuestion& question = other.Question(static_cast<int>(i) + 1);
      question.text = texts[i];
      question.options = {u"yes", u"no"};
      question.answerLetters = u"a";
    }
    if (!attached.empty()) {
      other.Question(1).attachmentPaths[0] = PathToText(attached);
      other.Question(1).attachmentNames[0] = PathToText(attached.filename());
    }
    other.CountQuestions();
    fs::create_directories(folder / "exams");
    EXPECT_FALSE(ExamFileWriter(other, services).Write(folder / "exams" / name));
    return folder / "exams" / name;
  }

  void OpenBank() {
    BankProblem problem;
    auto index = BankIndex::Open(UsualBankPlace(), files, problem);
    ASSERT_TRUE(index && !index->AddFolder(folder / "exams").IsAnything());
    Open();
    Entry("examBank").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Control<BankWindow>("bankWindow")));
  }

  int Found() { return Control<QListView>("bankHits").model()->rowCount(); }
  void Find(const QString& words, int found) {
    Control<QLineEdit>("bankWords").setText(words);
    EXPECT_TRUE(QTest::qWaitFor([this, found] { return Found() == found; }, 20'000)) << Found();
  }
  int QuestionCount() {
    exam.CountQuestions();
    return exam.LastCountedQuestion();
  }
};

}  // namespace quorvantis::test
