// SPDX-License-Identifier: MIT
#include "preview/ServedFiles.h"

#include "model/WorkFolderNames.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// Whether `path` is below `folder`; both without links and dots.
bool IsBelow(const fs::path& path, const fs::path& folder) {
  const auto [end, ignored] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return end == folder.end() && path != folder;
}

std::optional<fs::path> RealPath(const fs::path& path) {
  std::error_code error;
  fs::path real = fs::canonical(path, error);
  return error ? std::nullopt : std::optional(std::move(real));
}

}  // namespace

ServedFiles::ServedFiles(fs::path applicationFolder)
    : applicationFolder_(std::move(applicationFolder)),
      pageFolder_(applicationFolder_),
      held_(applicationFolder_ / kCopyFolders) {}

std::vector<fs::path> ServedFiles::Places(const fs::path& asked) const {
  std::vector<fs::path> places{asked};
  if (!IsBelow(asked, pageFolder_)) return places;
  const fs::path relative = asked.lexically_relative(pageFolder_);
  places.push_back(applicationFolder_ / relative);
  places.push_back(EditorPageFolder(applicationFolder_) / relative);
  return places;
}

std::optional<fs::path> ServedFiles::Find(const fs::path& asked) const {
  for (const fs::path& place : Places(asked)) {
    std::optional<fs::path> file = held_.Find(place);
    if (!file) file = FileAt(place);
    if (file) return file;
  }
  return std::nullopt;
}

void ServedFiles::Hold(const fs::path& asked) {
  const fs::path place = asked.lexically_normal();
  if (const std::optional<fs::path> file = FileAt(place)) held_.Hold(place, *file);
}

std::optional<fs::path> ServedFiles::FileAt(const fs::path& place) const {
  std::optional<fs::path> real = RealPath(place);
  std::error_code error;
  const bool isServed = real && Permits(*real) && fs::is_regular_file(*real, error);
  return isServed ? real : std::nullopt;
}

/// A work folder that is itself a link leads out of the application folder and is not served.
bool ServedFiles::Permits(const fs::path& real) const {
  const std::optional<fs::path> folder = RealPath(applicationFolder_);
  if (!folder) return false;
  const fs::path workFolders[] = {*folder / kPreviewFolders, *folder / kCopyFolders,
                                  *folder / kStudentFolders};
  return std::ranges::any_of(workFolders, [&real](const fs::path& work) { return IsBelow(real, work); });
}

}  // namespace quorvantis
