// SPDX-License-Identifier: MIT
#include "platform/convert/OfficeFilters.h"

#include <array>

namespace quorvantis {
namespace {

constexpr QByteArrayView kCompoundFile("\xD0\xCF\x11\xE0", 4);
constexpr QByteArrayView kPackage("PK\x03\x04", 4);
constexpr QByteArrayView kRichText("{\\rtf", 5);

struct DocumentFamily {
  QStringList extensions;
  QStringList compoundFile;
  QStringList package;
  QStringList openPackage;  ///< of the extension that begins with "od"
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

QStringList ImportFilters(const QString& extension, QByteArrayView head) {
  for (const DocumentFamily& family : Families()) {
    if (!family.extensions.contains(extension)) continue;
    // What a file is tells its beginning; many a ".doc" is a newer document or rich text.
    if (head.startsWith(kCompoundFile)) return family.compoundFile;
    if (head.startsWith(kPackage)) return extension.startsWith("od") ? family.openPackage : family.package;
    if (head.startsWith(kRichText) && &family == &Families().front()) return {"Rich Text Format"};
  }
  return {};
}

}  // namespace quorvantis
