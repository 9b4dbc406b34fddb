// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiTest.h"

#include "exchange/qti/QtiBody.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kMostSectionParts = 200;  // sections of a test in parts of their own

}  // namespace

void QtiTest::Read(const std::string& name) {
  std::vector<OpenPart> parts;
  Open(name, parts);
  while (!parts.empty()) {
    if (parts.back().next == parts.back().elements.size()) {
      parts.pop_back();
      continue;
    }
    const pugi::xml_node element = parts.back().elements[parts.back().next++];
    const std::string part = parts.back().name;
    if (LocalName(element) == "assessmentSectionRef") {
      Open(PathBeside(part, ValueOf(element, "href")), parts);
    } else {
      TakeElement(element, part);
    }
  }
}

/// Nothing if the part is open already: a section could refer to itself.
bool QtiTest::Open(const std::string& name, std::vector<OpenPart>& parts) {
  const bool isOpen = std::ranges::any_of(parts, [&name](const OpenPart& part) { return part.name == name; });
  if (isOpen || documents_.size() >= kMostSectionParts) return false;
  documents_.push_back(std::make_unique<pugi::xml_document>());
  pugi::xml_document& document = *documents_.back();
  if (!package_.Parse(name, document)) return false;
  if (title_.empty()) title_ = ValueOf(ChildOf(document, "assessmentTest"), "title");
  parts.push_back({name, ElementsBelow(document, {"assessmentItemRef", "assessmentSectionRef", "rubricBlock",
                                                  "selection", "ordering"})});
  return true;
}

void QtiTest::TakeElement(pugi::xml_node element, const std::string& part) {
  const std::string_view type = LocalName(element);
  if (type == "assessmentItemRef") {
    AddItem(element, part);
  } else if (type == "rubricBlock") {
    passages_.push_back({part, element});
  } else if (type == "selection") {
    tools_.notes.Tell(text_id::kExchangeDrawnByLot, {TextOf(ValueOf(element, "select"))});
  } else if (ValueOf(element, "shuffle") == "true") {
    tools_.notes.Tell(text_id::kExchangeRandomSequence);
  }
}

void QtiTest::AddItem(pugi::xml_node reference, const std::string& part) {
  const std::string_view weight = ValueOf(ChildOf(reference, "weight"), "value");
  items_.push_back({PathBeside(part, ValueOf(reference, "href")),
                    weight.empty() ? std::nullopt : std::optional(std::max(0.0, NumberIn(weight, 1))),
                    std::move(passages_)});
  passages_.clear();
}

}  // namespace quorvantis
