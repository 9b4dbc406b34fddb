// SPDX-License-Identifier: MIT
// Nothing is lost in silence: whatever of an exam does not come back from a format as it was has been told
// before, with the number of its question; and whatever of a foreign file has no place in an exam is told
// when it is read.
#include "RandomExam.h"
#include "exchange/Formats.h"
#include "exchange/QuestionExport.h"
#include "exchange/exam/ExamToExchange.h"
#include "exchange/exam/ExchangeToExam.h"
#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "platform/texts/ExchangeTexts.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace quorvantis::test {
namespace {

/// What authors write and no format holds.
constexpr std::u16string_view kUnheld[] = {
    u"<table><tr><td>a</td><td>b</td></tr></table>",
    u"<font color=\"red\">red</font>",
    u"<img src=\"https://example.org/a.png\">",
    u"<img src=\"gone.png\" alt=\"gone\">",
    u"<a href=\"https://example.org\">here</a>",
    u"<script>run()</script>",
    u"<ul><li>one</li></ul>",
    u"<span style=\"color:red\">red</span>",
    u"<a href=\"other.pdf\">other</a>",
    u"<input type=\"text\">",
    u"<h1>head</h1>",
};

/// Exams as they stand in a window, with all that can be lost.
class WildExam {
 public:
  WildExam(const std::filesystem::path& folder, unsigned seed)
      : folder_(folder), random_(seed), tame_(folder, seed) {}

  void Fill(FrameSetExam& exam) {
    constexpr int kQuestions = 6;
    ExchangeNotes ofNoInterest;
    ExchangedExam tame = tame_.Make(kQuestions);
    StoreExchanged(tame, exam, 1, ofNoInterest);
    exam.randomMode = static_cast<RandomMode>(random_() % 3);
    if (Chance(3)) exam.examAttachmentPaths[0] = PathToText(WriteBytes(folder_ / "whole", "x"));
    if (Chance(3)) exam.title += kUnheld[0];
    for (int n = 1; n <= kQuestions; ++n) Change(exam.Question(n));
    exam.CountQuestions();
  }

 private:
  bool Chance(std::size_t in) { return random_() % in == 0; }

  void Spoil(std::u16string& text) {
    if (Chance(6)) text += kUnheld[random_() % std::size(kUnheld)];
  }

  void Change(ExamQuestion& question) {
    Spoil(question.text);
    Spoil(question.options[random_() % kOptionCount]);
    if (Chance(4)) question.options[random_() % kOptionCount].clear();
    if (Chance(6)) question.text.clear();
    if (Chance(6)) question.answerText += u"<@>more <b>bold</b>";
    if (Chance(6)) question.answerText += u"<@>";
    if (Chance(6)) question.answerText.insert(0, u"<@>");
    Spoil(question.answerText);
    Spoil(question.essayAnswer);
    if (Chance(12)) question.attachmentNames[0] = u"../of: another*.png";
    if (Chance(12)) question.attachmentPaths[0] = u"/nowhere";
    if (Chance(12)) question.kind = static_cast<QuestionKind>(random_() % 6);
    if (Chance(6)) question.oralFlag = 1;
  }

  std::filesystem::path folder_;
  std::mt19937 random_;
  RandomExam tame_;
};

/// All that a question has, one line a part; without what its kind does not keep.
std::vector<std::u16string> PartsOfQuestion(const ExamQuestion& question) {
  const AnswerParts keeps = AnswerOf(question.kind);
  std::vector<std::u16string> parts{
      u"kind " + std::u16string(1, static_cast<char16_t>(u'0' + int(question.kind))),
      u"text " + question.text};
  for (std::size_t i = 0; i < kOptionCount && keeps.options; ++i) {
    const bool isRight = (question.answerMask & AnswerBoxWeight(i)) != 0;
    parts.push_back((isRight ? u"right " : u"wrong ") + question.options[i]);
  }
  if (keeps.fillIn) parts.push_back(u"answers " + question.answerText);
  if (keeps.essay) parts.push_back(u"model " + question.essayAnswer);
  const bool isMuted = question.oralFlag == 1 && !question.attachmentPaths[0].empty();
  parts.emplace_back(isMuted ? u"muted" : u"not muted");
  for (std::size_t i = 0; i < kMaxAttachments && !question.attachmentPaths[i].empty(); ++i) {
    parts.push_back(u"file " + question.attachmentNames[i]);
    parts.push_back(u"bytes " + Utf8ToUtf16(ReadBytes(TextToPath(question.attachmentPaths[i]))));
  }
  return parts;
}

std::string FirstDifference(const ExamQuestion& before, const ExamQuestion& after) {
  std::vector<std::u16string> a = PartsOfQuestion(before);
  std::vector<std::u16string> b = PartsOfQuestion(after);
  a.resize(std::max(a.size(), b.size()));
  b.resize(a.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i]) return Utf16ToUtf8(a[i]) + "\nbecame " + Utf16ToUtf8(b[i]);
  }
  return {};
}

/// The letters and digits of a text.
std::u16string Words(std::u16string_view text) {
  std::u16string words;
  for (const char16_t unit : ExamTextToPlain(text)) {
    if (unit > u'z' || std::isalnum(static_cast<unsigned char>(unit)) != 0) words.push_back(unit);
  }
  return words;
}

/// Nothing that a question of an unknown kind has may vanish.
std::string WhatVanished(const ExamQuestion& before, const ExamQuestion& after) {
  const std::u16string kept = Words(after.text) + Words(after.essayAnswer);
  std::vector<std::u16string> parts(before.options.begin(), before.options.end());
  parts.push_back(before.essayAnswer);
  for (const std::u16string& answer : SplitAnswers(before.answerText)) parts.push_back(answer);
  for (const std::u16string& part : parts) {
    if (kept.find(Words(part)) == kept.npos) return Utf16ToUtf8(part) + "\nvanished";
  }
  return {};
}

class ToldLosses : public testing::TestWithParam<std::string_view> {
 protected:
  ToldLosses() { std::filesystem::create_directory(folder / "kept"); }

  /// Whether anything was told of a question; 0: of the exam as a whole.
  static bool IsTold(const std::vector<ExchangeNote>& notes, int question) {
    return std::ranges::find(notes, question, &ExchangeNote::question) != notes.end();
  }

  ExchangedExam Read(std::string_view bytes, ExchangeNotes& notes) {
    const ExchangeSource source(WriteBytes(folder / "file", bytes));
    ExchangeFiles files(folder / "kept", notes);
    ReadingTools tools{BuiltInStrings(), files, notes, progress};
    return FormatNamed(GetParam())->reader()->Read(source, tools).value_or(ExchangedExam{});
  }

  TemporaryFolder folder;
  PosixFiles posixFiles;
  RecordingWorld world{folder.Path(), posixFiles};
  InterruptedProgress progress;
};

INSTANTIATE_TEST_SUITE_P(Of, ToldLosses,
                         testing::Values("moodle", "qti", "canvas", "gift", "aiken", "csv", "tsv"),
                         [](const auto& name) { return std::string(name.param); });

TEST_P(ToldLosses, OfWhatIsExported) {
  const FormatRow& format = *FormatNamed(GetParam());
  for (unsigned seed = 1; seed <= 80; ++seed) {
    FrameSetExam exam(world.services);
    exam.SetHostMode(1);
    WildExam(folder.Path(), seed).Fill(exam);
    const ForeseenExport foreseen = ForeseeExport(exam, format);
    ExchangeNotes notes;
    const ExchangedExam read = Read(format.writer()->Write(foreseen.held, BuiltInStrings(), progress), notes);
    ASSERT_EQ(read.questions.size(), foreseen.held.questions.size()) << seed;
    FrameSetExam back(world.services);
    back.SetHostMode(1);
    StoreExchanged(read, back, 1, notes);
    int slot = 0;
    for (int n = 1; n <= exam.LastCountedQuestion(); ++n) {
      const bool isHeld = std::ranges::find(foreseen.held.questions, n, &ExchangedQuestion::number) !=
                          foreseen.held.questions.end();
      const std::string difference =
          isHeld ? FirstDifference(exam.Question(n), back.Question(++slot)) : std::string("left out");
      if (!difference.empty() && !IsTold(foreseen.losses, n))
        ADD_FAILURE() << seed << " " << n << ": " << difference;
      const bool holdsAll = format.held.essay && format.held.modelAnswer;
      if (isHeld && holdsAll && !IsKnown(exam.Question(n).kind)) {
        EXPECT_EQ(WhatVanished(exam.Question(n), back.Question(slot)), "") << seed << " " << n;
      }
    }
    const bool isAsBefore = exam.title == back.title && exam.examAttachmentPaths[0].empty() &&
                            exam.randomMode != RandomMode::Sequence;
    if (!isAsBefore && !IsTold(foreseen.losses, 0)) ADD_FAILURE() << seed << " " << Utf16ToUtf8(exam.title);
  }
}

/// What learning systems have and an exam has not. A table has columns for five options.
void AddForeignParts(ExchangedExam& exam, const ExchangedFile& file, bool isTable, unsigned seed) {
  std::mt19937 random(seed);
  for (ExchangedQuestion& question : exam.questions) {
    if (question.kind == QuestionKind::Choice && !isTable && random() % 2 == 0) {
      for (int i = 0; i < 6; ++i) question.options.push_back({u"further", i == 0});
    }
    // A table has one list of answers, in which a blank with two would move one without.
    const bool hasGaps = std::ranges::any_of(question.blanks, &BlankAnswers::empty);
    for (BlankAnswers& blank : question.blanks) {
      if (random() % 2 == 0 && !(isTable && hasGaps)) blank.push_back(u"another");
    }
    for (int i = 0; i < 12 && random() % 4 == 0; ++i) question.files.push_back(file);
  }
}

TEST_P(ToldLosses, OfWhatIsImported) {
  const FormatRow& format = *FormatNamed(GetParam());
  const ExchangedFile file{u"more.png", WriteBytes(folder / "more.png", "more")};
  for (unsigned seed = 1; seed <= 60; ++seed) {
    ExchangedExam foreign = RandomExam(folder.Path(), seed).Make(6);
    AddForeignParts(foreign, file, GetParam().ends_with("sv"), seed);
    ExchangeNotes ofNoInterest;
    const ExchangedExam held = HeldExam(format.held, foreign, ofNoInterest);
    ExchangeNotes notes;
    const ExchangedExam read = Read(format.writer()->Write(held, BuiltInStrings(), progress), notes);
    FrameSetExam exam(world.services);
    exam.SetHostMode(1);
    StoreExchanged(read, exam, 1, notes);
    ASSERT_EQ(read.questions.size(), held.questions.size()) << seed;
    for (std::size_t i = 0; i < held.questions.size(); ++i) {
      const ExchangedQuestion& question = held.questions[i];
      const ExamQuestion& stored = exam.Question(static_cast<int>(i + 1));
      std::size_t options = 0;
      for (const std::u16string& option : stored.options) options += option.empty() ? 0 : 1;
      std::size_t answers = stored.answerText.empty() ? 0 : 1;
      for (std::size_t at = stored.answerText.find(kListSeparator); at != std::u16string::npos;
           at = stored.answerText.find(kListSeparator, at + 1))
        ++answers;
      std::size_t wanted = 0;
      for (const BlankAnswers& blank : question.blanks) wanted += std::max<std::size_t>(1, blank.size());
      const auto files =
          std::ranges::count_if(stored.attachmentPaths, [](const auto& path) { return !path.empty(); });
      const bool isWhole = options == question.options.size() && answers == wanted &&
                           static_cast<std::size_t>(files) == question.files.size();
      if (!isWhole && !IsTold(notes.All(), read.questions[i].number))
        ADD_FAILURE() << seed << " " << question.number << " " << Utf16ToUtf8(stored.answerText);
    }
  }
}

TEST_P(ToldLosses, OfMoreThanAnExamTakes) {
  const std::pair<std::size_t, const char*> rows[] = {
      {500, ""},
      {501, "an exam takes 500 questions; 1 is left out"},
      {5000, "an exam takes 500 questions; 4500 are left out"},
      {5001,
       "no more than 5000 questions of a file are read, and this one goes on; an exam takes 500, the rest is "
       "left out"},
  };
  for (const auto& [count, told] : rows) {
    ExchangedExam foreign;
    ExchangedQuestion question;
    question.text = u"t";
    question.options = {{u"a", true}, {u"b", false}};
    for (std::size_t i = 1; i <= count; ++i) {
      question.number = static_cast<int>(i);
      foreign.questions.push_back(question);
    }
    ExchangeNotes notes;
    const ExchangedExam read =
        Read(FormatNamed(GetParam())->writer()->Write(foreign, BuiltInStrings(), progress), notes);
    FrameSetExam exam(world.services);
    exam.SetHostMode(1);
    EXPECT_EQ(StoreExchanged(read, exam, 1, notes), 501);
    std::string lines;
    for (const ExchangeNote& note : notes.All()) lines += Utf16ToUtf8(NoteLine(note, BuiltInStrings()));
    EXPECT_EQ(lines, told) << count;
  }
}

/// What stands between answers, and how many blanks a text has, divides answers in an exam.
TEST(ToldLossesOfAnswers, ThatWouldBeDividedOtherwise) {
  struct Row {
    const char16_t* text;
    std::vector<BlankAnswers> blanks;
    const char16_t* line;
    int told;
  };
  const Row rows[] = {
      {u"t", {{u"a<@>b", u"c"}}, u"a&lt;@>b<@>c", text_id::kExchangeSeparatorInAnswer},
      {u"___ ___", {{u"a", u"b"}}, u"a<@>b", text_id::kExchangeBecameBlanks},
      {u"___", {{u"a"}, {u"b"}}, u"a<@>b", text_id::kExchangeBecameAlternatives},
      {u"___ ___", {{u"a"}, {u"b"}}, u"a<@>b", 0},
  };
  const TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world(folder.Path(), files);
  for (const Row& row : rows) {
    ExchangedExam foreign;
    foreign.questions.push_back({1, QuestionKind::FillIn, row.text, {}, row.blanks, {}, {}, {}});
    FrameSetExam exam(world.services);
    exam.SetHostMode(1);
    ExchangeNotes notes;
    StoreExchanged(foreign, exam, 1, notes);
    EXPECT_EQ(exam.Question(1).answerText, row.line);
    EXPECT_EQ(notes.All().empty() ? 0 : notes.All()[0].text, row.told) << Utf16ToUtf8(row.line);
  }
}

TEST(ToldLossesOfManyQuestions, AreCounted) {
  ExchangeNotes notes;
  for (int n = 1; n <= 1500; ++n) {
    notes.Begin(n);
    notes.Tell(text_id::kExchangeFeedback);
    notes.Tell(text_id::kExchangeFeedback);
  }
  notes.Tell(text_id::kExchangeTable);
  ASSERT_EQ(notes.All().size(), 1002U);
  EXPECT_EQ(Utf16ToUtf8(NoteLine(notes.All().front(), BuiltInStrings())),
            "500 more notes of the same kinds are not listed");
  EXPECT_EQ(notes.All().back().text, text_id::kExchangeTable);
}

}  // namespace
}  // namespace quorvantis::test
