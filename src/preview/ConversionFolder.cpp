// SPDX-License-Identifier: MIT
#include "preview/ConversionFolder.h"

#include <QFile>

#include <string>
#include <system_error>

namespace quorvantis {
namespace fs = std::filesystem;

ConversionFolder::ConversionFolder(const fs::path& otherwise) : folder_(std::make_unique<QTemporaryDir>()) {
  if (folder_->isValid()) return;
  folder_ = std::make_unique<QTemporaryDir>(QFile::decodeName((otherwise / "conversions-XXXXXX").c_str()));
}

fs::path ConversionFolder::New() {
  if (!folder_->isValid()) return {};
  const fs::path base = QFile::encodeName(folder_->path()).toStdString();
  fs::path folder = base / std::to_string(++made_);
  std::error_code error;
  fs::create_directory(folder, error);
  return error ? fs::path() : folder;
}

}  // namespace quorvantis
