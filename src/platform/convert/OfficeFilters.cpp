// SPDX-License-Identifier: MIT
#include "platform/convert/OfficeFilters.h"

#include "platform/documents/ImportFilters.h"

namespace quorvantis {

QStringList ImportFilters(const QString& extension, QByteArrayView head) {
  QStringList filters;
  const std::string_view bytes(head.data(), static_cast<std::size_t>(head.size()));
  for (const std::string& filter : ImportFiltersOf(extension.toStdString(), bytes)) {
    filters.append(QString::fromStdString(filter));
  }
  return filters;
}

}  // namespace quorvantis
