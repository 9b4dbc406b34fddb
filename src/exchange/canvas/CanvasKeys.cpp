// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasKeys.h"

#include "exchange/form/TextSource.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "text/Utf.h"

#include <algorithm>
#include <set>

namespace quorvantis {
namespace {

constexpr std::string_view kFullScore = "SCORE.max";
constexpr double kPercent = 100;  // many programs score in it

bool IsBelowNot(pugi::xml_node node) {
  for (pugi::xml_node above = node.parent(); above && LocalName(above) != "conditionvar";
       above = above.parent()) {
    if (LocalName(above) == "not") return true;
  }
  return false;
}

/// A condition that says neither what it scores nor what it shows is a list of answers.
bool OnlyListsAnswers(pugi::xml_node condition) {
  return ChildrenOf(condition, "setvar").empty() && ChildrenOf(condition, "displayfeedback").empty();
}

}  // namespace

CanvasKeys::CanvasKeys(pugi::xml_node item) {
  const pugi::xml_node processing = ChildOf(item, "resprocessing");
  for (const pugi::xml_node outcome : ElementsBelow(ChildOf(processing, "outcomes"), {"decvar"}))
    most_ = std::max(most_, NumberIn(ValueOf(outcome, "maxvalue"), 0));
  const std::vector<pugi::xml_node> conditions = ElementsBelow(processing, {"respcondition"});
  for (const pugi::xml_node condition : conditions) ReadCondition(condition);
  const bool earns = std::ranges::any_of(comparisons_, [](const Comparison& one) { return one.score > 0; });
  std::size_t at = 0;
  for (const pugi::xml_node condition : conditions) {
    const std::size_t end = at + ElementsBelow(ChildOf(condition, "conditionvar"), {"varequal"}).size();
    for (; at < end; ++at) {
      Comparison& one = comparisons_[at];
      if (!earns && OnlyListsAnswers(condition)) one.score = 1;
      double& score = scores_[{one.response, one.value}];
      score = std::max(score, one.score);
    }
  }
}

void CanvasKeys::ReadCondition(pugi::xml_node condition) {
  const double score = ScoreOfCondition(condition);
  for (const pugi::xml_node test : ElementsBelow(ChildOf(condition, "conditionvar"), {"varequal"})) {
    const std::string value = Utf16ToUtf8(Trimmed(ContentOf(test)));
    comparisons_.push_back({std::string(ValueOf(test, "respident")), value, IsBelowNot(test) ? 0 : score});
  }
}

double CanvasKeys::ScoreOfCondition(pugi::xml_node condition) {
  double score = 0;
  for (const pugi::xml_node set : ChildrenOf(condition, "setvar")) {
    const std::string_view text = set.text().get();
    const double value = text == kFullScore ? std::max(most_, 1.0) : NumberIn(text, 0);
    score = std::max(score, value);
    addUp_ = addUp_ || (ValueOf(set, "action") == "Add" && value > 0);
  }
  best_ = std::max(best_, score);
  return score;
}

double CanvasKeys::ScoreOf(std::string_view response, std::string_view value) const {
  const auto score = scores_.find(std::pair(std::string(response), std::string(value)));
  return score != scores_.end() ? score->second : 0;
}

bool CanvasKeys::IsRight(std::string_view response, std::string_view value) const {
  return ScoreOf(response, value) > 0;
}

std::vector<CanvasKeys::Comparison> CanvasKeys::Rights() const {
  std::vector<Comparison> rights;
  std::set<std::string> known;
  for (const Comparison& one : comparisons_) {
    if (one.score > 0 && known.insert(one.value).second) rights.push_back(one);
  }
  return rights;
}

std::optional<double> CanvasKeys::Maximum() const {
  const double score = most_ > 0 ? most_ : (addUp_ ? 0 : best_);
  return score > 0 && score != kPercent ? std::optional(score) : std::nullopt;
}

}  // namespace quorvantis
