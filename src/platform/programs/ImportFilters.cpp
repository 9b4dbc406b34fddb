// SPDX-License-Identifier: MIT
#include "platform/programs/ImportFilters.h"

#include "platform/programs/DocumentSignatures.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

using Filters = std::vector<std::string>;

struct DocumentFamily {
  std::vector<std::string_view> extensions;
  Filters compoundFile;
  Filters package;
  Filters openPackage;  ///< of the extension that begins with "od"
};

const std::array<DocumentFamily, 3>& Families() {
  static const std::array<DocumentFamily, 3> families{{
      {{"doc", "docx", "rtf", "odt"}, {"MS Word 97", "MS Word 95"}, {"MS Word 2007 XML"}, {"writer8"}},
      {{"ppt", "pptx", "odp"}, {"MS PowerPoint 97"}, {"Impress MS PowerPoint 2007 XML"}, {"impress8"}},
      {{"xls", "xlsx", "ods"},
       {"MS Excel 97", "MS Excel 95", "MS Excel 5.0/95"},
       {"Calc MS Excel 2007 XML"},
       {"calc8"}},
  }};
  return families;
}

}  // namespace

Filters ImportFiltersOf(std::string_view extension, std::string_view head) {
  for (const DocumentFamily& family : Families()) {
    if (std::ranges::find(family.extensions, extension) == family.extensions.end()) continue;
    // A file's beginning decides its type; many a ".doc" is a newer document or rich text.
    if (head.starts_with(kCompoundFileSignature)) return family.compoundFile;
    if (head.starts_with(kPackageSignature))
      return extension.starts_with("od") ? family.openPackage : family.package;
    if (head.starts_with(kRichTextSignature) && &family == &Families().front()) return {"Rich Text Format"};
  }
  return {};
}

}  // namespace quorvantis
