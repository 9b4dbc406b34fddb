// SPDX-License-Identifier: MIT
#include "platform/documents/PackageRelations.h"

#include "platform/documents/XmlPart.h"

#include <filesystem>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytes = std::size_t{4} << 20;

std::string ListOf(const fs::path& source) {
  return (source.parent_path() / "_rels" / (source.filename().string() + ".rels")).string();
}

/// As a path below the root of the package, which it never leaves.
std::string Resolved(const fs::path& folder, std::string_view target) {
  return ("/" / folder / fs::path(target)).lexically_normal().relative_path().string();
}

}  // namespace

PackageRelations::PackageRelations(const ZipPackage& package, const std::string& source) {
  pugi::xml_document xml;
  if (ParseXml(package.Read(ListOf(source), kMostBytes), xml) != WordResult::Done) return;
  const fs::path folder = fs::path(source).parent_path();
  for (const pugi::xml_node node : xml.document_element().children()) {
    if (ValueOf(node, "TargetMode") == "External") continue;
    relations_.emplace(ValueOf(node, "Id"), Relation{std::string(ValueOf(node, "Type")),
                                                     Resolved(folder, ValueOf(node, "Target"))});
  }
}

std::string PackageRelations::TargetOf(std::string_view id) const {
  const auto found = relations_.find(id);
  return found == relations_.end() ? std::string() : found->second.target;
}

std::string PackageRelations::TargetOfKind(std::string_view kind) const {
  const std::string ending = "/" + std::string(kind);
  for (const auto& [id, relation] : relations_) {
    if (relation.type.ends_with(ending)) return relation.target;
  }
  return {};
}

}  // namespace quorvantis
