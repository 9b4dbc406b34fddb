// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasItemWriter.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/Points.h"
#include "exchange/markup/Markup.h"
#include "exchange/xml/HtmlParts.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

std::string CanvasHtml(std::u16string_view text) {
  return Utf16ToUtf8(ExamTextToHtml(text, HtmlDialect::Html));
}

/// What the names of blanks begin with: nothing that stands in brackets in the text already.
std::string BeginOfBlankNames(std::u16string_view text) {
  const std::u16string lower = AsciiLower(text);
  std::string begin = "blank";
  while (lower.find(u"[" + Utf8ToUtf16(begin)) != lower.npos) begin.push_back('x');
  return begin;
}

std::string LabelOf(std::size_t index) {
  return std::to_string(1001 + index);
}

/// Writes one item.
class CanvasItem {
 public:
  CanvasItem(const ExchangedQuestion& question, const std::vector<std::string>& addresses, XmlWriter& xml)
      : question_(question),
        addresses_(addresses),
        xml_(xml),
        blankNames_(BeginOfBlankNames(ExamTextToPlain(question.text))) {}

  void Write(const std::string& identifier) {
    xml_.Begin("item", {{"ident", identifier}, {"title", std::to_string(question_.number)}});
    WriteMetadata();
    xml_.Begin("presentation");
    WriteMaterial(QuestionHtml());
    WriteResponses();
    xml_.End("presentation");
    WriteProcessing();
    if (HasModelAnswer()) WriteModelAnswer();
    xml_.End("item");
  }

 private:
  bool HasSeveralBlanks() const { return question_.blanks.size() > 1; }
  bool HasModelAnswer() const { return !question_.modelAnswer.empty(); }
  std::string BlankName(std::size_t blank) const { return blankNames_ + std::to_string(blank + 1); }

  std::size_t Rights() const {
    return static_cast<std::size_t>(std::ranges::count_if(question_.options, &ExchangedOption::isRight));
  }

  std::string Type() const {
    switch (question_.kind) {
      case QuestionKind::Choice:
        return Rights() == 1 ? "multiple_choice_question" : "multiple_answers_question";
      case QuestionKind::FillIn:
        return HasSeveralBlanks() ? "fill_in_multiple_blanks_question" : "short_answer_question";
      case QuestionKind::Essay:
        return "essay_question";
      case QuestionKind::Oral:
        break;
    }
    return "file_upload_question";  // of a recording
  }

  void WriteField(const std::string& label, const std::string& entry) {
    xml_.Begin("qtimetadatafield");
    xml_.Text("fieldlabel", label);
    xml_.Text("fieldentry", entry);
    xml_.End("qtimetadatafield");
  }

  void WriteMetadata() {
    xml_.Begin("itemmetadata");
    xml_.Begin("qtimetadata");
    WriteField("question_type", Type());
    WriteField("points_possible", PointsText(question_.score.value_or(1)));
    xml_.End("qtimetadata");
    xml_.End("itemmetadata");
  }

  void WriteMaterial(const std::string& html, const std::string& type = "text/html") {
    xml_.Begin("material");
    xml_.Text("mattext", html, {{"texttype", type}});
    xml_.End("material");
  }

  /// Blanks are names in brackets.
  std::string QuestionHtml() const {
    const std::u16string html = ExamTextToHtml(question_.text, HtmlDialect::Html);
    std::u16string text;
    std::size_t at = 0;
    std::size_t number = 0;
    if (HasSeveralBlanks()) {
      for (const TextSpan& blank : BlanksIn(html)) {
        const std::u16string name = u"[" + TextOf(BlankName(number++)) + u"]";
        text.append(html, at, blank.begin - at).append(u"<span class=\"").append(kBlankClass);
        text.append(FormatInteger(static_cast<std::int64_t>(blank.Size())))
            .append(u"\">")
            .append(name)
            .append(u"</span>");
        at = blank.end;
      }
    }
    text.append(html, at);
    return Utf16ToUtf8(text + HtmlOfFiles(question_.files, addresses_, HtmlDialect::Html));
  }

  void WriteLabel(const std::string& identifier, const std::string& html,
                  const std::string& type = "text/html") {
    xml_.Begin("response_label", {{"ident", identifier}});
    WriteMaterial(html, type);
    xml_.End("response_label");
  }

  void WriteResponses() {
    if (question_.kind == QuestionKind::Choice) {
      xml_.Begin("response_lid",
                 {{"ident", "response1"}, {"rcardinality", Rights() == 1 ? "Single" : "Multiple"}});
      xml_.Begin("render_choice");
      for (std::size_t i = 0; i < question_.options.size(); ++i)
        WriteLabel(LabelOf(i), CanvasHtml(question_.options[i].text));
      xml_.End("render_choice");
      xml_.End("response_lid");
    } else if (HasSeveralBlanks()) {
      for (std::size_t i = 0; i < question_.blanks.size(); ++i) WriteBlank(i);
    } else if (question_.kind != QuestionKind::Oral) {
      xml_.Begin("response_str", {{"ident", "response1"}, {"rcardinality", "Single"}});
      xml_.Begin("render_fib");
      xml_.Empty("response_label", {{"ident", "answer1"}, {"rshuffle", "No"}});
      xml_.End("render_fib");
      xml_.End("response_str");
    }
  }

  void WriteBlank(std::size_t blank) {
    xml_.Begin("response_lid", {{"ident", "response_" + BlankName(blank)}});
    WriteMaterial(BlankName(blank), "text/plain");
    xml_.Begin("render_choice");
    const BlankAnswers& answers = question_.blanks[blank];
    for (std::size_t i = 0; i < answers.size(); ++i)
      WriteLabel(BlankName(blank) + "-" + LabelOf(i), Utf16ToUtf8(ExamTextToPlain(answers[i])), "text/plain");
    xml_.End("render_choice");
    xml_.End("response_lid");
  }

  void WriteProcessing() {
    xml_.Begin("resprocessing");
    xml_.Begin("outcomes");
    xml_.Empty("decvar",
               {{"maxvalue", "100"}, {"minvalue", "0"}, {"varname", "SCORE"}, {"vartype", "Decimal"}});
    xml_.End("outcomes");
    if (HasModelAnswer()) WriteFeedbackCondition();
    if (Rights() > 0) {
      WriteChoiceCondition();
    } else if (HasSeveralBlanks()) {
      for (std::size_t i = 0; i < question_.blanks.size(); ++i) WriteBlankCondition(i);
    } else if (question_.kind == QuestionKind::FillIn) {
      WriteAnswersCondition();
    } else if (!HasModelAnswer()) {
      WriteNoCondition();
    }
    xml_.End("resprocessing");
  }

  void WriteScore(const std::string& action, const std::string& percent) {
    xml_.Text("setvar", percent, {{"action", action}, {"varname", "SCORE"}});
  }

  /// All right options and none of the others.
  void WriteChoiceCondition() {
    xml_.Begin("respcondition", {{"continue", "No"}});
    xml_.Begin("conditionvar");
    if (Rights() > 1) xml_.Begin("and");
    for (std::size_t i = 0; i < question_.options.size(); ++i) {
      const bool isRight = question_.options[i].isRight;
      if (!isRight && Rights() == 1) continue;
      if (!isRight) xml_.Begin("not");
      xml_.Text("varequal", LabelOf(i), {{"respident", "response1"}});
      if (!isRight) xml_.End("not");
    }
    if (Rights() > 1) xml_.End("and");
    xml_.End("conditionvar");
    WriteScore("Set", "100");
    xml_.End("respcondition");
  }

  void WriteBlankCondition(std::size_t blank) {
    xml_.Begin("respcondition");
    xml_.Begin("conditionvar");
    for (std::size_t i = 0; i < question_.blanks[blank].size(); ++i)
      xml_.Text("varequal", BlankName(blank) + "-" + LabelOf(i),
                {{"respident", "response_" + BlankName(blank)}});
    xml_.End("conditionvar");
    WriteScore("Add", PointsText(100.0 / static_cast<double>(question_.blanks.size())));
    xml_.End("respcondition");
  }

  void WriteAnswersCondition() {
    xml_.Begin("respcondition", {{"continue", "No"}});
    xml_.Begin("conditionvar");
    for (const BlankAnswers& blank : question_.blanks) {
      for (const std::u16string& answer : blank)
        xml_.Text("varequal", Utf16ToUtf8(ExamTextToPlain(answer)), {{"respident", "response1"}});
    }
    xml_.End("conditionvar");
    WriteScore("Set", "100");
    xml_.End("respcondition");
  }

  /// QTI wants a condition, also where somebody has to mark the answer.
  void WriteNoCondition() {
    xml_.Begin("respcondition", {{"continue", "No"}});
    xml_.Begin("conditionvar");
    xml_.Empty("other");
    xml_.End("conditionvar");
    xml_.End("respcondition");
  }

  void WriteFeedbackCondition() {
    xml_.Begin("respcondition", {{"continue", "Yes"}});
    xml_.Begin("conditionvar");
    xml_.Empty("other");
    xml_.End("conditionvar");
    xml_.Empty("displayfeedback", {{"feedbacktype", "Response"}, {"linkrefid", "general_fb"}});
    xml_.End("respcondition");
  }

  /// As the comment that everybody sees who has answered.
  void WriteModelAnswer() {
    xml_.Begin("itemfeedback", {{"ident", "general_fb"}});
    xml_.Begin("flow_mat");
    WriteMaterial(CanvasHtml(question_.modelAnswer));
    xml_.End("flow_mat");
    xml_.End("itemfeedback");
  }

  const ExchangedQuestion& question_;
  const std::vector<std::string>& addresses_;
  XmlWriter& xml_;
  std::string blankNames_;
};

}  // namespace

void WriteCanvasItem(const ExchangedQuestion& question, const std::string& identifier,
                     const std::vector<std::string>& addresses, XmlWriter& xml) {
  CanvasItem(question, addresses, xml).Write(identifier);
}

}  // namespace quorvantis
