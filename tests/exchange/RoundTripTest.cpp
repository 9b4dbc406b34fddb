// SPDX-License-Identifier: MIT
// What the table says that a format holds comes back as it was.
#include "RandomExam.h"
#include "exchange/Formats.h"
#include "exchange/exam/ExamToExchange.h"
#include "exchange/exam/ExchangeToExam.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "platform/texts/ExchangeTexts.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace quorvantis::test {
namespace {

std::string Description(const ExchangedQuestion& question) {
  std::ostringstream text;
  text << "kind " << static_cast<int>(question.kind) << "\ntext " << Utf16ToUtf8(question.text) << "\n";
  for (const ExchangedOption& option : question.options)
    text << (option.isRight ? "+ " : "- ") << Utf16ToUtf8(option.text) << "\n";
  for (const BlankAnswers& blank : question.blanks) {
    text << "blank\n";
    for (const std::u16string& answer : blank) text << "= " << Utf16ToUtf8(answer) << "\n";
  }
  text << "model " << Utf16ToUtf8(question.modelAnswer) << "\nscore " << question.score.value_or(1) << "\n";
  for (const ExchangedFile& file : question.files)
    text << "file " << Utf16ToUtf8(file.name) << " " << BytesOf(file).size() << " bytes "
         << std::hash<std::string>()(BytesOf(file)) << "\n";
  return text.str();
}

std::string Description(const ExchangedExam& exam) {
  const bool hasChoice = std::ranges::any_of(exam.questions, [](const ExchangedQuestion& question) {
    return question.kind == QuestionKind::Choice;
  });
  std::string text =
      "title " + Utf16ToUtf8(exam.title) + (hasChoice && exam.shufflesOptions ? "\nshuffled\n" : "\n");
  for (const ExchangedQuestion& question : exam.questions) text += Description(question);
  return text;
}

/// The first lines that differ, or nothing.
std::string Difference(const std::string& actual, const std::string& expected) {
  std::istringstream a(actual), b(expected);
  std::string lineOfA, lineOfB;
  while (a || b) {
    lineOfA.clear();
    lineOfB.clear();
    std::getline(a, lineOfA);
    std::getline(b, lineOfB);
    if (lineOfA != lineOfB) return "read " + lineOfA + "\nnot  " + lineOfB;
  }
  return {};
}

class RoundTrip : public testing::TestWithParam<FormatRow> {
 protected:
  RoundTrip() { std::filesystem::create_directory(unpacked); }

  TemporaryFolder folder;
  std::filesystem::path unpacked = folder / "unpacked";
  InterruptedProgress progress;
};

std::vector<FormatRow> ReadableRows() {
  std::vector<FormatRow> rows;
  for (const FormatRow& format : Formats()) {
    if (format.reader != nullptr && format.writer != nullptr) rows.push_back(format);
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Of, RoundTrip, testing::ValuesIn(ReadableRows()), [](const auto& row) {
  std::string name(row.param.name);
  std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
  return name;
});

TEST_P(RoundTrip, KeepsWhatTheFormatHolds) {
  const FormatRow& format = GetParam();
  for (unsigned seed = 1; seed <= 60; ++seed) {
    ExchangeNotes notes;
    const ExchangedExam exam = HeldExam(format.held, RandomExam(folder.Path(), seed).Make(6), notes);
    if (exam.questions.empty()) continue;
    const auto file = WriteBytes(folder / "file", format.writer()->Write(exam, BuiltInStrings(), progress));
    const ExchangeSource source(file);
    const FormatRow* const recognised = RecogniseFormat(source);
    // Some texts look like another format, but what a file is for is known where it matters.
    if (recognised == nullptr) ADD_FAILURE() << seed;
    if (format.beginsLikeNoOther && recognised != nullptr && recognised->name != format.name)
      ADD_FAILURE() << seed << " " << recognised->name;
    ExchangeNotes readNotes;
    ExchangeFiles files(unpacked, readNotes);
    ReadingTools tools{BuiltInStrings(), files, readNotes, progress};
    const auto read = format.reader()->Read(source, tools);
    ASSERT_TRUE(read) << seed;
    ASSERT_EQ(Difference(Description(*read), Description(exam)), "") << seed;
    for (const ExchangeNote& note : readNotes.All()) {
      if (note.text != text_id::kExchangeNoRightRead)
        ADD_FAILURE() << seed << " " << Utf16ToUtf8(NoteLine(note, BuiltInStrings())) << "\n"
                      << ReadBytes(file).substr(0, 2000);
    }
  }
}

/// It has no reader, and its files must not be taken for those of a format that has one.
TEST(Markdown, IsRecognised) {
  const TemporaryFolder folder;
  InterruptedProgress progress;
  const FormatRow& markdown = *FormatNamed("markdown");
  for (unsigned seed = 1; seed <= 100; ++seed) {
    ExchangeNotes notes;
    const ExchangedExam exam = HeldExam(markdown.held, RandomExam(folder.Path(), seed).Make(6), notes);
    const auto file = WriteBytes(folder / "file", markdown.writer()->Write(exam, BuiltInStrings(), progress));
    EXPECT_EQ(RecogniseFormat(ExchangeSource(file)), &markdown) << ReadBytes(file);
  }
}

TEST(ExamAndExchange, AreTheSame) {
  const TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world(folder.Path(), files);
  for (unsigned seed = 1; seed <= 60; ++seed) {
    ExchangedExam exam = RandomExam(folder.Path(), seed).Make(5);
    for (ExchangedQuestion& question : exam.questions) question.score.reset();
    exam.questions.back().score = 2.5;
    if (exam.questions.back().text.empty()) exam.questions.back().text = u"t";  // or it does not count
    exam.title = PlainToExamText(ExamTextToPlain(exam.title));
    FrameSetExam document(world.services);
    document.SetHostMode(1);
    ExchangeNotes notes;
    EXPECT_EQ(StoreExchanged(exam, document, 1, notes), 6);
    EXPECT_TRUE(notes.All().empty()) << Utf16ToUtf8(NoteLine(notes.All()[0], BuiltInStrings()));
    EXPECT_EQ(Difference(Description(ExamToExchange(document, notes)), Description(exam)), "") << seed;
  }
}

}  // namespace
}  // namespace quorvantis::test
