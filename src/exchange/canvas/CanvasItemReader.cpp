// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasItemReader.h"

#include "exchange/canvas/CanvasFormat.h"
#include "exchange/form/Blanks.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::string_view kFullScore = "SCORE.max";

std::vector<pugi::xml_node> LabelsOf(pugi::xml_node response) {
  return ElementsBelow(response, {"response_label"});
}

bool IsBelowNot(pugi::xml_node node) {
  for (pugi::xml_node above = node.parent(); above && LocalName(above) != "conditionvar";
       above = above.parent()) {
    if (LocalName(above) == "not") return true;
  }
  return false;
}

/// HTML with blanks for the names in brackets that stand in a span which tells their length.
std::u16string WithBlanksOfSpans(std::u16string_view html) {
  const std::u16string begin = u"<span class=\"" + std::u16string(kBlankClass);
  constexpr std::u16string_view kEnd = u"]</span>";
  std::u16string text;
  for (std::size_t at = 0; at < html.size();) {
    const std::size_t span = std::min(html.find(begin, at), html.size());
    const std::size_t bracket = html.find(u"\">[", span);
    const std::size_t end = bracket == html.npos ? bracket : html.find(kEnd, bracket);
    text += html.substr(at, span - at);
    if (end == html.npos) return text.append(html.substr(span));
    text += BlankOfClass(html.substr(span + begin.size() - kBlankClass.size(), bracket - span));
    at = end + kEnd.size();
  }
  return text;
}

}  // namespace

CanvasItemReader::CanvasItemReader(QtiPackage& package, std::string name, ReadingTools& tools)
    : package_(package),
      name_(std::move(name)),
      tools_(tools),
      html_(tools, [this](std::u16string_view address) { return Find(address); }) {}

bool CanvasItemReader::Read(pugi::xml_node item, ExchangedQuestion& question) {
  item_ = item;
  responses_ = ElementsBelow(ChildOf(item, "presentation"),
                             {"response_lid", "response_str", "response_num", "response_xy", "response_grp"});
  ReadComparisons();
  const std::string type = TypeOfItem();
  question.text = QuestionText(question);
  if (!TakeByType(type, question)) return Refuse(type, question);
  TakeFeedback(question);
  const double points = NumberIn(Field("points_possible"), -1);
  if (points >= 0) question.score = points;
  return true;
}

std::optional<ExchangedFile> CanvasItemReader::Find(std::u16string_view address) {
  for (const std::string_view base : {kCanvasFileBase, std::string_view("%24IMS-CC-FILEBASE%24/")}) {
    if (address.starts_with(TextOf(base)))
      return package_.FindAnywhere(TextOf(kCanvasFiles.substr(0, kCanvasFiles.size() - 1)) + u"/" +
                                   std::u16string(address.substr(base.size())));
  }
  return package_.Find(name_, address);
}

/// The texts of an element, and its pictures.
std::u16string CanvasItemReader::Material(pugi::xml_node owner, ExchangedQuestion& question) {
  std::u16string text;
  for (const pugi::xml_node part :
       ElementsBelow(owner, {"mattext", "mat_formattedtext", "matimage", "mataudio", "matvideo",
                             "response_lid", "response_str", "response_num", "render_choice"})) {
    const std::string_view name = LocalName(part);
    if (!name.starts_with("mat")) continue;
    if (name != "mattext" && name != "mat_formattedtext") {
      const std::u16string address = TextOf(ValueOf(part, "uri"));
      html_.Take({{}, {{address, {}, false}}, {}}, question);
      continue;
    }
    const std::u16string content = ContentOf(part);
    const bool isHtml = ValueOf(part, "texttype") != "text/plain";
    const std::u16string piece =
        isHtml ? html_.Read(WithBlanksOfSpans(content), question) : PlainToExamText(content);
    if (!text.empty() && !piece.empty()) text += u"\r\n";
    text += piece;
  }
  return text;
}

std::u16string CanvasItemReader::QuestionText(ExchangedQuestion& question) {
  return Material(ChildOf(item_, "presentation"), question);
}

std::string CanvasItemReader::Field(std::string_view label) const {
  for (const pugi::xml_node field : ElementsBelow(ChildOf(item_, "itemmetadata"), {"qtimetadatafield"})) {
    if (ChildOf(field, "fieldlabel").text().get() == label) return ChildOf(field, "fieldentry").text().get();
  }
  return {};
}

/// Where the type is not named, the responses tell it.
std::string CanvasItemReader::TypeOfItem() const {
  const std::string named = Field("question_type");
  if (!named.empty()) return named;
  if (responses_.empty()) return "text_only_question";
  const std::string_view first = LocalName(responses_[0]);
  if (first == "response_num") return "numerical_question";
  if (first == "response_lid")
    return responses_.size() > 1 ? "matching_question" : "multiple_answers_question";
  if (first != "response_str") return std::string(first);
  return comparisons_.empty() ? "essay_question" : "short_answer_question";
}

void CanvasItemReader::ReadComparisons() {
  for (const pugi::xml_node condition : ElementsBelow(ChildOf(item_, "resprocessing"), {"respcondition"})) {
    bool earns = false;
    for (const pugi::xml_node set : ChildrenOf(condition, "setvar"))
      earns = earns || NumberIn(set.text().get(), 0) > 0 || set.text().get() == kFullScore;
    for (const pugi::xml_node test : ElementsBelow(ChildOf(condition, "conditionvar"), {"varequal"})) {
      const std::string value = Utf16ToUtf8(Trimmed(ContentOf(test)));
      comparisons_.push_back({std::string(ValueOf(test, "respident")), value, earns && !IsBelowNot(test)});
    }
  }
}

bool CanvasItemReader::IsRight(std::string_view response, std::string_view value) const {
  return std::ranges::any_of(comparisons_, [=](const Comparison& comparison) {
    return comparison.earns && comparison.response == response && comparison.value == value;
  });
}

bool CanvasItemReader::TakeByType(std::string_view type, ExchangedQuestion& question) {
  question.kind = QuestionKind::FillIn;
  if (type == "multiple_choice_question" || type == "multiple_answers_question" ||
      type == "true_false_question") {
    question.kind = QuestionKind::Choice;
    TakeOptions(question);
  } else if (type == "short_answer_question") {
    TakeAnswers(question);
  } else if (type == "numerical_question") {
    TakeNumbers(question);
  } else if (type == "fill_in_multiple_blanks_question" || type == "multiple_dropdowns_question") {
    TakeNamedBlanks(type == "multiple_dropdowns_question", question);
  } else if (type == "matching_question") {
    TakePairs(question);
  } else if (type == "essay_question") {
    question.kind = QuestionKind::Essay;
  } else if (type == "file_upload_question") {
    question.kind = QuestionKind::Oral;
  } else {
    return false;
  }
  return true;
}

void CanvasItemReader::TakeOptions(ExchangedQuestion& question) {
  if (responses_.empty()) return;
  const std::string_view response = ValueOf(responses_[0], "ident");
  bool hasRight = false;
  for (const pugi::xml_node label : LabelsOf(responses_[0])) {
    const bool isRight = IsRight(response, ValueOf(label, "ident"));
    hasRight = hasRight || isRight;
    const std::size_t files = question.files.size();
    question.options.push_back({Material(label, question), isRight});
    TellFilesOfOption(question, files, tools_.notes);
  }
  if (!hasRight) tools_.notes.Tell(text_id::kExchangeNoRightRead);
}

void CanvasItemReader::TakeAnswers(ExchangedQuestion& question) {
  BlankAnswers answers;
  for (const Comparison& comparison : comparisons_) {
    std::u16string answer = PlainToExamText(TextOf(comparison.value));
    if (comparison.earns && !answer.empty() && std::ranges::find(answers, answer) == answers.end())
      answers.push_back(std::move(answer));
  }
  if (!answers.empty()) question.blanks = {std::move(answers)};
}

void CanvasItemReader::TakeNumbers(ExchangedQuestion& question) {
  TakeAnswers(question);
  for (const pugi::xml_node test : ElementsBelow(ChildOf(item_, "resprocessing"), {"vargte", "vargt"})) {
    const std::u16string low = ContentOf(test);
    pugi::xml_node end = test.next_sibling();
    while (end && LocalName(end) != "varlte" && LocalName(end) != "varlt") end = end.next_sibling();
    const std::u16string range =
        std::u16string(Trimmed(low)) + u".." + std::u16string(Trimmed(ContentOf(end)));
    tools_.notes.Tell(text_id::kExchangeTolerance, {range});
    if (question.blanks.empty()) question.blanks = {{PlainToExamText(range)}};
  }
}

/// "[name]" in the text is the blank of "response_name".
void CanvasItemReader::TakeNamedBlanks(bool isDropDown, ExchangedQuestion& question) {
  if (isDropDown) tools_.notes.Tell(text_id::kExchangeInlineChoices);
  for (const pugi::xml_node response : responses_) {
    const std::string_view identifier = ValueOf(response, "ident");
    BlankAnswers answers;
    std::u16string choices;
    for (const pugi::xml_node label : LabelsOf(response)) {
      std::u16string answer = Material(label, question);
      choices += (choices.empty() ? u"" : u" / ") + answer;
      if (IsRight(identifier, ValueOf(label, "ident"))) answers.push_back(std::move(answer));
    }
    const std::u16string name = u"[" + TextOf(identifier.substr(identifier.find('_') + 1)) + u"]";
    const std::size_t place = question.text.find(name);
    const std::u16string blank = std::u16string(kBlank) + (isDropDown ? u" (" + choices + u")" : u"");
    if (place != question.text.npos) {
      question.text.replace(place, name.size(), blank);
    } else if (!BlanksIn(question.text).empty() && !isDropDown) {
      // The blank is there already, in the length that it had when it was written.
    } else {
      question.text += u" " + blank;
    }
    question.blanks.push_back(std::move(answers));
  }
}

void CanvasItemReader::TakePairs(ExchangedQuestion& question) {
  std::vector<std::pair<std::u16string, std::u16string>> pairs;
  for (const pugi::xml_node response : responses_) {
    std::u16string right;
    for (const pugi::xml_node label : LabelsOf(response)) {
      const std::u16string text = Material(label, question);
      if (IsRight(ValueOf(response, "ident"), ValueOf(label, "ident"))) right = text;
    }
    pairs.emplace_back(Material(ChildOf(response, "material"), question), right);
  }
  MakeMatching(pairs, question, tools_.notes);
}

/// The comment on an essay is its model answer.
void CanvasItemReader::TakeFeedback(ExchangedQuestion& question) {
  for (const pugi::xml_node feedback : ElementsBelow(item_, {"itemfeedback"})) {
    ExchangedQuestion itsFiles;
    const std::u16string text = Material(feedback, itsFiles);
    if (text.empty()) continue;
    if (question.kind == QuestionKind::Essay && ValueOf(feedback, "ident") == "general_fb") {
      question.modelAnswer = text;
    } else {
      tools_.notes.Tell(text_id::kExchangeFeedback);
    }
  }
}

bool CanvasItemReader::Refuse(const std::string& type, ExchangedQuestion& question) {
  const std::u16string words = Excerpt(ExamTextToPlain(question.text));
  if (type == "text_only_question") {
    tools_.notes.Tell(text_id::kExchangeDescription, {words});
  } else {
    tools_.notes.Tell(text_id::kExchangeTypeNotRead, {Excerpt(TextOf(type)), words});
  }
  return false;
}

}  // namespace quorvantis
