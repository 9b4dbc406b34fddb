// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <filesystem>
#include <memory>

namespace quorvantis {

/// A private folder for converted files; removed with its content at the end.
class ConversionFolder {
 public:
  /// In the folder for temporary files, or in `otherwise` if that cannot be used.
  explicit ConversionFolder(const std::filesystem::path& otherwise);

  /// A new, empty folder in it; an empty path if none can be created.
  std::filesystem::path New();

 private:
  std::unique_ptr<QTemporaryDir> folder_;
  int made_ = 0;
};

}  // namespace quorvantis
