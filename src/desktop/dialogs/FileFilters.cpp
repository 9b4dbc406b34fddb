// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FileFilters.h"

#include "desktop/controls/QtText.h"

#include <algorithm>

namespace quorvantis {

QString FileFilter::ForQt() const {
  return label + " (" + patterns.join(' ') + ")";
}

QString FileFilter::FirstExtension() const {
  return patterns.isEmpty() ? QString() : patterns.front().section('.', -1);
}

std::vector<FileFilter> ParseFilters(std::u16string_view text) {
  std::vector<FileFilter> filters;
  const QStringList parts = ToQString(text).split('|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    filters.push_back({parts[i], parts[i + 1].split(';', Qt::SkipEmptyParts)});
  }
  return filters;
}

QString WithExtension(const QString& path, const std::vector<FileFilter>& filters, const QString& extension) {
  const auto matches = [&path](const QString& pattern) {
    return path.endsWith(QStringView(pattern).mid(1), Qt::CaseInsensitive);
  };
  const bool known = std::ranges::any_of(filters, [&matches](const FileFilter& filter) {
    return std::ranges::any_of(filter.patterns, matches);
  });
  if (known || extension.isEmpty()) return path;
  return path.endsWith('.') ? path + extension : path + "." + extension;
}

}  // namespace quorvantis
