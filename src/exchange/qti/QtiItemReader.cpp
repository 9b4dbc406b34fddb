// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiItemReader.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Addresses.h"
#include "exchange/qti/QtiItemWriter.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/HtmlEscape.h"
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

}  // namespace

QtiItemReader::QtiItemReader(QtiPackage& package, std::string name, ReadingTools& tools)
    : package_(package),
      name_(std::move(name)),
      tools_(tools),
      html_(tools, [this](std::u16string_view address) { return package_.Find(name_, address); }) {}

bool QtiItemReader::Read(pugi::xml_node item, ExchangedQuestion& question) {
  item_ = item;
  body_ = ChildOf(item, "itemBody");
  if (!body_) return Refuse("");
  if (!ChildrenOf(item, "modalFeedback").empty()) tools_.notes.Tell(text_id::kExchangeFeedback);
  for (const pugi::xml_node feedback : ElementsBelow(body_, {"feedbackBlock", "feedbackInline"})) {
    tools_.notes.Tell(text_id::kExchangeFeedback);
    feedback.parent().remove_child(feedback);
  }
  MakeLinksOfObjects();
  TakeRubrics(question);
  question.kind = QuestionKind::Essay;
  TakeInline(question);
  if (!TakeBlock(question)) return false;
  question.text = Html(body_, question);
  if (!pairs_.empty()) MakeMatching(pairs_, question, tools_.notes);
  return true;
}

pugi::xml_node QtiItemReader::Declaration(std::string_view identifier) const {
  for (const pugi::xml_node declaration : ChildrenOf(item_, "responseDeclaration")) {
    if (ValueOf(declaration, "identifier") == identifier) return declaration;
  }
  return {};
}

/// The right values; where none is named, those that earn points.
std::vector<std::string> QtiItemReader::Correct(std::string_view identifier) const {
  std::vector<std::string> values;
  const pugi::xml_node declaration = Declaration(identifier);
  for (const pugi::xml_node value : ChildrenOf(ChildOf(declaration, "correctResponse"), "value"))
    values.push_back(Utf16ToUtf8(Trimmed(ContentOf(value))));
  for (const pugi::xml_node entry : ChildrenOf(ChildOf(declaration, "mapping"), "mapEntry")) {
    const std::string key(ValueOf(entry, "mapKey"));
    const bool earns = NumberIn(ValueOf(entry, "mappedValue"), 0) > 0;
    const bool isText = ValueOf(declaration, "baseType") == "string";
    const bool isWanted = isText || !ChildOf(declaration, "correctResponse");
    if (earns && isWanted && std::ranges::find(values, key) == values.end()) values.push_back(key);
  }
  return values;
}

std::u16string QtiItemReader::Html(pugi::xml_node element, ExchangedQuestion& question) {
  std::u16string html = ContentOf(element);
  const bool hasElements = static_cast<bool>(
      element.find_child([](pugi::xml_node child) { return child.type() == pugi::node_element; }));
  // Without elements it has been unescaped already.
  return html_.Read(hasElements ? html : EscapeHtml(html), question);
}

std::u16string QtiItemReader::PartOf(pugi::xml_node element, ExchangedQuestion& question) {
  const std::size_t first = question.files.size();
  std::u16string text = Html(element, question);
  return TextOfPart(std::move(text), question, first, tools_.notes);
}

/// Sounds and other media are objects, which a page would run.
void QtiItemReader::MakeLinksOfObjects() {
  for (pugi::xml_node object : ElementsBelow(body_, {"object"})) {
    const std::string address(ValueOf(object, "data"));
    if (address.empty() || IsOfTheNet(TextOf(address))) continue;
    pugi::xml_node link = object.parent().insert_child_before("a", object);
    link.append_attribute("href").set_value(address.c_str());
    link.append_child(pugi::node_pcdata).set_value(address.c_str());
    object.parent().remove_child(object);
  }
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
  if (std::ranges::all_of(question.blanks, &BlankAnswers::empty)) question.blanks.clear();
}

void QtiItemReader::TakeField(pugi::xml_node field, ExchangedQuestion& question) {
  question.kind = QuestionKind::FillIn;
  const std::vector<std::string> correct = Correct(ValueOf(field, "responseIdentifier"));
  BlankAnswers answers;
  std::string shown = Utf16ToUtf8(BlankOfClass(TextOf(ValueOf(field, "class"))));
  if (LocalName(field) == "inlineChoiceInteraction") {
    tools_.notes.Tell(text_id::kExchangeInlineChoices);
    std::string choices;
    for (const pugi::xml_node choice : ChildrenOf(field, "inlineChoice")) {
      const std::u16string text = ContentOf(choice);
      const bool isRight = std::ranges::find(correct, ValueOf(choice, "identifier")) != correct.end();
      if (isRight) answers.push_back(PlainToExamText(text));
      choices += (choices.empty() ? "" : " / ") + Utf16ToUtf8(text);
    }
    shown += " (" + choices + ")";
  } else {
    for (const std::string& value : correct) answers.push_back(PlainToExamText(TextOf(value)));
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
    } else if (type != "extendedTextInteraction") {
      return Refuse(type);
    }
    // The prompt is part of the question.
    pugi::xml_node place = interaction.parent().insert_child_before("p", interaction);
    for (const pugi::xml_node part : ChildOf(interaction, "prompt").children()) place.append_copy(part);
    interaction.parent().remove_child(interaction);
  }
  return true;
}

void QtiItemReader::TakeChoices(pugi::xml_node interaction, ExchangedQuestion& question) {
  question.kind = QuestionKind::Choice;
  shuffles_ = ValueOf(interaction, "shuffle") == "true";
  const std::vector<std::string> correct = Correct(ValueOf(interaction, "responseIdentifier"));
  bool hasRight = false;
  for (const pugi::xml_node choice : ChildrenOf(interaction, "simpleChoice")) {
    for (const pugi::xml_node feedback : ElementsBelow(choice, {"feedbackInline"})) {
      tools_.notes.Tell(text_id::kExchangeFeedback);
      feedback.parent().remove_child(feedback);
    }
    const bool isRight = std::ranges::find(correct, ValueOf(choice, "identifier")) != correct.end();
    hasRight = hasRight || isRight;
    question.options.push_back({PartOf(choice, question), isRight});
  }
  if (!hasRight && !question.options.empty()) tools_.notes.Tell(text_id::kExchangeNoRightRead);
}

void QtiItemReader::TakePairs(pugi::xml_node interaction, ExchangedQuestion& question) {
  const std::vector<pugi::xml_node> sets = ChildrenOf(interaction, "simpleMatchSet");
  if (sets.size() != 2) return;
  std::map<std::string, std::u16string> rights;
  for (const pugi::xml_node choice : ChildrenOf(sets[1], "simpleAssociableChoice"))
    rights[std::string(ValueOf(choice, "identifier"))] = PartOf(choice, question);
  const std::vector<std::string> correct = Correct(ValueOf(interaction, "responseIdentifier"));
  for (const pugi::xml_node choice : ChildrenOf(sets[0], "simpleAssociableChoice")) {
    const std::string begin = std::string(ValueOf(choice, "identifier")) + " ";
    const auto pair = std::ranges::find_if(
        correct, [&begin](const std::string& value) { return value.starts_with(begin); });
    const auto right = pair != correct.end() ? rights.find(pair->substr(begin.size())) : rights.end();
    pairs_.emplace_back(PartOf(choice, question), right != rights.end() ? right->second : std::u16string());
  }
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
