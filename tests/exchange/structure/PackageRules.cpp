// SPDX-License-Identifier: MIT
#include "FormatRules.h"
#include "platform/documents/ZipPackage.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace quorvantis::test {
namespace {

const ElementRules& ManifestRules() {
  static const ElementRules rules{
      {{"manifest", "metadata? organizations resources", "identifier!=id version"},
       {"metadata", "schema? schemaversion?", ""},
       {"schema", "#", ""},
       {"schemaversion", "#", ""},
       {"organizations", "", "default"},
       {"resources", "resource*", ""},
       {"resource", "metadata? file* dependency*", "identifier!=id type! href=uri"},
       {"file", "", "href!=uri"},
       {"dependency", "", "identifierref!=id"}}};
  return rules;
}

/// Names that any file system takes, and that stay below the folder of the package.
bool IsPortable(const std::string& name) {
  const auto isPlain = [](char c) {
    return c > ' ' && c < 127 && std::string_view("<>:\"|?*\\%&'`").find(c) == std::string_view::npos;
  };
  return std::ranges::all_of(name, isPlain) && !name.starts_with('/') &&
         ("/" + name).find("/..") == name.npos;
}

const ElementRules& HtmlRules() {
  static const ElementRules rules{
      {{"body", "# %inline*", ""},
       {"b", "# %inline*", ""},
       {"strong", "# %inline*", ""},
       {"i", "# %inline*", ""},
       {"em", "# %inline*", ""},
       {"u", "# %inline*", ""},
       {"s", "# %inline*", ""},
       {"strike", "# %inline*", ""},
       {"del", "# %inline*", ""},
       {"ins", "# %inline*", ""},
       {"sub", "# %inline*", ""},
       {"sup", "# %inline*", ""},
       {"small", "# %inline*", ""},
       {"big", "# %inline*", ""},
       {"code", "# %inline*", ""},
       {"tt", "# %inline*", ""},
       {"var", "# %inline*", ""},
       {"cite", "# %inline*", ""},
       {"kbd", "# %inline*", ""},
       {"samp", "# %inline*", ""},
       {"q", "# %inline*", ""},
       {"mark", "# %inline*", ""},
       {"span", "# %inline*", "class=id"},
       {"br", "", ""},
       {"img", "", "src!=uri alt!"},
       {"a", "#", "href!=uri"}},
      {{"inline",
        "b strong i em u s strike del ins sub sup small big code tt var cite kbd samp q mark span br "
        "img a"}}};
  return rules;
}

/// Elements without content as XML wants them.
std::string WithEndedElements(const std::string& html) {
  std::string xml;
  for (std::size_t at = 0; at < html.size();) {
    const std::size_t begin = std::min({html.find("<br>", at), html.find("<img ", at), html.size()});
    const std::size_t end = std::min(html.find('>', begin), html.size());
    xml.append(html, at, end - at);
    if (end < html.size()) xml += "/>";
    at = end + 1;
  }
  return xml;
}

}  // namespace

PackageParts PartsOf(const std::filesystem::path& file) {
  const ZipPackage zip(file);
  if (zip.Opened() != WordResult::Done) return {{"", ReadBytes(file)}};
  PackageParts parts;
  for (const std::string& name : zip.Names(10'000)) parts[name] = zip.Read(name, std::size_t{1} << 24).bytes;
  return parts;
}

void CheckManifest(const PackageParts& parts, const std::function<void(pugi::xml_node resource)>& take,
                   Faults& faults) {
  const auto manifest = parts.find("imsmanifest.xml");
  pugi::xml_document document;
  if (manifest == parts.end()) return faults.push_back("lacks a manifest");
  if (!ParseStrictly("manifest", manifest->second, document, faults)) return;
  CheckElements(document.document_element(), ManifestRules(), faults);
  const std::vector<pugi::xml_node> resources = Descendants(document, "resource");
  std::set<std::string> identifiers{document.document_element().attribute("identifier").value()};
  std::set<std::string> files{"imsmanifest.xml"};
  for (const pugi::xml_node resource : resources) {
    if (!identifiers.insert(resource.attribute("identifier").value()).second)
      faults.push_back(PlaceOf(resource) + " has the identifier of another");
    bool hasOwn = !resource.attribute("href");
    for (const pugi::xml_node file : resource.children("file")) {
      const std::string name = UnescapedAddress(file.attribute("href").value());
      if (!parts.contains(name)) faults.push_back(PlaceOf(file) + " is missing: " + name);
      files.insert(name);
      hasOwn = hasOwn || name == UnescapedAddress(resource.attribute("href").value());
    }
    if (!hasOwn) faults.push_back(PlaceOf(resource) + " does not list its own file");
    take(resource);
  }
  for (const pugi::xml_node dependency : Descendants(document, "dependency")) {
    const std::string name = dependency.attribute("identifierref").value();
    const bool isKnown = std::ranges::any_of(
        resources, [&](pugi::xml_node resource) { return resource.attribute("identifier").value() == name; });
    if (!isKnown) faults.push_back(PlaceOf(dependency) + " is no resource: " + name);
  }
  std::set<std::string> taken;
  for (const auto& [name, bytes] : parts) {
    std::string lower = name;
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return std::tolower(c); });
    if (!taken.insert(lower).second) faults.push_back("some disks have one file for " + name);
    if (!files.contains(name)) faults.push_back("the manifest does not list " + name);
    if (!IsPortable(name)) faults.push_back("some program cannot unpack " + name);
  }
}

void CheckHtml(const std::string& place, const std::string& html,
               const std::function<void(const std::string& address)>& addressed, Faults& faults) {
  pugi::xml_document document;
  Faults found;
  if (ParseStrictly("body", "<body>" + WithEndedElements(html) + "</body>", document, found)) {
    CheckElements(document.document_element(), HtmlRules(), found);
    for (const pugi::xml_node picture : Descendants(document, "img"))
      addressed(picture.attribute("src").value());
    for (const pugi::xml_node link : Descendants(document, "a")) addressed(link.attribute("href").value());
  }
  for (const std::string& fault : found) faults.push_back(place + " " + fault);
}

}  // namespace quorvantis::test
