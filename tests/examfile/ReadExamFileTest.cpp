// SPDX-License-Identifier: MIT
#include "ExamFileTest.h"
#include "examfile/ExamFileReader.h"

#include <sys/stat.h>

namespace quorvantis::test {
namespace {

TypedQuestion Full(const std::u16string& kind, std::vector<TypedFile> files = {}) {
  return {.kind = kind,
          .text = u"Text\u0401" + kind,
          .options = {u"A", u"B", u"C", u"D", u"\u0400E"},
          .letters = u"ca",
          .answer = u"red<@>blue",
          .essay = u"essay",
          .files = std::move(files)};
}

class AnyForm : public ExamFileTest, public testing::WithParamInterface<Form> {
 protected:
  const Form& form = GetParam();
  const bool hasFiles = form.fileName > 0;
};

INSTANTIATE_TEST_SUITE_P(ReadExamFile, AnyForm, testing::ValuesIn(AllForms()),
                         [](const auto& param) { return param.param.name; });

TEST_P(AnyForm, FillsTheHeaderAndCleansEveryQuestionByItsKind) {
  TypedExam typed{.title = u"T\u0400itle", .score = form.current ? u"1000.25" : u"3"};
  const struct {
    std::u16string kind;
    bool options, answer, essay;
    int mask;
  } rows[] = {{u"0", true, false, false, 20}, {u"1", false, true, false, 0}, {u"2", false, false, true, 0},
              {u"3", false, false, false, 0}, {u"9", true, true, true, 0},   {u"3", false, false, false, 0}};
  for (const auto& row : rows) typed.questions.push_back(Full(row.kind));
  exam.hasOralQuestion = exam.firstOralQuestion = 77;
  Read(Type(form, typed).bytes);

  EXPECT_EQ(world.debug.lines, Messages{PathToText(folder / "read.exm")});
  EXPECT_EQ(exam.title, form.titleStart + u"T\u0400itle");
  EXPECT_EQ(exam.randomMode, RandomMode::Sequence);
  EXPECT_EQ(exam.scoreMode, ScoreMode::Custom);
  EXPECT_EQ(exam.scoreFrom, (std::array{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_EQ(exam.scoreTo, (std::array{51, 52, 53, 54, 55, 56, 57, 58, 59, 60}));
  for (const float score : exam.scoreValue) EXPECT_EQ(score, form.current ? 1000.25F : 3.F);
  EXPECT_EQ(exam.boundaryQuestion, hasFiles ? 7 : 0);
  EXPECT_EQ(exam.questionCount, 6);
  for (std::size_t i = 0; i < 6; ++i) {
    const ExamQuestion& question = exam.questions[i + 1];
    EXPECT_EQ(Digits(static_cast<std::size_t>(question.kind)), rows[i].kind);
    EXPECT_EQ(question.text, u"Text\u0401" + rows[i].kind);
    EXPECT_EQ(question.options, rows[i].options ? Full(u"").options : decltype(question.options)()) << i;
    EXPECT_EQ(question.answerLetters, u"ca");
    EXPECT_EQ(question.answerMask, rows[i].mask) << i;
    EXPECT_EQ(question.answerText, rows[i].answer ? u"red<@>blue" : u"") << i;
    EXPECT_EQ(question.essayAnswer, rows[i].essay ? u"essay" : u"") << i;
  }
  EXPECT_EQ(exam.hasOralQuestion, form.current ? 1 : 77);
  EXPECT_EQ(exam.firstOralQuestion, form.current ? 4 : 77);
  EXPECT_EQ(exam.examFilesUnpacked + exam.questionFilesUnpacked, 0);
  EXPECT_TRUE(world.dialogs.errors.empty() && world.dialogs.warnings.empty());
}

TEST_P(AnyForm, EndsATextThatFillsItsFieldAtTheFieldsEnd) {
  const std::size_t half = form.units == Units::WideInBytes ? 2 : 1;
  const auto full = [&](std::size_t width) { return std::u16string(width / half, u'\u0410'); };
  TypedQuestion question{.kind = u"1", .text = full(4096), .letters = full(16), .answer = full(256)};
  Read(Type(form, {.title = full(256), .questions = {question, {.kind = u"2", .essay = full(4096)}}}).bytes);
  EXPECT_EQ(exam.title, (form.titleStart + full(256)).substr(0, 256 / half));
  EXPECT_EQ(exam.Question(1).text, question.text);
  EXPECT_EQ(exam.Question(1).answerLetters, question.letters);
  EXPECT_EQ(exam.Question(1).answerText, question.answer);
  EXPECT_EQ(exam.Question(2).essayAnswer, full(4096));
}

TEST_P(AnyForm, UnpacksFilesUnderNamesOfTheirOwn) {
  TypedExam typed{.questions = {Full(u"0"), Full(u"0"), Full(u"0")}};
  if (hasFiles) {
    typed.files = {{u"a.doc", "exam"}, {u"a name that fills 32 characters.", std::string(1500000, 'x')}};
    typed.questions[0].files = {{u"a.doc", "one"}, {u"none.doc", ""}, {u"negative.doc", "", u"-5"}};
    typed.questions[1].files = {{u"none.doc", "some"}, {u"a.doc", "two"}, {u"\u0400.doc", "wide"}};
  }
  typed.questions[0].oralFlag = "\x01\0"s;
  typed.questions[1].oralFlag = "\x02\x01"s;
  for (int n = 1; n <= 3; ++n) exam.Question(n).oralFlag = 5;
  WriteBytes(work / "earlier" / "copy", "of another exam");
  Read(Type(form, typed).bytes);

  const auto check = [&](const auto& paths, const auto& names, const auto& from, const auto& unpackedAs) {
    for (std::size_t i = 0; i < from.size(); ++i) {
      const std::filesystem::path file = work / unpackedAs[i];
      EXPECT_EQ(paths[i], PathToText(file));
      EXPECT_EQ(names[i], from[i].name);
      EXPECT_EQ(std::filesystem::exists(file), !from[i].content.empty()) << file;
      EXPECT_TRUE(ReadBytes(file) == from[i].content) << file;
    }
    EXPECT_EQ(paths[from.size()], u"");
  };
  using Names = std::vector<std::string>;
  const ExamQuestion &one = exam.Question(1), &two = exam.Question(2);
  check(exam.examAttachmentPaths, exam.examAttachmentNames, typed.files,
        Names{"a.doc", "a name that fills 32 characters."});
  check(one.attachmentPaths, one.attachmentNames, typed.questions[0].files,
        Names{"0a.doc", "none.doc", "negative.doc"});
  check(two.attachmentPaths, two.attachmentNames, typed.questions[1].files,
        Names{"0none.doc", "1a.doc", "\xD0\x80.doc"});
  EXPECT_EQ(one.oralFlag, form.units == Units::Wide ? 1 : form.current ? 0 : 5);
  EXPECT_EQ(two.oralFlag, form.current ? 0 : 5);
  EXPECT_EQ(exam.Question(3).oralFlag, 5);
  EXPECT_EQ(exam.Question(3).text, typed.questions[2].text);
  EXPECT_EQ(exam.examFilesUnpacked + exam.questionFilesUnpacked, hasFiles ? 2 : 0);
  EXPECT_FALSE(std::filesystem::exists(work / "earlier"));
  EXPECT_EQ(Surroundings(), kUntouched);
}

TEST_P(AnyForm, TakesALongAnswerFromBehindTheFiles) {
  const std::u16string whole(1024, u'\u0410');
  TypedQuestion question{.kind = u"1", .answer = u"ExcessTextAns", .longAnswer = whole};
  if (hasFiles) question.files = {{u"a", "abc"}};
  TypedQuestion almost{.kind = u"1", .answer = u"ExcessTextAns "};
  TypedQuestion emptied{.kind = u"2", .answer = u"ExcessTextAns", .longAnswer = u"gone"};
  Read(Type(form, {.questions = {question, almost, emptied, Full(u"1")}}).bytes);
  EXPECT_EQ(exam.Question(1).answerText, form.current ? whole : u"ExcessTextAns");
  EXPECT_EQ(exam.Question(2).answerText, u"ExcessTextAns ");
  EXPECT_EQ(exam.Question(3).answerText, u"");
  EXPECT_EQ(exam.Question(4).text, Full(u"1").text);
}

TEST_P(AnyForm, TakesAtMost500QuestionsAndTenFiles) {
  TypedExam typed{.questions = std::vector<TypedQuestion>(501, {.kind = u"0", .text = u"x"})};
  if (hasFiles) typed.files = typed.questions[0].files = std::vector<TypedFile>(12, {u"f", "content"});
  Read(Type(form, typed).bytes);
  const int count = form.units == Units::WideInBytes ? 50 : 500;  // such a field has room for two digits
  EXPECT_EQ(exam.questionCount, count);
  EXPECT_EQ(exam.Question(count).text, u"x");
  EXPECT_EQ(exam.examAttachmentPaths[9], hasFiles ? PathToText(work / "8f") : u"");
  EXPECT_EQ(exam.Question(1).attachmentPaths[9], hasFiles ? PathToText(work / "18f") : u"");
  EXPECT_FALSE(std::filesystem::exists(work / "19f"));
  const PassedOver& passedOver = exam.lastRead->passedOver;
  EXPECT_EQ(passedOver.examFiles, hasFiles ? 2 : 0);
  EXPECT_EQ(passedOver.questionFiles, hasFiles ? 2 : 0);
  EXPECT_EQ(passedOver.firstQuestion, hasFiles ? 1 : 0);
  EXPECT_EQ(passedOver.questions, count == 500 ? 1 : 0);
  EXPECT_EQ(world.dialogs.warnings.size(), passedOver.IsAnything() ? 1U : 0U);
}

TEST_P(AnyForm, FindsTheQuestionsWhereNoFileCanBeCreated) {
  TypedExam typed{.questions = {Full(u"1"), Full(u"0")}};
  if (hasFiles) typed.files = typed.questions[0].files = {{u"a", "first"}, {u"b", "second"}};
  WriteBytes(application / "TEMP", "a file where the folder should be");
  Read(Type(form, typed).bytes);
  EXPECT_EQ(world.dialogs.warnings, hasFiles ? Messages{u"[103 %s]"} : Messages());
  EXPECT_EQ(exam.Question(1).text, typed.questions[0].text);
  EXPECT_EQ(exam.Question(2).text, typed.questions[1].text);
  EXPECT_EQ(exam.Question(1).attachmentNames[1], hasFiles ? u"b" : u"");
  EXPECT_EQ(exam.examAttachmentNames[1], u"") << "the first failure ends the unpacking of exam-level files";
}

TEST_P(AnyForm, ReadsTheSameWithoutUnpackingAnything) {
  struct Listed : AttachmentSink {
    std::vector<std::string> files;
    void Begin(int question, unsigned slot, const std::u16string& name) override {
      files.push_back(std::to_string(question) + "/" + std::to_string(slot) + PathFromText(name) + "=");
    }
    void Content(std::string_view bytes) override { files.back() += bytes; }
    static std::string PathFromText(const std::u16string& name) { return TextToPath(name).string(); }
  } sink;
  TypedExam typed{.title = u"Title", .questions = {Full(u"0"), Full(u"1")}};
  if (hasFiles) {
    typed.files = {{u"../a", "first"}};
    typed.questions[1].files = {{u"none", "", u"-5"}, {u"b", "second"}};
  }
  const std::string bytes = Type(form, typed).bytes;
  Read(bytes);
  FrameSetExam other(world.services);
  const ExamReadOutcome outcome =
      ReadWithoutUnpacking(other, world.services, WriteBytes(folder / "other.exm", bytes), sink);
  EXPECT_TRUE(outcome.opened);
  EXPECT_EQ(outcome.form.version, exam.lastRead->form.version);
  EXPECT_EQ(other.readDoubt, exam.readDoubt);
  EXPECT_EQ(other.title, exam.title);
  for (int n = 1; n <= 2; ++n) {
    EXPECT_EQ(other.Question(n).text, exam.Question(n).text);
    EXPECT_EQ(other.Question(n).answerText, exam.Question(n).answerText);
    EXPECT_EQ(other.Question(n).attachmentNames, exam.Question(n).attachmentNames);
    EXPECT_EQ(other.Question(n).attachmentPaths, AttachmentList());
  }
  using Files = std::vector<std::string>;
  EXPECT_EQ(sink.files, hasFiles ? Files({"0/0../a=first", "2/0none=", "2/1b=second"}) : Files());
}

using ReadExamFile = ExamFileTest;

TEST_F(ReadExamFile, IsHandedOnByTheReadersOfOtherVersions) {
  const auto versionReadBy = [this](auto reader, const Form& form) {
    const auto file = WriteBytes(folder / "read.exm", Type(form, {.title = u"title"}).bytes);
    exam.Reset();
    (exam.*reader)(file);
    return std::string(exam.lastRead->form.version->name);
  };
  const auto& forms = AllForms();
  const Form &v202 = forms[2], &v0214 = forms[3], &untagged = forms[4];
  EXPECT_EQ(versionReadBy(&FrameSetExam::ReadExamFileV202, v202), "v202");
  EXPECT_EQ(versionReadBy(&FrameSetExam::ReadExamFileV202, v0214), "0214");
  EXPECT_EQ(versionReadBy(&FrameSetExam::ReadExamFileV202, untagged), "untagged");
  EXPECT_EQ(versionReadBy(&FrameSetExam::ReadExamFile0214, v0214), "0214");
  EXPECT_EQ(versionReadBy(&FrameSetExam::ReadExamFile0214, v202), "untagged");
}

TEST_F(ReadExamFile, SaysWhichFileCannotBeOpened) {
  std::filesystem::create_directory(folder / "folder.exm");
  ASSERT_EQ(mkfifo((folder / "pipe.exm").c_str(), 0600), 0);
  exam.title = u"as it was";
  const std::u16string gone = u"[1129 %s]";
  const std::pair<std::string, std::u16string> rows[] = {
      {"folder.exm", u"[1135 %s]"}, {"pipe.exm", u"Operation not supported"},
      {"missing.exm", gone},        {"no/such/folder.exm", gone},
      {"odd\xFF.exm", gone},        {std::string(300, 'x'), u"[1137 %s]"}};
  Messages expected;
  for (const auto& [name, why] : rows) {
    exam.ReadExamFile(folder / name);
    expected.push_back(u"[102 " + PathToText(folder / name) + u"]\n" + why);
  }
  EXPECT_EQ(world.dialogs.errors, expected);
  EXPECT_EQ(exam.title, u"as it was");
}

TEST_F(ReadExamFile, SparesTheExamThatLiesInTheWorkFolder) {
  const std::string bytes = Type(AllForms()[0], {.files = {{u"my.exm", "namesake"}}}).bytes;
  const auto deeper = WriteBytes(work / "deeper" / "my.exm", bytes);
  exam.ReadExamFile(folder / "beside/../app/TEMP/ExamPreview/~tt/deeper/my.exm");
  EXPECT_EQ(ReadBytes(deeper), bytes);
  const auto inPlace = WriteBytes(work / "my.exm", bytes);
  exam.ReadExamFile(inPlace);
  EXPECT_EQ(ReadBytes(inPlace), bytes);
  EXPECT_EQ(exam.examAttachmentPaths[0], PathToText(work / "0my.exm"));
  EXPECT_FALSE(std::filesystem::exists(deeper));
}

}  // namespace
}  // namespace quorvantis::test
