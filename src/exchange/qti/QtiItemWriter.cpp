// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiItemWriter.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeNotes.h"
#include "exchange/markup/Markup.h"
#include "exchange/xml/HtmlParts.h"
#include "exchange/xml/XmlText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::string_view kNamespace = "http://www.imsglobal.org/xsd/imsqti_v2p1";
constexpr std::string_view kMatchCorrect =
    "http://www.imsglobal.org/question/qti_v2p1/rptemplates/match_correct";
constexpr std::string_view kMapResponse =
    "http://www.imsglobal.org/question/qti_v2p1/rptemplates/map_response";

std::string Xhtml(std::u16string_view text) {
  return Utf16ToUtf8(ExamTextToHtml(text, HtmlDialect::Xhtml));
}

std::string OptionIdentifier(std::size_t index) {
  return "option" + std::to_string(index + 1);
}

/// Composes one item.
class ItemText {
 public:
  ItemText(const ExchangedQuestion& question, bool shuffles, const std::vector<std::string>& addresses)
      : question_(question), shuffles_(shuffles), addresses_(addresses), xml_(text_) {}

  std::string Text(const std::string& identifier) {
    text_ = kXmlHead;
    const std::string title = NameOfQuestion(question_);
    xml_.Begin("assessmentItem",
               {{"xmlns", std::string(kNamespace)},
                {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                {"xsi:schemaLocation",
                 std::string(kNamespace) + " http://www.imsglobal.org/xsd/qti/qtiv2p1/imsqti_v2p1.xsd"},
                {"identifier", identifier},
                {"title", title},
                {"adaptive", "false"},
                {"timeDependent", "false"}});
    DeclareResponses();
    DeclareOutcome("SCORE", "0");
    DeclareOutcome("MAXSCORE", "1");
    xml_.Empty("stylesheet", {{"href", "../style.css"}, {"type", "text/css"}});
    xml_.Begin("itemBody");
    WriteBody();
    xml_.End("itemBody");
    WriteProcessing();
    xml_.End("assessmentItem");
    return std::move(text_);
  }

 private:
  bool IsChoice() const { return question_.kind == QuestionKind::Choice; }
  bool IsFillIn() const { return question_.kind == QuestionKind::FillIn; }

  std::string ResponseName(std::size_t blank) const {
    return question_.blanks.size() > 1 ? "RESPONSE" + std::to_string(blank + 1) : "RESPONSE";
  }

  std::size_t Rights() const {
    return static_cast<std::size_t>(std::ranges::count_if(question_.options, &ExchangedOption::isRight));
  }

  void DeclareOutcome(const std::string& name, std::string_view value) {
    xml_.Begin("outcomeDeclaration",
               {{"identifier", name}, {"cardinality", "single"}, {"baseType", "float"}});
    xml_.Begin("defaultValue");
    xml_.Text("value", value);
    xml_.End("defaultValue");
    xml_.End("outcomeDeclaration");
  }

  void DeclareResponses() {
    if (IsFillIn()) {
      for (std::size_t i = 0; i < question_.blanks.size(); ++i) DeclareBlank(i);
      return;
    }
    const std::string type = IsChoice()                             ? "identifier"
                             : question_.kind == QuestionKind::Oral ? "file"
                                                                    : "string";
    const std::string cardinality = IsChoice() && Rights() != 1 ? "multiple" : "single";
    const XmlAttributes attributes{
        {"identifier", "RESPONSE"}, {"cardinality", cardinality}, {"baseType", type}};
    if (!IsChoice() || Rights() == 0) return xml_.Empty("responseDeclaration", attributes);
    xml_.Begin("responseDeclaration", attributes);
    xml_.Begin("correctResponse");
    for (std::size_t i = 0; i < question_.options.size(); ++i) {
      if (question_.options[i].isRight) xml_.Text("value", OptionIdentifier(i));
    }
    xml_.End("correctResponse");
    xml_.End("responseDeclaration");
  }

  void DeclareBlank(std::size_t blank) {
    xml_.Begin("responseDeclaration",
               {{"identifier", ResponseName(blank)}, {"cardinality", "single"}, {"baseType", "string"}});
    const BlankAnswers& answers = question_.blanks[blank];
    xml_.Begin("correctResponse");
    xml_.Text("value", Utf16ToUtf8(ExamTextToPlain(answers.front())));
    xml_.End("correctResponse");
    xml_.Begin("mapping", {{"defaultValue", "0"}});
    for (const std::u16string& answer : answers) {
      xml_.Empty("mapEntry", {{"mapKey", Utf16ToUtf8(ExamTextToPlain(answer))},
                              {"mappedValue", "1"},
                              {"caseSensitive", "false"}});
    }
    xml_.End("mapping");
    xml_.End("responseDeclaration");
  }

  void WriteBody() {
    const std::size_t blanks = BlanksIn(question_.text).size();
    const bool hasFieldsInside = IsFillIn() && blanks == question_.blanks.size();
    const std::string html = hasFieldsInside ? TextWithFields() : Xhtml(question_.text);
    xml_.Raw("p", html + Utf16ToUtf8(HtmlOfFiles(question_.files, addresses_, HtmlDialect::Xhtml)));
    switch (question_.kind) {
      case QuestionKind::Choice:
        return WriteChoice();
      case QuestionKind::FillIn:
        if (!hasFieldsInside) xml_.Raw("p", Field(0), {{"class", std::string(kAnswerFieldClass)}});
        return;
      case QuestionKind::Essay:
        return WriteEssay();
      case QuestionKind::Oral:
        return xml_.Empty("uploadInteraction", {{"responseIdentifier", "RESPONSE"}});
    }
  }

  std::string Field(std::size_t blank, const std::string& attributes = {}) const {
    return "<textEntryInteraction responseIdentifier=\"" + ResponseName(blank) + "\"" + attributes + "/>";
  }

  std::string TextWithFields() const {
    const std::u16string html = ExamTextToHtml(question_.text, HtmlDialect::Xhtml);
    std::string text;
    std::size_t at = 0;
    std::size_t number = 0;
    for (const TextSpan& blank : BlanksIn(html)) {
      text += Utf16ToUtf8(std::u16string_view(html).substr(at, blank.begin - at));
      text += Field(number++, " class=\"" + Utf16ToUtf8(kBlankClass) + std::to_string(blank.Size()) + "\"");
      at = blank.end;
    }
    return text + Utf16ToUtf8(std::u16string_view(html).substr(at));
  }

  void WriteChoice() {
    xml_.Begin("choiceInteraction", {{"responseIdentifier", "RESPONSE"},
                                     {"shuffle", shuffles_ ? "true" : "false"},
                                     {"maxChoices", Rights() == 1 ? "1" : "0"}});
    for (std::size_t i = 0; i < question_.options.size(); ++i)
      xml_.Raw("simpleChoice", Xhtml(question_.options[i].text), {{"identifier", OptionIdentifier(i)}});
    xml_.End("choiceInteraction");
  }

  /// The model answer is for those who mark the answers only.
  void WriteEssay() {
    xml_.Empty("extendedTextInteraction", {{"responseIdentifier", "RESPONSE"}, {"expectedLines", "10"}});
    if (question_.modelAnswer.empty()) return;
    xml_.Begin("rubricBlock", {{"view", "scorer"}});
    xml_.Raw("p", Xhtml(question_.modelAnswer));
    xml_.End("rubricBlock");
  }

  void WriteProcessing() {
    if (IsChoice()) return xml_.Empty("responseProcessing", {{"template", std::string(kMatchCorrect)}});
    if (!IsFillIn()) return;
    if (question_.blanks.size() == 1)
      return xml_.Empty("responseProcessing", {{"template", std::string(kMapResponse)}});
    xml_.Begin("responseProcessing");
    xml_.Begin("setOutcomeValue", {{"identifier", "SCORE"}});
    xml_.Begin("divide");
    xml_.Begin("sum");
    for (std::size_t i = 0; i < question_.blanks.size(); ++i)
      xml_.Empty("mapResponse", {{"identifier", ResponseName(i)}});
    xml_.End("sum");
    xml_.Text("baseValue", std::to_string(question_.blanks.size()), {{"baseType", "float"}});
    xml_.End("divide");
    xml_.End("setOutcomeValue");
    xml_.End("responseProcessing");
  }

  const ExchangedQuestion& question_;
  bool shuffles_;
  const std::vector<std::string>& addresses_;
  std::string text_;
  XmlWriter xml_;
};

}  // namespace

std::string QtiItem(const ExchangedQuestion& question, const std::string& identifier, bool shuffles,
                    const std::vector<std::string>& addresses) {
  return ItemText(question, shuffles, addresses).Text(identifier);
}

}  // namespace quorvantis
