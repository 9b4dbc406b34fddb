// SPDX-License-Identifier: MIT
#include "platform/office/FieldNesting.h"

#include "platform/office/RevisionMarks.h"
#include "platform/office/XmlPart.h"

namespace quorvantis {
namespace {

constexpr std::size_t kMostInstruction = 64;  // the name of the field is all that matters

/// The node behind `node` and its children in the order of the document; none behind `root`.
pugi::xml_node NextBeside(pugi::xml_node node, pugi::xml_node root) {
  while (node != root && !node.next_sibling()) node = node.parent();
  return node == root ? pugi::xml_node() : node.next_sibling();
}

bool IsEquation(std::string_view instruction) {
  const std::size_t start = instruction.find_first_not_of(" \t");
  if (start == std::string_view::npos) return false;
  const std::string_view name = instruction.substr(start, instruction.find_first_of(" \t\\", start) - start);
  return name == "EQ" || name == "eq" || name == "Eq";
}

}  // namespace

FieldNesting::FieldNesting(pugi::xml_node body) {
  std::vector<std::size_t> begun;
  for (pugi::xml_node node = body.first_child(); node;) {
    const bool enter = !IsDeletion(node) && node.first_child();
    if (LocalName(node) == "fldChar") {
      const std::string_view type = ValueOf(node, "fldCharType");
      if (type == "begin") begun.push_back(node.hash_value());
      if (type == "end" && !begun.empty()) {
        complete_.insert(begun.back());
        begun.pop_back();
      }
    }
    node = enter ? node.first_child() : NextBeside(node, body);
  }
}

bool FieldNesting::Take(pugi::xml_node fieldCharacter) {
  const std::string_view type = ValueOf(fieldCharacter, "fldCharType");
  if (type == "begin" && complete_.contains(fieldCharacter.hash_value())) {
    open_.emplace_back();
    ++instructions_;
  }
  if (open_.empty()) return false;
  if (type == "separate" && !open_.back().inResult) {
    open_.back().inResult = true;
    --instructions_;
  }
  if (type != "end") return false;
  const Field ended = std::move(open_.back());
  open_.pop_back();
  if (!ended.inResult) --instructions_;
  return !ended.inResult && IsEquation(ended.instruction);
}

void FieldNesting::AddInstruction(std::string_view text) {
  if (open_.empty() || open_.back().instruction.size() > kMostInstruction) return;
  open_.back().instruction += text.substr(0, kMostInstruction);
}

}  // namespace quorvantis
