// SPDX-License-Identifier: MIT
#include "platform/documents/XmlPart.h"

#include <algorithm>
#include <charconv>

namespace quorvantis {
namespace {

constexpr std::size_t kMostTreeBytes = std::size_t{512} << 20;

std::string_view WithoutPrefix(std::string_view name) {
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// An upper bound: every node begins with '<' or follows one, every attribute has a '='.
std::size_t TreeBytes(std::string_view xml) {
  constexpr std::size_t kNodeBytes = 64;
  constexpr std::size_t kAttributeBytes = 40;
  const auto count = [xml](char c) { return static_cast<std::size_t>(std::ranges::count(xml, c)); };
  return 2 * kNodeBytes * count('<') + kAttributeBytes * count('=');
}

}  // namespace

WordResult ParseXml(PackagePart part, pugi::xml_document& document) {
  if (part.result != WordResult::Done) return part.result;
  if (TreeBytes(part.bytes) > kMostTreeBytes) return WordResult::TooLarge;
  // A text of blanks alone would otherwise vanish. Entities of a DTD are never expanded.
  constexpr unsigned kOptions = pugi::parse_default | pugi::parse_ws_pcdata_single;
  const auto parsed = document.load_buffer(part.bytes.data(), part.bytes.size(), kOptions);
  if (parsed.status == pugi::status_out_of_memory) return WordResult::TooLarge;
  return parsed ? WordResult::Done : WordResult::Damaged;
}

std::string_view LocalName(pugi::xml_node node) {
  return WithoutPrefix(node.name());
}

pugi::xml_node ChildOf(pugi::xml_node node, std::string_view localName) {
  return node.find_child([localName](pugi::xml_node child) { return LocalName(child) == localName; });
}

std::string_view ValueOf(pugi::xml_node node, std::string_view localName) {
  return node
      .find_attribute([localName](pugi::xml_attribute a) { return WithoutPrefix(a.name()) == localName; })
      .value();
}

int NumberOf(pugi::xml_node node, int otherwise, std::string_view localName) {
  const std::string_view text = ValueOf(node, localName);
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() ? value : otherwise;
}

bool IsOn(pugi::xml_node property) {
  const std::string_view value = ValueOf(property);
  return property && value != "0" && value != "false" && value != "off";
}

}  // namespace quorvantis
