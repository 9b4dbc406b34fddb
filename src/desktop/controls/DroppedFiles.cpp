// SPDX-License-Identifier: MIT
#include "desktop/controls/DroppedFiles.h"

#include "desktop/controls/QtText.h"

#include <algorithm>
#include <system_error>

namespace quorvantis {

bool HasLocalFiles(const QMimeData& data) {
  return data.hasUrls() && std::ranges::any_of(data.urls(), &QUrl::isLocalFile);
}

std::vector<std::filesystem::path> LocalFiles(const QList<QUrl>& urls) {
  std::vector<std::filesystem::path> files;
  for (const QUrl& url : urls) {
    const std::filesystem::path file = QStringToPath(url.toLocalFile());
    std::error_code ignored;
    if (url.isLocalFile() && std::filesystem::is_regular_file(file, ignored)) files.push_back(file);
  }
  return files;
}

bool IsExamFile(const std::filesystem::path& file) {
  return PathToQString(file.extension()).compare(".exm", Qt::CaseInsensitive) == 0;
}

}  // namespace quorvantis
