// SPDX-License-Identifier: MIT
#include "ElementRules.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <set>

namespace quorvantis::test {
namespace {

bool HasWord(std::string_view words, std::string_view word, char separator = ' ') {
  const auto list = WordsOf(words, separator);
  return std::ranges::find(list, word) != list.end();
}

bool IsOfType(std::string_view value, std::string_view type) {
  if (type == "id") return IsIdentifier(value);
  if (type == "uri") return !value.empty() && value.find_first_of(" <>\"{}|\\^`") == value.npos;
  if (type == "bool") return value == "true" || value == "false";
  if (type == "int") return !value.empty() && value.find_first_not_of("0123456789") == value.npos;
  if (type == "float") return IsFloat(value);
  return HasWord(type, value, '|');
}

/// Judges elements by the rules of one format.
class ElementJudge {
 public:
  ElementJudge(const ElementRules& rules, Faults& faults) : rules_(rules), faults_(faults) {}

  void Judge(pugi::xml_node node) {
    const auto rule = std::ranges::find(rules_.elements, std::string_view(node.name()), &ElementRule::name);
    if (rule == rules_.elements.end()) return Tell(node, "is no element of the format");
    JudgeContent(node, rule->content);
    JudgeAttributes(node, std::string(rule->attributes) + " " + std::string(rules_.everywhere));
    for (const pugi::xml_node child : node.children()) {
      if (child.type() == pugi::node_element) Judge(child);
    }
  }

 private:
  void Tell(pugi::xml_node node, const std::string& fault) { faults_.push_back(PlaceOf(node) + " " + fault); }

  bool Fits(std::string_view name, std::string_view particle) const {
    if (!particle.starts_with('%')) return name == particle;
    const auto group = rules_.groups.find(particle.substr(1));
    if (group == rules_.groups.end()) return false;
    for (const std::string_view member : WordsOf(group->second)) {
      if (Fits(name, member)) return true;
    }
    return false;
  }

  void JudgeContent(pugi::xml_node node, std::string_view content) {
    std::vector<std::string> names;
    bool hasCharacters = false;
    for (const pugi::xml_node child : node.children()) {
      if (child.type() == pugi::node_element) names.emplace_back(child.name());
      const std::string_view text = child.value();
      const bool isText = child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata;
      hasCharacters = hasCharacters || (isText && text.find_first_not_of(" \t\r\n") != text.npos);
    }
    std::size_t at = 0;
    for (std::string_view particle : WordsOf(content)) {
      if (particle == "#") {
        hasCharacters = false;
        continue;
      }
      const char count =
          std::string_view("?*+").find(particle.back()) != std::string_view::npos ? particle.back() : '1';
      if (count != '1') particle.remove_suffix(1);
      const std::size_t begin = at;
      const std::size_t most = count == '1' || count == '?' ? begin + 1 : names.size();
      while (at < std::min(most, names.size()) && Fits(names[at], particle)) ++at;
      if (at == begin && (count == '1' || count == '+')) Tell(node, "lacks " + std::string(particle));
    }
    if (at < names.size()) Tell(node, "has no place for " + names[at]);
    if (hasCharacters) Tell(node, "has characters");
  }

  void JudgeAttributes(pugi::xml_node node, const std::string& attributes) {
    std::set<std::string_view> seen;
    for (const pugi::xml_attribute attribute : node.attributes()) {
      const std::string_view name = attribute.name();
      if (!seen.insert(name).second) Tell(node, "has twice " + std::string(name));
      const bool isOfXml = name == "xmlns" || name.starts_with("xmlns:") || name.starts_with("xsi:");
      if (isOfXml && node.parent().type() == pugi::node_document) continue;
      JudgeAttribute(node, attribute, attributes);
    }
    for (const std::string_view word : WordsOf(attributes)) {
      const std::string_view name = word.substr(0, word.find_first_of("!="));
      if (word.substr(name.size()).starts_with('!') && !seen.contains(name))
        Tell(node, "lacks the attribute " + std::string(name));
    }
  }

  void JudgeAttribute(pugi::xml_node node, pugi::xml_attribute attribute, const std::string& attributes) {
    const std::string_view name = attribute.name();
    for (const std::string_view word : WordsOf(attributes)) {
      if (word.substr(0, word.find_first_of("!=")) != name) continue;
      const std::size_t type = word.find('=');
      if (type != word.npos && !IsOfType(attribute.value(), word.substr(type + 1)))
        Tell(node, "has " + std::string(name) + " \"" + attribute.value() + "\"");
      return;
    }
    Tell(node, "has the attribute " + std::string(name));
  }

  const ElementRules& rules_;
  Faults& faults_;
};

}  // namespace

void CheckElements(pugi::xml_node root, const ElementRules& rules, Faults& faults) {
  ElementJudge(rules, faults).Judge(root);
}

bool ParseStrictly(const std::string& name, const std::string& bytes, pugi::xml_document& document,
                   Faults& faults) {
  constexpr unsigned kAll = pugi::parse_default | pugi::parse_declaration | pugi::parse_ws_pcdata;
  const pugi::xml_parse_result result =
      document.load_buffer(bytes.data(), bytes.size(), kAll, pugi::encoding_utf8);
  if (!result) faults.push_back(name + " " + result.description() + " at " + std::to_string(result.offset));
  return static_cast<bool>(result);
}

std::string PlaceOf(pugi::xml_node node) {
  const pugi::xml_node parent = node.parent();
  if (!parent || parent.type() == pugi::node_document) return node.name();
  int number = 1;
  for (pugi::xml_node other = node.previous_sibling(node.name()); other;
       other = other.previous_sibling(node.name()))
    ++number;
  return PlaceOf(parent) + "/" + node.name() + "[" + std::to_string(number) + "]";
}

std::vector<pugi::xml_node> Descendants(pugi::xml_node node, std::string_view name) {
  std::vector<pugi::xml_node> found;
  for (const pugi::xml_node child : node.children()) {
    if (child.name() == name) found.push_back(child);
    const auto below = Descendants(child, name);
    found.insert(found.end(), below.begin(), below.end());
  }
  return found;
}

std::string CharactersIn(pugi::xml_node node) {
  std::string characters;
  for (const pugi::xml_node child : node.children()) characters += child.value();
  return characters;
}

std::vector<std::string_view> WordsOf(std::string_view text, char separator) {
  std::vector<std::string_view> words;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(separator, begin), text.size());
    if (end > begin) words.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return words;
}

bool IsIdentifier(std::string_view text) {
  const auto isLetter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '_'; };
  const auto isInside = [&](char c) {
    return isLetter(c) || std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '.';
  };
  return !text.empty() && isLetter(text[0]) && std::ranges::all_of(text, isInside);
}

bool IsFloat(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return !text.empty() && error == std::errc() && end == text.data() + text.size();
}

std::string UnescapedAddress(std::string_view address) {
  std::string bytes;
  for (std::size_t i = 0; i < address.size(); ++i) {
    int value = 0;
    const char* const digits = address.data() + i + 1;
    const bool isEscape = address[i] == '%' && i + 2 < address.size() &&
                          std::from_chars(digits, digits + 2, value, 16).ptr == digits + 2;
    bytes.push_back(isEscape ? static_cast<char>(value) : address[i]);
    if (isEscape) i += 2;
  }
  return bytes;
}

}  // namespace quorvantis::test
