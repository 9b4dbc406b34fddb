// SPDX-License-Identifier: MIT
// What elements of a format may have, as its definition says: a small independent judge of exported XML,
// which shares nothing with those who write it.
#pragma once

#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::test {

/// What is wrong with a file, in the order of the file.
using Faults = std::vector<std::string>;

/// The files of a package by their names.
using PackageParts = std::map<std::string, std::string>;

/// What one element may have.
struct ElementRule {
  std::string_view name;
  /// Its children in order: names, or groups with "%" in front; "?", "*" and "+" count them. "#": characters.
  std::string_view content;
  /// Names; "!" behind those that must be there, then "=" and a type: id, uri, bool, int, float, or
  /// "one|of|these" or "|one".
  std::string_view attributes;
};

/// The rules of one format.
struct ElementRules {
  std::vector<ElementRule> elements;
  std::map<std::string_view, std::string_view> groups{};  ///< names by the name of the group
  /// Attributes of every element, as in a rule.
  std::string_view everywhere{};
};

/// Tells each element below `root`, itself included, that breaks a rule or has none.
void CheckElements(pugi::xml_node root, const ElementRules& rules, Faults& faults);

/// A document, or nothing: then that is told. White space is kept.
bool ParseStrictly(const std::string& name, const std::string& bytes, pugi::xml_document& document,
                   Faults& faults);

/// "quiz/question[2]/answer[1]".
std::string PlaceOf(pugi::xml_node node);

/// All elements below `node` of that name.
std::vector<pugi::xml_node> Descendants(pugi::xml_node node, std::string_view name);

/// The characters of an element without others inside.
std::string CharactersIn(pugi::xml_node node);

std::vector<std::string_view> WordsOf(std::string_view text, char separator = ' ');

/// Whether XML takes it for a name without a colon.
bool IsIdentifier(std::string_view text);
bool IsFloat(std::string_view text);

/// An address with its escapes resolved.
std::string UnescapedAddress(std::string_view address);

}  // namespace quorvantis::test
