// SPDX-License-Identifier: MIT
#include "platform/documents/DocxReader.h"

#include "platform/documents/DocxText.h"
#include "platform/documents/PackageRelations.h"
#include "platform/documents/XmlPart.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostTextBytes = std::size_t{64} << 20;  // the XML of several thousand pages
constexpr std::size_t kMostSideBytes = std::size_t{8} << 20;

std::string MainPart(const ZipPackage& package) {
  const std::string named = PackageRelations(package, "").TargetOfKind("officeDocument");
  return named.empty() ? "word/document.xml" : named;
}

/// A part that is not needed to read the document.
pugi::xml_document OptionalPart(const ZipPackage& package, const std::string& part) {
  pugi::xml_document xml;
  if (!part.empty()) ParseXml(package.Read(part, kMostSideBytes), xml);
  return xml;
}

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
  const pugi::xml_document stylesPart = OptionalPart(package, relations.TargetOfKind("styles"));
  const pugi::xml_document listsPart = OptionalPart(package, relations.TargetOfKind("numbering"));
  const DocxStyles styles(stylesPart.document_element());
  ListLabels labels(listsPart.document_element(), styles);
  DocxText text(body, styles, labels, listLabels);
  text.Read();
  if (text.Result() != WordResult::Done) return {text.Result(), {}, {}};
  content.document = std::move(text.Document());
  content.pictures = std::move(text.Pictures());
  for (PicturePlace& picture : content.pictures) picture.source = relations.TargetOf(picture.source);
  return content;
}

}  // namespace quorvantis
