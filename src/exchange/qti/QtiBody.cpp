// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiBody.h"

#include "exchange/markup/Addresses.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "text/HtmlEscape.h"

#include <filesystem>

namespace quorvantis {
namespace {

constexpr std::size_t kMostIncludes = 20;  // of one item; each can be large

}  // namespace

void IncludeParts(QtiPackage& package, const std::string& from, pugi::xml_node body) {
  std::size_t left = kMostIncludes;
  for (pugi::xml_node include : ElementsBelow(body, {"include"})) {
    const std::string_view address = ValueOf(include, "href");
    pugi::xml_document part;
    if (left == 0 || address.empty() || !package.Parse(PathBeside(from, address), part)) continue;
    --left;
    include.parent().insert_copy_after(part.document_element(), include);
    include.parent().remove_child(include);
  }
}

void MakeLinksOfObjects(pugi::xml_node body) {
  for (pugi::xml_node object : ElementsBelow(body, {"object"})) {
    const std::string address(ValueOf(object, "data"));
    if (address.empty() || IsOfTheNet(TextOf(address))) continue;
    pugi::xml_node link = object.parent().insert_child_before("a", object);
    link.append_attribute("href").set_value(address.c_str());
    link.append_child(pugi::node_pcdata).set_value(address.c_str());
    object.parent().remove_child(object);
  }
}

std::u16string TextOfElement(pugi::xml_node element, HtmlReading& html, ExchangedQuestion& question) {
  const std::u16string content = ContentOf(element);
  const bool hasElements = static_cast<bool>(
      element.find_child([](pugi::xml_node child) { return child.type() == pugi::node_element; }));
  // Without elements it has been unescaped already.
  return html.Read(hasElements ? content : EscapeHtml(content), question);
}

std::string PathBeside(const std::string& from, std::string_view address) {
  const std::filesystem::path folder = std::filesystem::path(from).parent_path();
  return (folder / std::string(address)).lexically_normal().generic_string();
}

std::string BaseOf(const std::string& from, pugi::xml_node element) {
  const std::string_view base = ValueOf(element, "base");
  if (base.empty() || IsOfTheNet(TextOf(base))) return from;
  return PathBeside(from, base);
}

}  // namespace quorvantis
