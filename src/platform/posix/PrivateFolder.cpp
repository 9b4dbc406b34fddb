// SPDX-License-Identifier: MIT
#include "platform/posix/PrivateFolder.h"

#include <cerrno>
#include <cstdlib>
#include <string>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

[[noreturn]] void Fail(const std::string& folder, std::error_code error) {
  throw fs::filesystem_error("cannot make a folder for temporary files; check TMPDIR", folder, error);
}

fs::path MakeFolder() {
  std::error_code error;
  const fs::path base = fs::temp_directory_path(error);
  if (error) Fail({}, error);
  std::string name = (fs::absolute(base) / "quorvantis-XXXXXX").string();  // the current folder may change
  if (::mkdtemp(name.data()) == nullptr) Fail(name, {errno, std::generic_category()});
  return name;
}

}  // namespace

PrivateFolder::PrivateFolder() : path_(MakeFolder()), leftover_(path_) {}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace quorvantis
