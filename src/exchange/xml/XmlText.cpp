// SPDX-License-Identifier: MIT
#include "exchange/xml/XmlText.h"

#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace quorvantis {
namespace {

constexpr std::size_t kMostXmlNodes = 3'000'000;  // each takes about a hundred bytes
constexpr int kMostNestedXml = 200;               // what walks and copies trees calls itself

bool IsNestedTooDeeply(pugi::xml_node root) {
  int depth = 0;
  pugi::xml_node node = root;
  while (true) {
    if (node.first_child()) {
      node = node.first_child();
      if (++depth > kMostNestedXml) return true;
      continue;
    }
    while (node != root && !node.next_sibling()) {
      node = node.parent();
      --depth;
    }
    if (node == root) return false;
    node = node.next_sibling();
  }
}

/// Text in a code page that the parser does not know becomes UTF-8. False if that is not needed.
bool ToUtf8(std::string& bytes, ExchangeNotes& notes) {
  std::string head = bytes.substr(0, bytes.substr(0, 200).find("?>"));
  std::ranges::transform(head, head.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
  const bool isKnown = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
                       head.find("iso-8859-1\"") != head.npos || head.find("iso-8859-1'") != head.npos;
  if (isKnown || IsUtf8(bytes)) return false;
  const DecodedText decoded = DecodeText(bytes);
  bytes = Utf16ToUtf8(decoded.text);
  if (head.find("windows-1252") == head.npos) notes.Tell(decoded.doubt);
  return true;
}

}  // namespace

void XmlWriter::OpenTag(std::string_view name, XmlAttributes attributes, std::string_view end) {
  xml_.append(2 * depth_, ' ').append("<").append(name);
  for (const auto& [attribute, value] : attributes)
    xml_.append(" ").append(attribute).append("=\"").append(EscapedXml(value)).append("\"");
  xml_ += end;
}

void XmlWriter::Begin(std::string_view name, XmlAttributes attributes) {
  OpenTag(name, attributes, ">\n");
  ++depth_;
}

void XmlWriter::End(std::string_view name) {
  --depth_;
  xml_.append(2 * depth_, ' ').append("</").append(name).append(">\n");
}

void XmlWriter::Empty(std::string_view name, XmlAttributes attributes) {
  OpenTag(name, attributes, "/>\n");
}

void XmlWriter::Text(std::string_view name, std::string_view characters, XmlAttributes attributes) {
  Raw(name, EscapedXml(characters), attributes);
}

void XmlWriter::Raw(std::string_view name, std::string_view xml, XmlAttributes attributes) {
  OpenTag(name, attributes, ">");
  xml_.append(xml).append("</").append(name).append(">\n");
}

std::string EscapedXml(std::string_view utf8) {
  std::string escaped;
  for (const char c : utf8) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped.push_back(c);
    }
  }
  return escaped;
}

std::string CdataOf(std::string_view characters) {
  std::string section = "<![CDATA[";
  for (std::size_t at = 0; at < characters.size();) {
    const std::size_t end = characters.find("]]>", at);
    const std::size_t length = end == characters.npos ? characters.size() - at : end - at + 2;
    section += characters.substr(at, length);
    if (end != characters.npos) section += "]]><![CDATA[";
    at += length;
  }
  return section + "]]>";
}

std::u16string TextOf(std::string_view utf8) {
  return Utf8ToUtf16(utf8);
}

std::u16string ContentOf(pugi::xml_node element) {
  std::string characters;
  bool hasElements = false;
  for (const pugi::xml_node child : element.children()) {
    hasElements = hasElements || child.type() == pugi::node_element;
    characters += child.value();
  }
  if (!hasElements) return TextOf(characters);
  std::ostringstream xml;
  for (const pugi::xml_node child : element.children())
    child.print(xml, "", pugi::format_raw, pugi::encoding_utf8);
  return TextOf(xml.str());
}

std::u16string ContentOfChild(pugi::xml_node parent, std::string_view name) {
  return ContentOf(ChildOf(parent, name));
}

std::vector<pugi::xml_node> ChildrenOf(pugi::xml_node parent, std::string_view name) {
  std::vector<pugi::xml_node> children;
  for (const pugi::xml_node child : parent.children()) {
    if (LocalName(child) == name) children.push_back(child);
  }
  return children;
}

std::vector<pugi::xml_node> ElementsBelow(pugi::xml_node parent,
                                          std::initializer_list<std::string_view> names) {
  std::vector<pugi::xml_node> found;
  pugi::xml_node node = parent.first_child();
  while (node) {
    const bool isWanted = std::find(names.begin(), names.end(), LocalName(node)) != names.end();
    if (isWanted) found.push_back(node);
    if (!isWanted && node.first_child()) {
      node = node.first_child();
      continue;
    }
    while (node != parent && !node.next_sibling()) node = node.parent();
    if (node == parent) break;
    node = node.next_sibling();
  }
  return found;
}

double NumberIn(std::string_view text, double otherwise) {
  const std::u16string number = TextOf(text.substr(0, 40));
  if (number.find_first_of(u"0123456789") == number.npos) return otherwise;
  const double value = ParseReal(number);
  return std::isfinite(value) ? value : otherwise;
}

bool ParseForeignXml(std::string bytes, pugi::xml_document& document, ExchangeNotes& notes) {
  if (bytes.find("<!ENTITY") != bytes.npos) notes.Tell(text_id::kExchangeEntities);
  const auto nodes = static_cast<std::size_t>(std::ranges::count(bytes, '<'));
  if (nodes > kMostXmlNodes) {
    notes.Tell(text_id::kExchangeSourceTooLarge);
    return false;
  }
  // Blanks between two words in bold are text, too.
  constexpr unsigned kOptions = pugi::parse_default | pugi::parse_ws_pcdata;
  const bool isText = ToUtf8(bytes, notes);
  const auto parsed = document.load_buffer(bytes.data(), bytes.size(), kOptions,
                                           isText ? pugi::encoding_utf8 : pugi::encoding_auto);
  if (!parsed) {
    notes.Tell(text_id::kExchangeDamaged);
    return false;
  }
  if (!IsNestedTooDeeply(document)) return true;
  notes.Tell(text_id::kExchangeNestedTooDeeply, {FormatInteger(kMostNestedXml)});
  return false;
}

}  // namespace quorvantis
