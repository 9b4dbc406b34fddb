// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiKeys.h"

#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "text/Utf.h"

#include <algorithm>
#include <set>

namespace quorvantis {
namespace {

constexpr std::string_view kScore = "SCORE";

double ScoreSetBy(pugi::xml_node set) {
  if (ValueOf(set, "identifier") != kScore) return 0;
  return NumberIn(ChildOf(set, "baseValue").text().get(), 0);
}

/// What a branch of the rules sets, if its condition holds.
double ScoreOfBranch(pugi::xml_node branch) {
  double best = 0;
  for (const pugi::xml_node set : ChildrenOf(branch, "setOutcomeValue"))
    best = std::max(best, ScoreSetBy(set));
  return best;
}

/// The branch of the rules that a comparison decides, unless the comparison must not hold.
pugi::xml_node BranchOf(pugi::xml_node comparison) {
  for (pugi::xml_node above = comparison.parent(); above; above = above.parent()) {
    const std::string_view name = LocalName(above);
    if (name == "responseIf" || name == "responseElseIf") return above;
    if (name != "or" && name != "and") break;
  }
  return {};
}

double BestMapped(pugi::xml_node mapping) {
  double best = 0;
  for (const pugi::xml_node entry : ChildrenOf(mapping, "mapEntry"))
    best = std::max(best, NumberIn(ValueOf(entry, "mappedValue"), 0));
  return best;
}

double AllMapped(pugi::xml_node mapping) {
  double sum = 0;
  for (const pugi::xml_node entry : ChildrenOf(mapping, "mapEntry"))
    sum += std::max(0.0, NumberIn(ValueOf(entry, "mappedValue"), 0));
  return sum;
}

}  // namespace

QtiKeys::QtiKeys(pugi::xml_node item) : item_(item), rules_(ChildOf(item, "responseProcessing")) {}

pugi::xml_node QtiKeys::Declaration(std::string_view response) const {
  for (const pugi::xml_node declaration : ChildrenOf(item_, "responseDeclaration")) {
    if (ValueOf(declaration, "identifier") == response) return declaration;
  }
  return {};
}

bool QtiKeys::TakesSeveral(std::string_view response) const {
  return ValueOf(Declaration(response), "cardinality") != "single";
}

std::vector<QtiAnswer> QtiKeys::Answers(std::string_view response) const {
  const pugi::xml_node declaration = Declaration(response);
  const pugi::xml_node mapping = ChildOf(declaration, "mapping");
  const pugi::xml_node correct = ChildOf(declaration, "correctResponse");
  const bool isText = ValueOf(declaration, "baseType") == "string";
  const double best = BestMapped(mapping);
  std::vector<QtiAnswer> answers;
  std::set<std::string> known;
  for (const pugi::xml_node value : ChildrenOf(correct, "value")) {
    answers.push_back({Utf16ToUtf8(Trimmed(ContentOf(value)))});
    known.insert(answers.back().value);
  }
  for (const pugi::xml_node entry : ChildrenOf(mapping, "mapEntry")) {
    const double score = NumberIn(ValueOf(entry, "mappedValue"), 0);
    std::string key(ValueOf(entry, "mapKey"));
    if (score > 0 && (isText || !correct) && known.insert(key).second)
      answers.push_back({std::move(key), score / best});
  }
  if (isText || answers.empty()) AddFromRules(response, answers);
  return answers;
}

/// "The response matches this value" in a branch that scores.
void QtiKeys::AddFromRules(std::string_view response, std::vector<QtiAnswer>& answers) const {
  std::set<std::string> known;
  for (const QtiAnswer& answer : answers) known.insert(answer.value);
  const double best = BestOfRules();
  for (const pugi::xml_node comparison : ElementsBelow(rules_, {"stringMatch", "match", "equal"})) {
    const pugi::xml_node value = ChildOf(comparison, "baseValue");
    const double score = ScoreOfBranch(BranchOf(comparison));
    if (!value || score <= 0 || ValueOf(ChildOf(comparison, "variable"), "identifier") != response) continue;
    std::string text = Utf16ToUtf8(Trimmed(ContentOf(value)));
    if (known.insert(text).second) answers.push_back({std::move(text), score / best, true});
  }
}

std::vector<std::string> QtiKeys::PartlyRight(std::string_view response) const {
  const pugi::xml_node declaration = Declaration(response);
  std::set<std::string> right;
  for (const QtiAnswer& answer : Answers(response)) right.insert(answer.value);
  std::vector<std::string> values;
  for (const pugi::xml_node entry : ChildrenOf(ChildOf(declaration, "mapping"), "mapEntry")) {
    std::string key(ValueOf(entry, "mapKey"));
    if (NumberIn(ValueOf(entry, "mappedValue"), 0) > 0 && !right.contains(key))
      values.push_back(std::move(key));
  }
  return values;
}

std::vector<std::string> QtiKeys::Tolerances() const {
  std::vector<std::string> tolerances;
  for (const pugi::xml_node comparison : ElementsBelow(rules_, {"equal"})) {
    const std::string mode(ValueOf(comparison, "toleranceMode"));
    const std::string tolerance(ValueOf(comparison, "tolerance"));
    if (mode != "exact" && !tolerance.empty())
      tolerances.push_back("\xC2\xB1 " + tolerance + (mode == "relative" ? " %" : ""));
  }
  return tolerances;
}

double QtiKeys::BestOfRules() const {
  double best = 0;
  for (const pugi::xml_node set : ElementsBelow(rules_, {"setOutcomeValue"}))
    best = std::max(best, ScoreSetBy(set));
  return best;
}

/// What all mappings give together, each within its bounds.
std::optional<double> QtiKeys::BestOfMappings() const {
  double sum = 0;
  for (const pugi::xml_node declaration : ChildrenOf(item_, "responseDeclaration")) {
    const pugi::xml_node mapping = ChildOf(declaration, "mapping");
    const bool takesSeveral = ValueOf(declaration, "cardinality") != "single";
    const double score = takesSeveral ? AllMapped(mapping) : BestMapped(mapping);
    sum += std::min(score, NumberIn(ValueOf(mapping, "upperBound"), score));
  }
  return sum > 0 ? std::optional(sum) : std::nullopt;
}

std::optional<double> QtiKeys::Maximum() const {
  double most = 0;
  for (const pugi::xml_node outcome : ChildrenOf(item_, "outcomeDeclaration")) {
    const std::string_view name = ValueOf(outcome, "identifier");
    if (name == kScore) most = std::max(0.0, NumberIn(ValueOf(outcome, "normalMaximum"), 0));
    if (name != "MAXSCORE") continue;
    const double value = NumberIn(ChildOf(ChildOf(outcome, "defaultValue"), "value").text().get(), -1);
    if (value >= 0) return value;
  }
  if (most > 0) return most;
  if (ValueOf(rules_, "template").ends_with("map_response")) return BestOfMappings();
  const double best = BestOfRules();
  return best > 0 ? std::optional(best) : std::nullopt;
}

}  // namespace quorvantis
