// SPDX-License-Identifier: MIT
#include "FormatRules.h"

#include <algorithm>
#include <map>
#include <set>

namespace quorvantis::test {
namespace {

/// The elements of an item that exports of exams need, as the definition of QTI 2.1 puts them together.
const ElementRules& ItemRules() {
  static const ElementRules rules{
      {{"assessmentItem",
        "responseDeclaration* outcomeDeclaration* templateDeclaration* stylesheet* itemBody? "
        "responseProcessing? "
        "modalFeedback*",
        "identifier!=id title! label lang adaptive!=bool timeDependent!=bool toolName toolVersion"},
       {"responseDeclaration", "defaultValue? correctResponse? mapping?",
        "identifier!=id cardinality!=single|multiple|ordered baseType=identifier|string|integer|float|file"},
       {"outcomeDeclaration", "defaultValue?",
        "identifier!=id cardinality!=single baseType=float|integer|string"},
       {"defaultValue", "value+", ""},
       {"correctResponse", "value+", ""},
       {"value", "#", ""},
       {"mapping", "mapEntry+", "lowerBound=float upperBound=float defaultValue=float"},
       {"mapEntry", "", "mapKey! mappedValue!=float caseSensitive=bool"},
       {"stylesheet", "", "href!=uri type! media title"},
       {"itemBody", "%block*", ""},
       {"p", "# %inline*", ""},
       {"div", "# %flow*", ""},
       {"rubricBlock", "%block*", "view!=author|candidate|proctor|scorer|testConstructor|tutor"},
       {"choiceInteraction", "prompt? simpleChoice+",
        "responseIdentifier!=id shuffle!=bool maxChoices!=int minChoices=int"},
       {"simpleChoice", "# %static*", "identifier!=id fixed=bool"},
       {"prompt", "# %static*", ""},
       {"extendedTextInteraction", "prompt?",
        "responseIdentifier!=id expectedLength=int expectedLines=int maxStrings=int minStrings=int"},
       {"textEntryInteraction", "", "responseIdentifier!=id expectedLength=int"},
       {"uploadInteraction", "prompt?", "responseIdentifier!=id type"},
       {"b", "# %inline*", ""},
       {"big", "# %inline*", ""},
       {"cite", "# %inline*", ""},
       {"code", "# %inline*", ""},
       {"em", "# %inline*", ""},
       {"i", "# %inline*", ""},
       {"kbd", "# %inline*", ""},
       {"q", "# %inline*", ""},
       {"samp", "# %inline*", ""},
       {"small", "# %inline*", ""},
       {"span", "# %inline*", ""},
       {"strong", "# %inline*", ""},
       {"sub", "# %inline*", ""},
       {"sup", "# %inline*", ""},
       {"tt", "# %inline*", ""},
       {"var", "# %inline*", ""},
       {"a", "# %simple*", "href!=uri type"},
       {"br", "", ""},
       {"img", "", "src!=uri alt! longdesc height width"},
       {"responseProcessing", "setOutcomeValue*", "template=uri"},
       {"setOutcomeValue", "%expression", "identifier!=id"},
       {"divide", "%expression %expression", ""},
       {"sum", "%expression+", ""},
       {"mapResponse", "", "identifier!=id"},
       {"baseValue", "#", "baseType!=float|integer"}},
      {{"simple", "b big br cite code em i img kbd q samp small span strong sub sup tt var"},
       {"inline", "%simple a textEntryInteraction"},
       {"static", "%simple a p div"},
       {"block", "p div rubricBlock choiceInteraction extendedTextInteraction uploadInteraction"},
       {"flow", "%inline %block"},
       {"expression", "divide sum mapResponse baseValue"}},
      "id=id class lang label"};
  return rules;
}

constexpr std::string_view kInteractions[] = {"choiceInteraction", "extendedTextInteraction",
                                              "textEntryInteraction", "uploadInteraction"};

/// Judges what the parts of one item say of each other.
class ItemJudge {
 public:
  ItemJudge(pugi::xml_node item, Faults& faults) : item_(item), faults_(faults) {}

  void Judge() {
    std::set<std::string> names;
    for (const std::string_view kind : {"responseDeclaration", "outcomeDeclaration", "simpleChoice"}) {
      for (const pugi::xml_node named : Descendants(item_, kind)) {
        if (!names.insert(named.attribute("identifier").value()).second)
          Tell(named, "has the identifier of another");
      }
    }
    for (const pugi::xml_node declared : item_.children("responseDeclaration"))
      declared_[declared.attribute("identifier").value()] = declared;
    std::set<std::string> asked;
    for (const std::string_view kind : kInteractions) {
      for (const pugi::xml_node interaction : Descendants(item_, kind)) {
        const std::string name = interaction.attribute("responseIdentifier").value();
        if (!asked.insert(name).second) Tell(interaction, "shares its response");
        JudgeInteraction(interaction, declared_[name]);
      }
    }
    for (const auto& [name, declared] : declared_) {
      if (!asked.contains(name)) Tell(item_, "never asks for " + name);
      if (declared) JudgeValues(declared);
    }
    if (asked.empty()) Tell(item_, "asks nothing");
    JudgeProcessing();
  }

 private:
  void Tell(pugi::xml_node node, const std::string& fault) { faults_.push_back(PlaceOf(node) + " " + fault); }

  static std::string Type(pugi::xml_node declared) {
    return std::string(declared.attribute("cardinality").value()) + " " +
           declared.attribute("baseType").value();
  }

  void JudgeInteraction(pugi::xml_node interaction, pugi::xml_node declared) {
    if (!declared) return Tell(interaction, "has no declared response");
    const std::string_view kind = interaction.name();
    std::string wanted = "single string";
    if (kind == "uploadInteraction") wanted = "single file";
    if (kind == "choiceInteraction") {
      const bool isSingle = interaction.attribute("maxChoices").as_int() == 1;
      wanted = isSingle ? "single identifier" : "multiple identifier";
      JudgeChoices(interaction, declared);
    }
    if (Type(declared) != wanted) Tell(declared, "is " + Type(declared) + ", not " + wanted);
  }

  void JudgeChoices(pugi::xml_node interaction, pugi::xml_node declared) {
    std::set<std::string> choices;
    for (const pugi::xml_node choice : interaction.children("simpleChoice"))
      choices.insert(choice.attribute("identifier").value());
    const auto most = interaction.attribute("maxChoices").as_uint();
    if (most > choices.size()) Tell(interaction, "lets choose more than there are");
    std::set<std::string> rights;
    for (const pugi::xml_node value : declared.child("correctResponse").children("value")) {
      const std::string name = value.child_value();
      if (!choices.contains(name)) Tell(value, "is no choice: " + name);
      if (!rights.insert(name).second) Tell(value, "is there twice");
    }
    if (most > 0 && rights.size() > most) Tell(declared, "has more right choices than can be chosen");
  }

  void JudgeValues(pugi::xml_node declared) {
    const auto values = declared.child("correctResponse").children("value");
    const auto count = std::distance(values.begin(), values.end());
    if (count > 1 && declared.attribute("cardinality").value() == std::string("single"))
      Tell(declared, "has several values");
    std::set<std::string> keys;
    for (const pugi::xml_node entry : declared.child("mapping").children("mapEntry")) {
      if (!keys.insert(entry.attribute("mapKey").value()).second) Tell(entry, "is there twice");
    }
    const bool isMapped = declared.child("mapping");
    if (isMapped && (count != 1 || !keys.contains(declared.child("correctResponse").child_value("value"))))
      Tell(declared, "maps other values than the correct one");
  }

  void JudgeProcessing() {
    const pugi::xml_node processing = item_.child("responseProcessing");
    if (!processing) return;
    RequireOutcome(processing, "SCORE");
    const std::string_view name = processing.attribute("template").value();
    if (!name.empty()) {
      const std::size_t folder = name.rfind('/') + 1;
      if (name.substr(0, folder) != "http://www.imsglobal.org/question/qti_v2p1/rptemplates/")
        Tell(processing, "has an unknown template");
      if (name.substr(folder) == "map_response") return RequireMapping(processing, "RESPONSE");
      if (name.substr(folder) != "match_correct") Tell(processing, "has an unknown template");
      if (!declared_["RESPONSE"]) Tell(processing, "is about a response that is not declared");
      return;
    }
    if (!processing.child("setOutcomeValue")) Tell(processing, "says nothing");
    for (const pugi::xml_node set : processing.children("setOutcomeValue"))
      RequireOutcome(set, set.attribute("identifier").value());
    for (const pugi::xml_node mapped : Descendants(processing, "mapResponse"))
      RequireMapping(mapped, mapped.attribute("identifier").value());
  }

  void RequireOutcome(pugi::xml_node user, const std::string& name) {
    if (!item_.find_child_by_attribute("outcomeDeclaration", "identifier", name.c_str()))
      Tell(user, "sets what is not declared: " + name);
  }

  void RequireMapping(pugi::xml_node user, const std::string& name) {
    if (!declared_[name].child("mapping")) Tell(user, "maps what has no mapping: " + name);
  }

  pugi::xml_node item_;
  Faults& faults_;
  std::map<std::string, pugi::xml_node> declared_;
};

}  // namespace

void CheckQtiItem(pugi::xml_node item, const std::function<void(const std::string& address)>& addressed,
                  Faults& faults) {
  CheckElements(item, ItemRules(), faults);
  ItemJudge(item, faults).Judge();
  for (const auto& [element, attribute] : {std::pair("img", "src"), {"a", "href"}, {"stylesheet", "href"}}) {
    for (const pugi::xml_node node : Descendants(item, element)) addressed(node.attribute(attribute).value());
  }
}

}  // namespace quorvantis::test
