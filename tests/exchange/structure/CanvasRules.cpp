// SPDX-License-Identifier: MIT
#include "FormatRules.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace quorvantis::test {
namespace {

/// The elements of QTI 1.2 that quizzes of Canvas have, in the order of its definition.
const ElementRules& QuizRules() {
  static const ElementRules rules{
      {{"questestinterop", "assessment", ""},
       {"assessment", "qtimetadata? section+", "ident!=id title!"},
       {"section", "item*", "ident!=id title"},
       {"item", "itemmetadata presentation resprocessing itemfeedback*", "ident!=id title"},
       {"itemmetadata", "qtimetadata", ""},
       {"qtimetadata", "qtimetadatafield+", ""},
       {"qtimetadatafield", "fieldlabel fieldentry", ""},
       {"fieldlabel", "#", ""},
       {"fieldentry", "#", ""},
       {"presentation", "material %response*", ""},
       {"material", "mattext", ""},
       {"mattext", "#", "texttype!=text/html|text/plain"},
       {"response_lid", "material? render_choice", "ident!=id rcardinality=Single|Multiple"},
       {"response_str", "render_fib", "ident!=id rcardinality=Single"},
       {"render_choice", "response_label+", ""},
       {"render_fib", "response_label", ""},
       {"response_label", "material?", "ident! rshuffle=Yes|No"},
       {"resprocessing", "outcomes respcondition+", ""},
       {"outcomes", "decvar", ""},
       {"decvar", "", "maxvalue!=float minvalue!=float varname!=SCORE vartype!=Decimal"},
       {"respcondition", "conditionvar setvar* displayfeedback*", "continue=Yes|No"},
       {"conditionvar", "%condition+", ""},
       {"and", "%condition+", ""},
       {"not", "%condition", ""},
       {"other", "", ""},
       {"varequal", "#", "respident!=id"},
       {"setvar", "#", "action!=Set|Add varname!=SCORE"},
       {"displayfeedback", "", "feedbacktype!=Response linkrefid!=id"},
       {"itemfeedback", "flow_mat", "ident!=id"},
       {"flow_mat", "material", ""}},
      {{"response", "response_lid response_str"}, {"condition", "and not varequal other"}}};
  return rules;
}

const ElementRules& MetaRules() {
  static const ElementRules rules{{{"quiz", "title shuffle_answers quiz_type", "identifier!=id"},
                                   {"title", "#", ""},
                                   {"shuffle_answers", "#", ""},
                                   {"quiz_type", "#", ""}}};
  return rules;
}

/// What a kind of question has in its presentation and its conditions.
struct TypeRule {
  std::string_view type;
  std::string_view response;     ///< its element, if any
  std::string_view cardinality;  ///< of the response
  std::size_t fewestAnswers = 0;
  std::size_t mostAnswers = 0;  ///< that are right
};

constexpr std::size_t kAny = 1000;

constexpr TypeRule kTypeRules[] = {{"multiple_choice_question", "response_lid", "Single", 1, 1},
                                   {"multiple_answers_question", "response_lid", "Multiple", 0, kAny},
                                   {"short_answer_question", "response_str", "Single", 1, kAny},
                                   {"fill_in_multiple_blanks_question", "response_lid", "", 2, kAny},
                                   {"essay_question", "response_str", "Single", 0, 0},
                                   {"file_upload_question", "", "", 0, 0}};

std::size_t Count(const std::string& text, const std::string& word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) ++count;
  return count;
}

std::string FieldOf(pugi::xml_node item, std::string_view label) {
  for (const pugi::xml_node field : Descendants(item, "qtimetadatafield")) {
    if (field.child_value("fieldlabel") == label) return field.child_value("fieldentry");
  }
  return {};
}

/// Judges one question.
class CanvasItemJudge {
 public:
  CanvasItemJudge(pugi::xml_node item, Faults& faults)
      : item_(item),
        text_(CharactersIn(item.child("presentation").child("material").child("mattext"))),
        faults_(faults) {}

  void Judge() {
    const std::string type = FieldOf(item_, "question_type");
    const auto* const rule = std::ranges::find(kTypeRules, type, &TypeRule::type);
    if (rule == std::end(kTypeRules)) return Tell("is of an unknown type: " + type);
    if (!IsFloat(FieldOf(item_, "points_possible"))) Tell("has no points");
    JudgeResponses(*rule);
    JudgeConditions(*rule);
    for (const pugi::xml_node shown : Descendants(item_, "displayfeedback")) {
      const char* const wanted = shown.attribute("linkrefid").value();
      if (!item_.find_child_by_attribute("itemfeedback", "ident", wanted))
        Tell("has no feedback " + std::string(wanted));
    }
  }

 private:
  void Tell(const std::string& fault) { faults_.push_back(PlaceOf(item_) + " " + fault); }

  bool HasBlanks(const TypeRule& rule) const { return rule.type.starts_with("fill_in"); }

  void JudgeResponses(const TypeRule& rule) {
    std::size_t count = 0;
    std::set<std::string> names;
    for (const pugi::xml_node response : item_.child("presentation").children()) {
      if (!std::string_view(response.name()).starts_with("response_")) continue;
      ++count;
      const std::string name = response.attribute("ident").value();
      if (!names.insert(name).second) Tell("has two responses " + name);
      if (response.name() != rule.response) Tell("has a " + std::string(response.name()));
      if (response.attribute("rcardinality").value() != rule.cardinality) Tell("counts wrongly in " + name);
      if (HasBlanks(rule)) JudgeBlank(response, name);
      TakeLabels(response, name);
    }
    if (HasBlanks(rule) ? count < 2 : count != (rule.response.empty() ? 0U : 1U))
      Tell("has another number of responses");
  }

  void JudgeBlank(pugi::xml_node response, const std::string& name) {
    const std::string blank = response.child("material").child_value("mattext");
    if (name != "response_" + blank) Tell("has a blank with another name: " + blank);
    if (Count(text_, "[" + blank + "]") != 1) Tell("has not one place for " + blank);
  }

  void TakeLabels(pugi::xml_node response, const std::string& name) {
    for (const pugi::xml_node label : Descendants(response, "response_label")) {
      if (!labels_.insert({name, label.attribute("ident").value()}).second)
        Tell("has two choices of one name");
    }
    if (response.child("render_fib")) words_.insert(name);
  }

  void JudgeConditions(const TypeRule& rule) {
    double points = 0;
    std::size_t answers = 0;
    for (const pugi::xml_node value : Descendants(item_, "varequal")) {
      const std::string response = value.attribute("respident").value();
      const std::string answer = value.child_value();
      const bool isKnown = words_.contains(response) ? !answer.empty() : labels_.contains({response, answer});
      if (!isKnown) Tell("takes for right what cannot be answered: " + answer);
      if (value.parent().name() != std::string_view("not")) ++answers;
    }
    for (const pugi::xml_node set : Descendants(item_, "setvar")) points += set.text().as_double();
    if (answers < rule.fewestAnswers || answers > rule.mostAnswers)
      Tell("has another number of right answers");
    if (std::abs(points - (answers == 0 ? 0 : 100)) > 0.01)
      Tell("gives not all points: " + std::to_string(points));
  }

  pugi::xml_node item_;
  std::string text_;
  Faults& faults_;
  std::set<std::pair<std::string, std::string>> labels_;
  std::set<std::string> words_;  ///< responses that take any words
};

/// Judges the HTML of one file, and the files that it refers to.
class CanvasAddresses {
 public:
  CanvasAddresses(const PackageParts& parts, Faults& faults) : parts_(parts), faults_(faults) {}

  void Take(pugi::xml_node text) {
    if (text.attribute("texttype").value() != std::string_view("text/html")) return;
    CheckHtml(
        PlaceOf(text), CharactersIn(text), [this](const std::string& address) { Find(address); }, faults_);
  }

  void Finish() {
    for (const auto& [name, bytes] : parts_) {
      if (name.starts_with("web_resources/") && !used_.contains(name))
        faults_.push_back("nothing refers to " + name);
    }
  }

 private:
  void Find(const std::string& address) {
    constexpr std::string_view kBase = "$IMS-CC-FILEBASE$/";
    if (!address.starts_with(kBase))
      return faults_.push_back("an address leads out of the package: " + address);
    const std::string name = "web_resources/" + UnescapedAddress(address.substr(kBase.size()));
    if (!parts_.contains(name)) faults_.push_back("there is no " + name);
    used_.insert(name);
  }

  const PackageParts& parts_;
  Faults& faults_;
  std::set<std::string> used_;
};

void JudgeQuiz(pugi::xml_node quiz, const PackageParts& parts, Faults& faults) {
  CheckElements(quiz, QuizRules(), faults);
  std::set<std::string> identifiers;
  for (const pugi::xml_node item : Descendants(quiz, "item")) {
    if (!identifiers.insert(item.attribute("ident").value()).second)
      faults.push_back(PlaceOf(item) + " has the identifier of another");
    CanvasItemJudge(item, faults).Judge();
  }
  CanvasAddresses addresses(parts, faults);
  for (const pugi::xml_node text : Descendants(quiz, "mattext")) addresses.Take(text);
  addresses.Finish();
}

}  // namespace

Faults CheckCanvasPackage(const PackageParts& parts) {
  Faults faults;
  int quizzes = 0;
  CheckManifest(
      parts,
      [&](pugi::xml_node resource) {
        const std::string type = resource.attribute("type").value();
        const std::string name = UnescapedAddress(resource.child("file").attribute("href").value());
        const auto part = parts.find(name);
        if (type == "webcontent" || part == parts.end()) return;
        pugi::xml_document document;
        if (!ParseStrictly(name, part->second, document, faults)) return;
        if (type == "imsqti_xmlv1p2") {
          ++quizzes;
          JudgeQuiz(document.document_element(), parts, faults);
        } else {
          CheckElements(document.document_element(), MetaRules(), faults);
        }
      },
      faults);
  if (quizzes != 1) faults.emplace_back("has not one quiz");
  return faults;
}

}  // namespace quorvantis::test
