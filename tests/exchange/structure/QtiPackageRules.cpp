// SPDX-License-Identifier: MIT
#include "FormatRules.h"

#include <set>

namespace quorvantis::test {
namespace {

constexpr std::string_view kQtiNamespace = "http://www.imsglobal.org/xsd/imsqti_v2p1";

const ElementRules& TestRules() {
  static const ElementRules rules{
      {{"assessmentTest", "outcomeDeclaration* testPart+ outcomeProcessing?", "identifier!=id title!"},
       {"outcomeDeclaration", "defaultValue?", "identifier!=id cardinality!=single baseType=|float"},
       {"defaultValue", "value+", ""},
       {"value", "#", ""},
       {"testPart", "assessmentSection+",
        "identifier!=id navigationMode!=linear|nonlinear submissionMode!=individual|simultaneous"},
       {"assessmentSection", "assessmentItemRef*", "identifier!=id title! visible!=bool"},
       {"assessmentItemRef", "weight*", "identifier!=id href!=uri category"},
       {"weight", "", "identifier!=id value!=float"},
       {"outcomeProcessing", "setOutcomeValue*", ""},
       {"setOutcomeValue", "sum", "identifier!=id"},
       {"sum", "testVariables+", ""},
       {"testVariables", "", "variableIdentifier!=id weightIdentifier=id"}}};
  return rules;
}

/// The file that an address in a file of the package leads to.
std::string Target(const std::string& from, const std::string& address) {
  const auto folder = std::filesystem::path(from).parent_path();
  return (folder / UnescapedAddress(address)).lexically_normal().string();
}

/// Judges one package.
class QtiPackageJudge {
 public:
  explicit QtiPackageJudge(const PackageParts& parts) : parts_(parts) {}

  Faults Judge() {
    CheckManifest(
        parts_, [this](pugi::xml_node resource) { Take(resource); }, faults_);
    if (tests_ != 1) faults_.emplace_back("has not one test");
    if (items_ != referred_) faults_.emplace_back("the test has other items than the manifest");
    return faults_;
  }

 private:
  void Take(pugi::xml_node resource) {
    const std::string type = resource.attribute("type").value();
    const std::string name = resource.attribute("href").value();
    const auto part = parts_.find(name);
    if (part == parts_.end()) return faults_.push_back("there is no " + name);
    pugi::xml_document document;
    if (!ParseStrictly(name, part->second, document, faults_)) return;
    const pugi::xml_node root = document.document_element();
    if (root.attribute("xmlns").value() != kQtiNamespace) faults_.push_back(name + " is of another language");
    Faults found;
    if (type == "imsqti_test_xmlv2p1") {
      ++tests_;
      JudgeTest(root, name, found);
    } else if (type == "imsqti_item_xmlv2p1") {
      items_.insert(name);
      JudgeItem(root, resource, name, found);
    } else {
      found.push_back(" is an unknown resource: " + type);
    }
    for (const std::string& fault : found) faults_.push_back(name + ": " + fault);
  }

  void JudgeTest(pugi::xml_node test, const std::string& name, Faults& found) {
    CheckElements(test, TestRules(), found);
    std::set<std::string> identifiers;
    for (const std::string_view kind : {"testPart", "assessmentSection", "assessmentItemRef"}) {
      for (const pugi::xml_node node : Descendants(test, kind)) {
        if (!identifiers.insert(node.attribute("identifier").value()).second)
          found.push_back(PlaceOf(node) + " has the identifier of another");
      }
    }
    for (const pugi::xml_node item : Descendants(test, "assessmentItemRef"))
      referred_.insert(Target(name, item.attribute("href").value()));
    for (const pugi::xml_node weight : Descendants(test, "testVariables")) {
      for (const pugi::xml_node item : Descendants(test, "assessmentItemRef")) {
        const char* const wanted = weight.attribute("weightIdentifier").value();
        if (!item.find_child_by_attribute("weight", "identifier", wanted))
          found.push_back(PlaceOf(item) + " lacks the weight " + wanted);
      }
    }
    for (const pugi::xml_node set : Descendants(test, "setOutcomeValue")) {
      const char* const wanted = set.attribute("identifier").value();
      if (!test.find_child_by_attribute("outcomeDeclaration", "identifier", wanted))
        found.push_back(PlaceOf(set) + " sets what is not declared");
    }
  }

  void JudgeItem(pugi::xml_node item, pugi::xml_node resource, const std::string& name, Faults& found) {
    std::set<std::string> listed;
    for (const pugi::xml_node file : resource.children("file"))
      listed.insert(UnescapedAddress(file.attribute("href").value()));
    std::set<std::string> used{name};
    const auto take = [&](const std::string& address) {
      const std::string target = Target(name, address);
      if (!listed.contains(target)) found.push_back("refers to a file that is not listed: " + address);
      used.insert(target);
    };
    CheckQtiItem(item, take, found);
    for (const std::string& file : listed) {
      if (!used.contains(file)) found.push_back("never refers to " + file);
    }
    if (item.attribute("identifier").value() != std::string_view(resource.attribute("identifier").value()))
      found.emplace_back("has another identifier in the manifest");
  }

  const PackageParts& parts_;
  Faults faults_;
  int tests_ = 0;
  std::set<std::string> items_;
  std::set<std::string> referred_;
};

}  // namespace

Faults CheckQtiPackage(const PackageParts& parts) {
  return QtiPackageJudge(parts).Judge();
}

}  // namespace quorvantis::test
