// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/MoodleConventions.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "exchange/moodle/GapChoices.h"
#include "exchange/moodle/MoodleFiles.h"
#include "exchange/moodle/MoodleTexts.h"
#include "exchange/moodle/MoodleXml.h"
#include "exchange/moodle/TrueFalseKey.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsTrueWord(std::u16string_view word) {
  return Trimmed(word) == u"true" || Trimmed(word) == u"1";
}

/// Reads one question.
class MoodleQuestion {
 public:
  MoodleQuestion(pugi::xml_node node, ReadingTools& tools) : node_(node), tools_(tools), texts_(tools) {}

  bool Read(ExchangedQuestion& question) {
    const std::string_view type = ValueOf(node_, "type");
    const TypeRow* const row = std::ranges::find(kTypes, type, &TypeRow::type);
    if (row == std::end(kTypes)) return Refuse(type);
    const pugi::xml_node text = ChildOf(node_, "questiontext");
    const bool isCloze = row->read == &MoodleQuestion::TakeCloze;
    question.text = isCloze ? texts_.ReadCloze(text, question) : texts_.Read(text, question);
    TakeOldPicture(node_, tools_, question);
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

  void TakeCloze(ExchangedQuestion& question) { question.kind = QuestionKind::FillIn; }

  std::vector<double> Fractions() const {
    std::vector<double> fractions;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer"))
      fractions.push_back(NumberIn(ValueOf(answer, "fraction"), 0));
    return fractions;
  }

  void TakeOptions(ExchangedQuestion& question) {
    question.kind = QuestionKind::Choice;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer"))
      question.options.push_back({texts_.ReadPart(answer, question), false});
    std::vector<double> fractions = Fractions();
    if (IsTrueWord(ContentOfChild(node_, "single"))) RaiseBest(fractions, question.options);
    DecideRights(fractions, question.options, tools_.notes);
  }

  /// Where one option is to be chosen and none scores all, that is right which scores most.
  void RaiseBest(std::vector<double>& fractions, const std::vector<ExchangedOption>& options) {
    const auto best = std::max_element(fractions.begin(), fractions.end());
    if (best == fractions.end() || *best <= 0 || *best >= kFullFraction) return;
    if (std::count(fractions.begin(), fractions.end(), *best) > 1) return;
    *best = 100;
    const auto number = static_cast<std::size_t>(best - fractions.begin());
    tools_.notes.Tell(text_id::kExchangeBestOption, {Excerpt(options[number].text)});
  }

  void ReadTrueFalse(ExchangedQuestion& question) {
    const std::vector<double> fractions = Fractions();
    const double most = fractions.empty() ? 0 : *std::max_element(fractions.begin(), fractions.end());
    std::vector<ExchangedOption> answers;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const double fraction = fractions[answers.size()];
      answers.push_back({texts_.ReadPart(answer, question), fraction > 0 && fraction >= most});
    }
    TakeTrueFalse(answers, tools_.strings, question, tools_.notes);
  }

  void TakeAlternatives(ExchangedQuestion& question) {
    question.kind = QuestionKind::FillIn;
    BlankAnswers answers;
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const std::u16string text = ContentOfChild(answer, "text");
      const double fraction = NumberIn(ValueOf(answer, "fraction"), 0);
      if (Trimmed(text).empty()) continue;
      if (fraction <= 0) {
        if (Trimmed(text) != u"*") tools_.notes.Tell(text_id::kExchangeWrongAnswer, {Excerpt(text)});
        continue;
      }
      if (fraction < kFullFraction) tools_.notes.Tell(text_id::kExchangePartlyRightAnswer, {Excerpt(text)});
      answers.push_back(PlainToExamText(WithoutProtectedStars(text, tools_.notes)));
    }
    if (Trimmed(ContentOfChild(node_, "usecase")) == u"1") tools_.notes.Tell(text_id::kExchangeCaseMatters);
    if (!answers.empty()) question.blanks = {answers};
  }

  void TakeNumbers(ExchangedQuestion& question) {
    TakeAlternatives(question);
    for (const pugi::xml_node answer : ChildrenOf(node_, "answer")) {
      const std::u16string margin = ContentOfChild(answer, "tolerance");
      if (NumberIn(Utf16ToUtf8(margin), 0) != 0)
        tools_.notes.Tell(text_id::kExchangeTolerance, {ContentOfChild(answer, "text") + u" ± " + margin});
    }
    TellUnits();
  }

  void TellUnits() {
    std::u16string names;
    for (const pugi::xml_node unit : ChildrenOf(ChildOf(node_, "units"), "unit")) {
      const std::u16string name(Trimmed(ContentOfChild(unit, "unit_name")));
      if (!name.empty()) names.append(names.empty() ? u"" : u", ").append(name);
    }
    if (!names.empty()) tools_.notes.Tell(text_id::kExchangeUnits, {Excerpt(names)});
  }

  void TakeEssay(ExchangedQuestion& question) {
    const bool isOral = Trimmed(ContentOfChild(node_, "responseformat")) == u"noinline" &&
                        Trimmed(ContentOfChild(node_, "attachmentsrequired")) == u"1";
    question.kind = isOral ? QuestionKind::Oral : QuestionKind::Essay;
    const ReadMarkup read = texts_.ReadAlone(ChildOf(node_, "graderinfo"));
    // Its pictures are no part of the question, which pupils see.
    for (const MarkupReference& reference : read.references)
      tools_.notes.Tell(text_id::kExchangeReferenceLost, {Excerpt(reference.address)});
    question.modelAnswer = read.text;
    TellAnswerBegin();
  }

  /// Tells of what stands in the field for the answer before a pupil writes into it.
  void TellAnswerBegin() {
    const pugi::xml_node begin = ChildOf(node_, "responsetemplate");
    if (!HasText(begin)) return;
    const std::u16string words = ExamTextToPlain(texts_.ReadAlone(begin).text);
    if (!words.empty()) tools_.notes.Tell(text_id::kExchangeAnswerBegin, {Excerpt(words)});
  }

  void TakePairs(ExchangedQuestion& question) {
    std::vector<std::pair<std::u16string, std::u16string>> pairs;
    for (const pugi::xml_node pair : ChildrenOf(node_, "subquestion"))
      pairs.emplace_back(LeftOf(pair, question),
                         PlainToExamText(ContentOfChild(ChildOf(pair, "answer"), "text")));
    MakeMatching(pairs, question, tools_.notes);
  }

  /// A pair without a left side is a wrong right side, but one whose picture is missing is not.
  std::u16string LeftOf(pugi::xml_node pair, ExchangedQuestion& question) {
    std::u16string left = texts_.ReadPart(pair, question);
    const bool isMissing = left.empty() && ContentOfChild(pair, "text").find(u"<img") != left.npos;
    return isMissing ? std::u16string(u"…") : left;
  }

  void ReadGaps(ExchangedQuestion& question) {
    std::vector<std::u16string> choices;
    for (const pugi::xml_node choice : node_.children()) {
      // What is dragged may have markup; a list to choose from shows characters.
      if (LocalName(choice) == "dragbox") choices.push_back(texts_.ReadAlone(choice).text);
      if (LocalName(choice) == "selectoption")
        choices.push_back(PlainToExamText(ContentOfChild(choice, "text")));
    }
    TakeGaps(choices, question, tools_.notes);
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
  MoodleTexts texts_;
};

const MoodleQuestion::TypeRow MoodleQuestion::kTypes[] = {
    {"multichoice", &MoodleQuestion::TakeOptions}, {"multichoiceset", &MoodleQuestion::TakeOptions},
    {"truefalse", &MoodleQuestion::ReadTrueFalse}, {"shortanswer", &MoodleQuestion::TakeAlternatives},
    {"numerical", &MoodleQuestion::TakeNumbers},   {"essay", &MoodleQuestion::TakeEssay},
    {"matching", &MoodleQuestion::TakePairs},      {"cloze", &MoodleQuestion::TakeCloze},
    {"multianswer", &MoodleQuestion::TakeCloze},   {"gapselect", &MoodleQuestion::ReadGaps},
    {"ddwtos", &MoodleQuestion::ReadGaps},
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
