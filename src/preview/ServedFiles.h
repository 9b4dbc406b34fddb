// SPDX-License-Identifier: MIT
#pragma once

#include "preview/HeldFiles.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace quorvantis {

/// Which files the pages of an exam may show: those below the work folders of the application folder, which
/// hold a copy of every attached file. Exams are untrusted; whatever a page requests, no other file is
/// opened.
class ServedFiles {
 public:
  explicit ServedFiles(std::filesystem::path applicationFolder);

  /// The folder of the shown page; relative addresses of its frames and files start there.
  void SetPageFolder(const std::filesystem::path& folder) { pageFolder_ = folder.lexically_normal(); }

  /// The places that an absolute, normal path may mean, best first: itself; and if it is below the page's
  /// folder, since the page may have used a relative address, the same place below the application folder and
  /// below the folder of the preview pages, beside which the files of an opened exam are unpacked.
  std::vector<std::filesystem::path> Places(const std::filesystem::path& asked) const;

  /// The real path of the first of these places that is an existing, permitted, regular file; what is held
  /// for a place comes before what is there now.
  std::optional<std::filesystem::path> Find(const std::filesystem::path& asked) const;

  /// From now on `asked`, a full path, stands for the file that it means now, until `Release`.
  void Hold(const std::filesystem::path& asked);
  void Release() { held_.Release(); }

 private:
  std::optional<std::filesystem::path> FileAt(const std::filesystem::path& place) const;
  bool Permits(const std::filesystem::path& real) const;

  std::filesystem::path applicationFolder_;
  std::filesystem::path pageFolder_;
  HeldFiles held_;
};

}  // namespace quorvantis
