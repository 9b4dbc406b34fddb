// SPDX-License-Identifier: MIT
#include "editor/SetAsideFiles.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

/// Gives a file a second name. False when that fails, for example because the file does not exist.
bool NameAgain(const fs::path& file, const fs::path& name) {
  std::error_code error;
  fs::create_hard_link(file, name, error);
  if (error) fs::copy_file(file, name, error);
  return !error;
}

}  // namespace

fs::path SetAsideFiles::PlaceOf(std::size_t index) const {
  return folder_ / std::to_string(index);
}

void SetAsideFiles::SetAside(std::vector<fs::path> files) {
  Clear();
  std::ranges::sort(files);
  files.erase(std::unique(files.begin(), files.end()), files.end());
  std::error_code ignored;
  for (fs::path& file : files) {
    if (!fs::is_regular_file(fs::symlink_status(file, ignored))) continue;
    if (files_.empty()) fs::create_directories(folder_, ignored);
    if (NameAgain(file, PlaceOf(files_.size()))) files_.push_back(std::move(file));
  }
}

void SetAsideFiles::PutBack() const {
  for (std::size_t i = 0; i < files_.size(); ++i) {
    std::error_code ignored;
    if (fs::equivalent(files_[i], PlaceOf(i), ignored)) continue;
    fs::create_directories(files_[i].parent_path(), ignored);
    fs::remove(files_[i], ignored);
    NameAgain(PlaceOf(i), files_[i]);
  }
}

void SetAsideFiles::Clear() {
  files_.clear();
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

}  // namespace quorvantis
