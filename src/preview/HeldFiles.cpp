// SPDX-License-Identifier: MIT
#include "preview/HeldFiles.h"

#include "platform/SecondNames.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <string>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

/// Where there are no links, the window would stand still while more is copied.
constexpr std::uintmax_t kLargestHeldCopy = std::uintmax_t{64} << 20;

}  // namespace

void HeldFiles::Hold(const fs::path& asked, const fs::path& file) {
  std::error_code ignored;
  const auto known = names_.find(asked);
  if (known != names_.end() && fs::equivalent(known->second, file, ignored)) return;
  if (known != names_.end()) names_.erase(known);
  if (!MakeFolder()) return;
  fs::path name = folder_ / (std::to_string(++last_) + file.extension().native());
  if (LinkOrCopy(file, name, kLargestHeldCopy)) names_.emplace(asked, std::move(name));
}

std::optional<fs::path> HeldFiles::Find(const fs::path& asked) const {
  const auto found = names_.find(asked);
  return found == names_.end() ? std::nullopt : std::optional(found->second);
}

void HeldFiles::Release() {
  std::error_code ignored;
  if (!folder_.empty()) fs::remove_all(folder_, ignored);
  folder_.clear();
  names_.clear();
}

bool HeldFiles::MakeFolder() {
  if (!folder_.empty()) return true;
  std::error_code ignored;
  fs::create_directories(parent_, ignored);
  QTemporaryDir folder(QFile::decodeName((parent_ / ".held-XXXXXX").c_str()));
  folder.setAutoRemove(false);
  if (folder.isValid()) folder_ = QFile::encodeName(folder.path()).toStdString();
  return folder.isValid();
}

}  // namespace quorvantis
