// SPDX-License-Identifier: MIT
#include "exchange/form/MoodleConventions.h"
#include "exchange/form/Points.h"
#include "exchange/markup/Addresses.h"
#include "exchange/markup/Markup.h"
#include "exchange/moodle/ClozeText.h"
#include "exchange/moodle/MoodleXml.h"
#include "exchange/xml/Base64.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Writes the questions of one exam.
class MoodleQuiz {
 public:
  MoodleQuiz(const ExchangedExam& exam, Progress& progress) : exam_(exam), progress_(progress), xml_(text_) {}

  std::string Text() {
    text_ = kXmlHead;
    xml_.Begin("quiz");
    if (!exam_.title.empty()) WriteCategory();
    std::uint64_t done = 0;
    for (const ExchangedQuestion& question : exam_.questions) {
      if (progress_.IsCancelled()) break;
      progress_.Report(done++, exam_.questions.size());
      WriteQuestion(question);
    }
    xml_.End("quiz");
    return std::move(text_);
  }

 private:
  void WriteText(std::string_view characters) {
    if (characters.empty()) return xml_.Empty("text");
    xml_.Raw("text", CdataOf(characters));
  }

  void WriteHtml(std::string_view element, std::u16string_view html,
                 XmlAttributes attributes = {{"format", "html"}}) {
    xml_.Begin(element, attributes);
    WriteText(Utf16ToUtf8(html));
    xml_.End(element);
  }

  void WriteCategory() {
    xml_.Begin("question", {{"type", "category"}});
    xml_.Begin("category");
    xml_.Text("text", "$course$/top/" + Utf16ToUtf8(WithoutSlashes(ExamTextToPlain(exam_.title))));
    xml_.End("category");
    xml_.End("question");
  }

  void WriteQuestion(const ExchangedQuestion& question) {
    const bool isCloze = question.blanks.size() > 1;
    xml_.Begin("question", {{"type", TypeOf(question)}});
    xml_.Begin("name");
    xml_.Text("text", NameOfQuestion(question));
    xml_.End("name");
    WriteQuestionText(question, isCloze);
    WriteHtml("generalfeedback", u"");
    xml_.Text("defaultgrade", PointsText(question.score.value_or(1)));
    xml_.Text("penalty", "0");
    xml_.Text("hidden", "0");
    WriteAnswers(question, isCloze);
    xml_.End("question");
  }

  static std::string TypeOf(const ExchangedQuestion& question) {
    switch (question.kind) {
      case QuestionKind::Choice:
        return "multichoice";
      case QuestionKind::FillIn:
        return question.blanks.size() > 1 ? "cloze" : "shortanswer";
      case QuestionKind::Essay:
      case QuestionKind::Oral:
        break;
    }
    return "essay";
  }

  void WriteQuestionText(const ExchangedQuestion& question, bool isCloze) {
    const std::vector<std::u16string> names = UniqueNames(question.files);
    std::vector<std::string> addresses;
    addresses.reserve(names.size());
    for (const std::u16string& name : names)
      addresses.push_back(Utf16ToUtf8(kMoodleFiles) + AddressPart(name));
    xml_.Begin("questiontext", {{"format", "html"}});
    const std::u16string html =
        isCloze ? ClozeText(question) : ExamTextToHtml(question.text, HtmlDialect::Html);
    WriteText(Utf16ToUtf8(html + HtmlOfFiles(question.files, addresses, HtmlDialect::Html)));
    for (std::size_t i = 0; i < names.size(); ++i) {
      xml_.Raw("file", ToBase64(BytesOf(question.files[i])),
               {{"name", Utf16ToUtf8(names[i])}, {"path", "/"}, {"encoding", "base64"}});
    }
    xml_.End("questiontext");
  }

  static std::u16string ClozeText(const ExchangedQuestion& question) {
    const std::size_t blanks = question.blanks.size();
    return ClozeHtml(question.text, question.blanks,
                     question.score ? WholeBlankScore(*question.score, blanks) : 1);
  }

  void WriteAnswers(const ExchangedQuestion& question, bool isCloze) {
    switch (question.kind) {
      case QuestionKind::Choice:
        return WriteOptions(question);
      case QuestionKind::FillIn:
        if (!isCloze) WriteAlternatives(question);
        return;
      case QuestionKind::Essay:
      case QuestionKind::Oral:
        return WriteEssay(question);
    }
  }

  void WriteAnswer(const std::string& fraction, std::string_view format, std::string_view characters) {
    xml_.Begin("answer", {{"fraction", fraction}, {"format", std::string(format)}});
    WriteText(characters);
    WriteHtml("feedback", u"");
    xml_.End("answer");
  }

  void WriteOptions(const ExchangedQuestion& question) {
    const auto rights =
        static_cast<std::size_t>(std::ranges::count_if(question.options, &ExchangedOption::isRight));
    xml_.Text("single", rights == 1 ? "true" : "false");
    xml_.Text("shuffleanswers", exam_.shufflesOptions ? "true" : "false");
    xml_.Text("answernumbering", "ABCD");
    for (const ExchangedOption& option : question.options) {
      // Where several are right, to tick them all must not be the best answer.
      const std::string wrong = rights > 1 ? "-100" : "0";
      WriteAnswer(option.isRight ? RightShare(rights) : wrong, "html",
                  Utf16ToUtf8(ExamTextToHtml(option.text, HtmlDialect::Html)));
    }
  }

  void WriteAlternatives(const ExchangedQuestion& question) {
    xml_.Text("usecase", "0");
    for (const BlankAnswers& blank : question.blanks) {
      for (const std::u16string& answer : blank)
        WriteAnswer("100", "moodle_auto_format", Utf16ToUtf8(WithProtectedStars(ExamTextToPlain(answer))));
    }
  }

  /// An oral answer is a recording that the pupil hands in.
  void WriteEssay(const ExchangedQuestion& question) {
    const bool isOral = question.kind == QuestionKind::Oral;
    xml_.Text("responseformat", isOral ? "noinline" : "editor");
    xml_.Text("responserequired", isOral ? "0" : "1");
    xml_.Text("responsefieldlines", "15");
    xml_.Text("attachments", isOral ? "1" : "0");
    xml_.Text("attachmentsrequired", isOral ? "1" : "0");
    WriteHtml("graderinfo", ExamTextToHtml(question.modelAnswer, HtmlDialect::Html));
    WriteHtml("responsetemplate", u"");
  }

  const ExchangedExam& exam_;
  Progress& progress_;
  std::string text_;
  XmlWriter xml_;
};

}  // namespace

std::string MoodleXmlWriter::Write(const ExchangedExam& exam, const StringTable&, Progress& progress) {
  return MoodleQuiz(exam, progress).Text();
}

}  // namespace quorvantis
