// SPDX-License-Identifier: MIT
#include "platform/office/DocxReader.h"

#include "platform/office/DocxText.h"
#include "platform/office/PackageRelations.h"
#include "platform/office/XmlPart.h"

#include <optional>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostTextBytes = std::size_t{64} << 20;  // the XML of several thousand pages
constexpr std::size_t kMostListBytes = std::size_t{8} << 20;

std::string MainPart(const ZipPackage& package) {
  const std::string named = PackageRelations(package, "").TargetOfKind("officeDocument");
  return named.empty() ? "word/document.xml" : named;
}

/// The roots of the parts that tell how paragraphs are numbered. Without them nothing is.
struct ListParts {
  pugi::xml_document numbering;
  pugi::xml_document styles;

  ListParts(const ZipPackage& package, const PackageRelations& relations) {
    Load(package, relations.TargetOfKind("numbering"), numbering);
    Load(package, relations.TargetOfKind("styles"), styles);
  }
  ListLabels Labels() const { return {numbering.document_element(), styles.document_element()}; }

 private:
  static void Load(const ZipPackage& package, const std::string& part, pugi::xml_document& xml) {
    if (!part.empty()) ParseXml(package.Read(part, kMostListBytes), xml);
  }
};

}  // namespace

DocxContent ReadDocx(const ZipPackage& package, bool listLabels) {
  DocxContent content;
  const std::string part = MainPart(package);
  pugi::xml_document xml;
  content.result = ParseXml(package.Read(part, kMostTextBytes), xml);
  if (content.result == WordResult::NotFound) content.result = WordResult::UnknownFormat;
  if (content.result != WordResult::Done) return content;
  const pugi::xml_node body = ChildOf(xml.document_element(), "body");
  if (!body) return {WordResult::Damaged, {}, {}};
  const PackageRelations relations(package, part);
  std::optional<ListParts> listParts;
  std::optional<ListLabels> labels;
  if (listLabels) labels = listParts.emplace(package, relations).Labels();
  DocxText text(body, labels ? &*labels : nullptr);
  text.Read();
  if (text.IsBeyondLimits()) return {WordResult::TooLarge, {}, {}};
  content.document = std::move(text.Document());
  content.pictures = std::move(text.Pictures());
  for (PicturePlace& picture : content.pictures) picture.source = relations.TargetOf(picture.source);
  return content;
}

}  // namespace quorvantis
