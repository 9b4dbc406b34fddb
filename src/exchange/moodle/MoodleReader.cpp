// SPDX-License-Identifier: MIT
#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/MoodleConventions.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Addresses.h"
#include "exchange/markup/MarkupNotes.h"
#include "exchange/moodle/ClozeText.h"
#include "exchange/moodle/MoodleXml.h"
#include "exchange/xml/Base64.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/Utf.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

bool IsTrueWord(std::u16string_view word) {
  return Trimmed(word) == u"true" || Trimmed(word) == u"1";
}

/// The files inside one element, kept when they are referred to.
class FilesInside {
 public:
  FilesInside(pugi::xml_node element, ReadingTools& tools) : tools_(tools) {
    for (const pugi::xml_node file : ChildrenOf(element, "file"))
      nodes_.emplace_back(TextOf(ValueOf(file, "name")), file);
  }

  std::optional<ExchangedFile> Find(std::u16string_view address) {
    if (!address.starts_with(kMoodleFiles)) return std::nullopt;
    const std::u16string name = FileNameIn(address);
    const auto node = std::ranges::find(nodes_, name, &std::pair<std::u16string, pugi::xml_node>::first);
    return node != nodes_.end() ? Keep(*node) : std::nullopt;
  }

  /// Those that nothing has referred to, too.
  void TakeRest(ExchangedQuestion& question) {
    for (const auto& node : nodes_) {
      if (kept_.contains(node.first)) continue;
      if (auto file = Keep(node)) question.files.push_back(std::move(*file));
    }
  }

 private:
  std::optional<ExchangedFile> Keep(const std::pair<std::u16string, pugi::xml_node>& node) {
    const auto known = kept_.find(node.first);
    if (known != kept_.end()) return known->second;
    const auto bytes = FromBase64(node.second.text().get());
    if (!bytes) tools_.notes.Tell(text_id::kExchangePartNotRead, {node.first});
    auto file = bytes ? tools_.files.Keep(node.first, *bytes) : std::nullopt;
    kept_[node.first] = file;
    return file;
  }

  ReadingTools& tools_;
  std::vector<std::pair<std::u16string, pugi::xml_node>> nodes_;
  std::map<std::u16string, std::optional<ExchangedFile>> kept_;
};

/// Reads one question.
class MoodleQuestion {
 public:
  MoodleQuestion(pugi::xml_node node, ReadingTools& tools) : node_(node), tools_(tools) {}

  bool Read(ExchangedQuestion& question) {
    const std::string_view type = ValueOf(node_, "type");
    const TypeRow* const row = std::ranges::find(kTypes, type, &TypeRow::type);
    if (row == std::end(kTypes)) return Refuse(type);
    question.text = type == "cloze" ? ReadCloze(question) : TextIn(ChildOf(node_, "questiontext"), question);
    (this->*row->read)(question);
    ReadGrade(question);
    TellRest();
    return true;
  }

 private:
  struct TypeRow {
    std::string_view type;
    void (MoodleQuestion::*read)(ExchangedQuestion& question);
  };

  static const TypeRow kTypes[11];

  bool Refuse(std::string_view type) {
    const std::u16string words =
        Excerpt(ExamTextToPlain(ReadHtml(ContentOfChild(ChildOf(node_, "questiontext"), "text")).text));
    if (type == "description") {
      tools_.notes.Tell(text_id::kExchangeDescription, {words});
    } else {
      tools_.notes.Tell(text_id::kExchangeTypeNotRead, {Excerpt(TextOf(type)), words});
    }
    return false;
  }

  /// What a text means depends on its format.
  static ReadMarkup ReadAs(std::string_view format, std::u16string_view text) {
    if (format == "plain_text" || format == "markdown") return {PlainToExamText(text), {}, {}};
    return format == "moodle_auto_format" ? ReadExamText(text) : ReadHtml(text);
  }

  std::u16string TextIn(pugi::xml_node element, ExchangedQuestion& question) {
    FilesInside files(element, tools_);
    HtmlReading reading(tools_, [&files](std::u16string_view address) { return files.Find(address); });
    std::u16string text =
        reading.Take(ReadAs(ValueOf(element, "format"), ContentOfChild(element, "text")), question);
    files.TakeRest(question);
    return text;
  }

  std::u16string ReadCloze(ExchangedQuestion& question) {
    const pugi::xml_node element = ChildOf(node_, "questiontext");
    quorvantis::ReadCloze cloze = ReadClozeHtml(ContentOfChild(element, "text"), tools_.notes);
    question.blanks = std::move(cloze.blanks);
    FilesInside files(element, tools_);
    HtmlReading reading(tools_, [&files](std::u16string_view address) { return files.Find(address); });
    std::u16string text = reading.Read(cloze.html, question);
    files.TakeRest(question);
    return text;
  }

  void TakeCloze(ExchangedQuestion& question) { question.kind = QuestionKind::FillIn; }

  std::vector<double> Fractions() const {
    std::vector<double> fractions;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer"))
      fractions.push_back(NumberIn(ValueOf(answer, "fraction"), 0));
    return fractions;
  }

  void TakeOptions(ExchangedQuestion& question) {
    question.kind = QuestionKind::Choice;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const std::size_t files = question.files.size();
      question.options.push_back({TextIn(answer, question), false});
      TellFilesOfOption(question, files, tools_.notes);
    }
    DecideRights(Fractions(), question.options, tools_.notes);
  }

  void TakeTrueFalse(ExchangedQuestion& question) {
    bool isTrue = false;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const bool isRight = NumberIn(ValueOf(answer, "fraction"), 0) > 0;
      if (isRight) isTrue = Trimmed(ContentOfChild(answer, "text")) == u"true";
    }
    MakeTrueFalse(isTrue, tools_.strings, question);
  }

  void TakeAlternatives(ExchangedQuestion& question) {
    question.kind = QuestionKind::FillIn;
    BlankAnswers answers;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const std::u16string text = ContentOfChild(answer, "text");
      const double fraction = NumberIn(ValueOf(answer, "fraction"), 0);
      if (fraction <= 0 || Trimmed(text).empty()) continue;
      if (fraction < kFullFraction) tools_.notes.Tell(text_id::kExchangePartlyRightAnswer, {Excerpt(text)});
      answers.push_back(PlainToExamText(WithoutProtectedStars(text, tools_.notes)));
    }
    if (!answers.empty()) question.blanks = {answers};
  }

  void TakeNumbers(ExchangedQuestion& question) {
    TakeAlternatives(question);
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const std::u16string margin = ContentOfChild(answer, "tolerance");
      if (NumberIn(Utf16ToUtf8(margin), 0) != 0)
        tools_.notes.Tell(text_id::kExchangeTolerance, {ContentOfChild(answer, "text") + u" ± " + margin});
    }
  }

  void TakeEssay(ExchangedQuestion& question) {
    const bool isOral = Trimmed(ContentOfChild(node_, "responseformat")) == u"noinline" &&
                        Trimmed(ContentOfChild(node_, "attachmentsrequired")) == u"1";
    question.kind = isOral ? QuestionKind::Oral : QuestionKind::Essay;
    const pugi::xml_node information = ChildOf(node_, "graderinfo");
    const ReadMarkup read = ReadAs(ValueOf(information, "format"), ContentOfChild(information, "text"));
    TellMarkupLosses(read.losses, tools_.notes);
    // Its pictures are no part of the question, which pupils see.
    for (const MarkupReference& reference : read.references)
      tools_.notes.Tell(text_id::kExchangeReferenceLost, {Excerpt(reference.address)});
    question.modelAnswer = read.text;
  }

  void TakePairs(ExchangedQuestion& question) {
    std::vector<std::pair<std::u16string, std::u16string>> pairs;
    for (const pugi::xml_node pair : ChildrenOf(node_, "subquestion"))
      pairs.emplace_back(TextIn(pair, question),
                         PlainToExamText(ContentOfChild(ChildOf(pair, "answer"), "text")));
    MakeMatching(pairs, question, tools_.notes);
  }

  /// "[[1]]" in the text is the place of a choice, numbered from 1 on.
  void TakeGaps(ExchangedQuestion& question) {
    question.kind = QuestionKind::FillIn;
    std::vector<std::u16string> choices;
    for (const pugi::xml_node choice : node_.children()) {
      if (LocalName(choice) == "selectoption" || LocalName(choice) == "dragbox")
        choices.push_back(PlainToExamText(ContentOfChild(choice, "text")));
    }
    std::u16string text;
    const std::u16string source = std::move(question.text);
    for (std::size_t at = 0; at < source.size();) {
      const std::size_t begin = std::min(source.find(u"[[", at), source.size());
      const std::size_t end = source.find(u"]]", begin);
      text.append(source, at, begin - at);
      if (end == source.npos) {
        text.append(source, begin);
        break;
      }
      const auto number = static_cast<std::size_t>(
          NumberIn(Utf16ToUtf8(source.substr(begin + 2, std::min<std::size_t>(end - begin - 2, 8))), 0));
      text += kBlank;
      question.blanks.push_back(number >= 1 && number <= choices.size() ? BlankAnswers{choices[number - 1]}
                                                                        : BlankAnswers{});
      at = end + 2;
    }
    question.text = text;
    for (std::size_t i = 0; i < choices.size(); ++i)
      question.text += (i == 0 ? u"\r\n(" : u" / ") + choices[i];
    if (!choices.empty()) question.text += u")";
    tools_.notes.Tell(text_id::kExchangeInlineChoices);
  }

  void ReadGrade(ExchangedQuestion& question) {
    const double grade = NumberIn(Utf16ToUtf8(ContentOfChild(node_, "defaultgrade")), -1);
    if (grade >= 0) question.score = grade;
  }

  bool HasText(pugi::xml_node element) const { return !Trimmed(ContentOfChild(element, "text")).empty(); }

  void TellRest() {
    bool hasFeedback = false;
    for (const pugi::xml_node child : node_.children()) {
      const std::string_view name = LocalName(child);
      if (name.ends_with("feedback") || name == "hint") hasFeedback = hasFeedback || HasText(child);
      if (name == "answer") hasFeedback = hasFeedback || HasText(ChildOf(child, "feedback"));
    }
    if (hasFeedback) tools_.notes.Tell(text_id::kExchangeFeedback);
    if (!ChildrenOf(ChildOf(node_, "tags"), "tag").empty()) tools_.notes.Tell(text_id::kExchangeTagsLeftOut);
  }

  pugi::xml_node node_;
  ReadingTools& tools_;
};

const MoodleQuestion::TypeRow MoodleQuestion::kTypes[] = {
    {"multichoice", &MoodleQuestion::TakeOptions}, {"multichoiceset", &MoodleQuestion::TakeOptions},
    {"truefalse", &MoodleQuestion::TakeTrueFalse}, {"shortanswer", &MoodleQuestion::TakeAlternatives},
    {"numerical", &MoodleQuestion::TakeNumbers},   {"essay", &MoodleQuestion::TakeEssay},
    {"matching", &MoodleQuestion::TakePairs},      {"cloze", &MoodleQuestion::TakeCloze},
    {"multianswer", &MoodleQuestion::TakeCloze},   {"gapselect", &MoodleQuestion::TakeGaps},
    {"ddwtos", &MoodleQuestion::TakeGaps},
};

/// Reads the questions of one file.
class MoodleQuizReading {
 public:
  explicit MoodleQuizReading(ReadingTools& tools) : tools_(tools) {}

  ExchangedExam Read(pugi::xml_node quiz) {
    const std::vector<pugi::xml_node> nodes = ChildrenOf(quiz, "question");
    int number = 0;
    for (const pugi::xml_node node : nodes) {
      if (tools_.progress.IsCancelled()) break;
      tools_.progress.Report(static_cast<std::uint64_t>(number), nodes.size());
      if (ValueOf(node, "type") == "category") {
        TakeCategory(node);
        continue;
      }
      exam_.isCutShort = exam_.questions.size() >= kMaxReadQuestions;
      if (exam_.isCutShort) break;
      tools_.notes.Begin(++number);
      ExchangedQuestion question;
      question.number = number;
      if (MoodleQuestion(node, tools_).Read(question)) {
        TakeShuffling(node);
        exam_.questions.push_back(std::move(question));
      }
    }
    exam_.shufflesOptions = shuffled_ > 0 && notShuffled_ == 0;
    return std::move(exam_);
  }

 private:
  void TakeCategory(pugi::xml_node node) {
    const std::u16string path = ContentOfChild(ChildOf(node, "category"), "text");
    const std::u16string title = PlainToExamText(TitleOfCategory(Trimmed(path)));
    if (title.empty() || title == exam_.title) return;
    if (exam_.questions.empty()) {
      exam_.title = title;
    } else {
      tools_.notes.Begin(0);
      tools_.notes.Tell(text_id::kExchangeOtherCategory, {Excerpt(title)});
    }
  }

  void TakeShuffling(pugi::xml_node node) {
    if (ValueOf(node, "type") != "multichoice") return;
    ++(IsTrueWord(ContentOfChild(node, "shuffleanswers")) ? shuffled_ : notShuffled_);
  }

  ReadingTools& tools_;
  ExchangedExam exam_;
  int shuffled_ = 0;
  int notShuffled_ = 0;
};

}  // namespace

bool LooksLikeMoodleXml(const ExchangeSource& source) {
  const std::string head = source.HeadOfXml();
  constexpr std::string_view kBeforeXml = " \t\r\n\xEF\xBB\xBF\xFE\xFF";
  const std::size_t begin = head.find_first_not_of(kBeforeXml);
  const std::size_t quiz = head.find("<quiz");
  return begin < head.size() && head[begin] == '<' && quiz < 4096 &&
         (head.find("<question") != head.npos || head.find("</quiz>") != head.npos);
}

std::optional<ExchangedExam> MoodleXmlReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  auto bytes = source.Bytes(kMaxSourceFile);
  if (!bytes) {
    tools.notes.Tell(text_id::kExchangeSourceTooLarge);
    return std::nullopt;
  }
  pugi::xml_document document;
  if (!ParseForeignXml(std::move(*bytes), document, tools.notes)) return std::nullopt;
  return MoodleQuizReading(tools).Read(ChildOf(document, "quiz"));
}

}  // namespace quorvantis
