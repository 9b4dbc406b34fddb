// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiItemReader.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/qti/ItemParts.h"
#include "exchange/qti/QtiBody.h"
#include "exchange/qti/QtiItemWriter.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/Utf.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

/// Puts characters in the place of an element.
void ReplaceByText(pugi::xml_node element, const std::string& utf8) {
  element.parent().insert_child_before(pugi::node_pcdata, element).set_value(utf8.c_str());
  element.parent().remove_child(element);
}

bool IsAmong(const std::vector<QtiAnswer>& answers, std::string_view value) {
  return std::ranges::any_of(answers, [value](const QtiAnswer& answer) { return answer.value == value; });
}

/// Answers as exam texts. What an exam does not tell apart is told.
BlankAnswers AnswersOf(const std::vector<QtiAnswer>& answers, ExchangeNotes& notes) {
  BlankAnswers texts;
  texts.reserve(answers.size());
  for (const QtiAnswer& answer : answers) {
    texts.push_back(PlainToExamText(TextOf(answer.value)));
    if (answer.isOfRules) notes.Tell(text_id::kExchangeAnswerOfRule, {Excerpt(texts.back())});
    if (answer.share * 100 < kFullFraction)
      notes.Tell(text_id::kExchangePartlyRightAnswer, {Excerpt(texts.back())});
  }
  return texts;
}

}  // namespace

QtiItemReader::QtiItemReader(QtiPackage& package, std::string name, ReadingTools& tools)
    : package_(package),
      name_(std::move(name)),
      base_(name_),
      tools_(tools),
      html_(tools, [this](std::u16string_view address) { return package_.Find(base_, address); }) {}

bool QtiItemReader::Read(pugi::xml_node item, ExchangedQuestion& question) {
  item_ = item;
  keys_ = QtiKeys(item);
  body_ = ChildOf(item, "itemBody");
  if (!body_) return Refuse("");
  if (IsCalculated()) return Refuse("templateProcessing");
  base_ = BaseOf(BaseOf(name_, item), body_);
  PrepareBody();
  TakeRubrics(question);
  question.kind = QuestionKind::Essay;
  TakeInline(question);
  if (!TakeBlock(question)) return false;
  question.text = Html(body_, question);
  if (!pairs_.empty()) MakeMatching(pairs_, question, tools_.notes);
  KeepPlacesOfBlanks(question, tools_.notes);
  return true;
}

/// Whether it is another question each time.
bool QtiItemReader::IsCalculated() const {
  return ChildOf(item_, "templateProcessing") || !ElementsBelow(body_, {"printedVariable"}).empty();
}

void QtiItemReader::PrepareBody() {
  IncludeParts(package_, base_, body_);
  if (!ChildrenOf(item_, "modalFeedback").empty()) tools_.notes.Tell(text_id::kExchangeFeedback);
  for (const pugi::xml_node feedback : ElementsBelow(body_, {"feedbackBlock", "feedbackInline"})) {
    tools_.notes.Tell(text_id::kExchangeFeedback);
    feedback.parent().remove_child(feedback);
  }
  MakeLinksOfObjects(body_);
}

std::u16string QtiItemReader::ReadPassage(pugi::xml_node element, ExchangedQuestion& question) {
  MakeLinksOfObjects(element);
  return Html(element, question);
}

std::u16string QtiItemReader::Html(pugi::xml_node element, ExchangedQuestion& question) {
  return TextOfElement(element, html_, question);
}

std::u16string QtiItemReader::PartOf(pugi::xml_node element, ExchangedQuestion& question) {
  const std::size_t first = question.files.size();
  std::u16string text = Html(element, question);
  return TextOfPart(std::move(text), question, first, tools_.notes);
}

/// What is for those who mark the answers is the model answer; the rest belongs to the text.
void QtiItemReader::TakeRubrics(ExchangedQuestion& question) {
  for (const pugi::xml_node rubric : ElementsBelow(body_, {"rubricBlock"})) {
    if (ValueOf(rubric, "view").find("candidate") != std::string_view::npos) continue;
    ExchangedQuestion itsFiles;
    question.modelAnswer = Html(rubric, itsFiles);
    rubric.parent().remove_child(rubric);
  }
}

void QtiItemReader::TakeInline(ExchangedQuestion& question) {
  for (const pugi::xml_node field : ElementsBelow(body_, {"textEntryInteraction", "inlineChoiceInteraction"}))
    TakeField(field, question);
}

void QtiItemReader::TakeField(pugi::xml_node field, ExchangedQuestion& question) {
  question.kind = QuestionKind::FillIn;
  const std::vector<QtiAnswer> correct = keys_.Answers(ValueOf(field, "responseIdentifier"));
  BlankAnswers answers;
  std::string shown = Utf16ToUtf8(BlankOfClass(TextOf(ValueOf(field, "class"))));
  if (LocalName(field) == "inlineChoiceInteraction") {
    tools_.notes.Tell(text_id::kExchangeInlineChoices);
    std::string choices;
    for (const pugi::xml_node choice : ChildrenOf(field, "inlineChoice")) {
      const std::u16string text = ContentOf(choice);
      if (IsAmong(correct, ValueOf(choice, "identifier"))) answers.push_back(PlainToExamText(text));
      choices += (choices.empty() ? "" : " / ") + Utf16ToUtf8(text);
    }
    shown += " (" + choices + ")";
  } else {
    answers = AnswersOf(correct, tools_.notes);
    for (const std::string& tolerance : keys_.Tolerances())
      tools_.notes.Tell(text_id::kExchangeTolerance, {TextOf(tolerance)});
  }
  if (ValueOf(field.parent(), "class") == kAnswerFieldClass) shown.clear();
  question.blanks.push_back(std::move(answers));
  ReplaceByText(field, shown);
}

/// False if the item has an interaction of another kind.
bool QtiItemReader::TakeBlock(ExchangedQuestion& question) {
  const std::vector<pugi::xml_node> interactions = ElementsBelow(
      body_, {"choiceInteraction", "extendedTextInteraction", "uploadInteraction", "matchInteraction",
              "associateInteraction", "orderInteraction", "gapMatchInteraction", "hottextInteraction",
              "hotspotInteraction", "graphicOrderInteraction", "graphicAssociateInteraction",
              "graphicGapMatchInteraction", "selectPointInteraction", "positionObjectInteraction",
              "sliderInteraction", "drawingInteraction", "mediaInteraction", "customInteraction"});
  const bool hasFields = question.kind == QuestionKind::FillIn;
  if (interactions.empty()) return hasFields || Refuse("");
  for (std::size_t i = 0; i < interactions.size(); ++i) {
    const pugi::xml_node interaction = interactions[i];
    const std::string_view type = LocalName(interaction);
    const bool isFirst = i == 0 && !hasFields;
    if (!isFirst) {
      tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(TextOf(type))});
    } else if (type == "choiceInteraction") {
      TakeChoices(interaction, question);
    } else if (type == "uploadInteraction") {
      question.kind = QuestionKind::Oral;
    } else if (type == "matchInteraction") {
      TakePairs(interaction, question);
    } else if (type == "extendedTextInteraction") {
      TakeModelAnswer(interaction, question);
    } else {
      return Refuse(type);
    }
    // The prompt is part of the question.
    pugi::xml_node place = interaction.parent().insert_child_before("p", interaction);
    for (const pugi::xml_node part : ChildOf(interaction, "prompt").children()) place.append_copy(part);
    interaction.parent().remove_child(interaction);
  }
  return true;
}

/// Unless the text for those who mark the answers is one.
void QtiItemReader::TakeModelAnswer(pugi::xml_node interaction, ExchangedQuestion& question) {
  if (!question.modelAnswer.empty()) return;
  for (const QtiAnswer& answer : keys_.Answers(ValueOf(interaction, "responseIdentifier"))) {
    if (!question.modelAnswer.empty()) question.modelAnswer += u"\r\n";
    question.modelAnswer += PlainToExamText(TextOf(answer.value));
  }
}

void QtiItemReader::TakeChoices(pugi::xml_node interaction, ExchangedQuestion& question) {
  question.kind = QuestionKind::Choice;
  shuffles_ = ValueOf(interaction, "shuffle") == "true";
  const std::string_view response = ValueOf(interaction, "responseIdentifier");
  std::map<std::string, double, std::less<>> shares;
  for (const QtiAnswer& answer : keys_.Answers(response)) shares[answer.value] = answer.share;
  const std::vector<std::string> partly = keys_.PartlyRight(response);
  std::vector<double> scores;
  for (const pugi::xml_node choice : ChildrenOf(interaction, "simpleChoice")) {
    for (const pugi::xml_node feedback : ElementsBelow(choice, {"feedbackInline"})) {
      tools_.notes.Tell(text_id::kExchangeFeedback);
      feedback.parent().remove_child(feedback);
    }
    const std::string_view identifier = ValueOf(choice, "identifier");
    const auto share = shares.find(identifier);
    scores.push_back(share != shares.end() ? share->second : 0);
    question.options.push_back({PartOf(choice, question), false});
    if (std::ranges::find(partly, identifier) != partly.end())
      tools_.notes.Tell(text_id::kExchangePartlyRight, {Excerpt(question.options.back().text)});
  }
  DecideByScores(scores, keys_.TakesSeveral(response), question.options, tools_.notes);
}

/// A line for each pair, also of a left side with several partners.
void QtiItemReader::TakePairs(pugi::xml_node interaction, ExchangedQuestion& question) {
  const std::vector<pugi::xml_node> sets = ChildrenOf(interaction, "simpleMatchSet");
  if (sets.size() != 2) return;
  std::map<std::string, std::u16string> rights;
  for (const pugi::xml_node choice : ChildrenOf(sets[1], "simpleAssociableChoice"))
    rights[std::string(ValueOf(choice, "identifier"))] = PartOf(choice, question);
  std::map<std::string, std::vector<std::u16string>, std::less<>> partners;
  for (const QtiAnswer& answer : keys_.Answers(ValueOf(interaction, "responseIdentifier"))) {
    const std::size_t blank = answer.value.find(' ');
    const auto right =
        blank != answer.value.npos ? rights.find(answer.value.substr(blank + 1)) : rights.end();
    if (right != rights.end()) partners[answer.value.substr(0, blank)].push_back(right->second);
  }
  for (const pugi::xml_node choice : ChildrenOf(sets[0], "simpleAssociableChoice")) {
    const std::u16string left = PartOf(choice, question);
    auto& its = partners[std::string(ValueOf(choice, "identifier"))];
    if (its.empty()) its.emplace_back();
    for (const std::u16string& right : its) pairs_.emplace_back(left, right);
  }
  for (const auto& [identifier, text] : rights) pairs_.emplace_back(std::u16string(), text);
}

bool QtiItemReader::Refuse(std::string_view type) {
  const std::u16string words = Excerpt(ExamTextToPlain(ReadHtml(ContentOf(body_)).text));
  if (type.empty()) {
    tools_.notes.Tell(text_id::kExchangeDescription, {words});
  } else {
    tools_.notes.Tell(text_id::kExchangeTypeNotRead, {TextOf(type), words});
  }
  return false;
}

}  // namespace quorvantis
