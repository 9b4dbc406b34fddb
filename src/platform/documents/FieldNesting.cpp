// SPDX-License-Identifier: MIT
#include "platform/documents/FieldNesting.h"

#include "platform/documents/RevisionMarks.h"
#include "platform/documents/XmlPart.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kMostInstruction = 64;  // the name of the field is all that matters

/// The node after `node` and its children in document order; none after `root`.
pugi::xml_node NextBeside(pugi::xml_node node, pugi::xml_node root) {
  while (node != root && !node.next_sibling()) node = node.parent();
  return node == root ? pugi::xml_node() : node.next_sibling();
}

/// In capitals, as its name is.
std::string NameOf(std::string_view instruction) {
  std::string name;
  const std::size_t start = std::min(instruction.find_first_not_of(" \t"), instruction.size());
  for (const char c : instruction.substr(start)) {
    if (c == ' ' || c == '\t' || c == '\\') break;
    name += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  return name;
}

}  // namespace

bool FieldNesting::HidesResult(std::string_view instruction) {
  const std::string name = NameOf(instruction);
  return name == "SET" || name == "ASK";
}

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
    ++unseen_;
  }
  if (open_.empty()) return false;
  Field& field = open_.back();
  if (type == "separate" && !field.inResult) {
    field.inResult = true;
    field.isShown = !HidesResult(field.instruction);
    if (field.isShown) --unseen_;
  }
  if (type != "end") return false;
  const Field ended = std::move(field);
  open_.pop_back();
  if (!ended.isShown) --unseen_;
  return !ended.inResult && NameOf(ended.instruction) == "EQ";
}

void FieldNesting::AddInstruction(std::string_view text) {
  if (open_.empty() || open_.back().inResult || open_.back().instruction.size() > kMostInstruction) return;
  open_.back().instruction += text.substr(0, kMostInstruction);
}

}  // namespace quorvantis
