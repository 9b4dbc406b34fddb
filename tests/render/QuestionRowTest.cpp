// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/QuestionRow.h"

namespace quorvantis::test {
namespace {

using QuestionRowTest = RenderTest;

TEST_F(QuestionRowTest, OfEveryKindOnEveryPage) {
  const std::pair<const char*, RenderFlags> rows[] = {
      {"preview", kPreviewPage},  {"key", kKeyPage},     {"result", kResultPage},
      {"answers", kResponsePage}, {"print", kPrintPage}, {"exercise", {true, false, false, false, false}}};
  exam.questionCount = 7;
  ExamQuestion& question = exam.Question(7);
  question.options = {u"first", u"", u"", u"", u"fifth"};
  question.answerLetters = u"be";
  question.answerText = u"red<@>blue";
  question.responseText = u"BA\r\nline";
  question.attachmentPaths[1] = u"/pa/path/a.gif";
  question.attachmentPaths[9] = u"~tt/b.gif";
  std::string all;
  for (const auto& [page, flags] : rows) {
    for (const int kind : {0, 1, 2, 3, 9}) {
      question.kind = static_cast<QuestionKind>(kind);
      std::string last;
      for (const int verdict : {0, 1, 2, -1}) {
        question.responseValue = verdict;
        const std::string row = Utf16ToUtf8(QuestionRow(exam, 6, 0, flags));
        if (row == last) continue;
        all += "== " + std::string(page) + ", kind " + std::to_string(kind) + ", verdict " +
               std::to_string(verdict) + "\n" + row;
        last = row;
      }
    }
  }
  ExpectGolden("rows.htm", all);
}

}  // namespace
}  // namespace quorvantis::test
