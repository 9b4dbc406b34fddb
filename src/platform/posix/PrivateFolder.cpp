// SPDX-License-Identifier: MIT
#include "platform/posix/PrivateFolder.h"

#include <cerrno>
#include <cstdlib>
#include <string>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

fs::path MakeFolder() {
  std::string name = (fs::temp_directory_path() / "quorvantis-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) {
    throw fs::filesystem_error("cannot make a folder for temporary files", name,
                               std::error_code(errno, std::generic_category()));
  }
  return fs::absolute(name);  // the current folder may change
}

}  // namespace

PrivateFolder::PrivateFolder() : path_(MakeFolder()), leftover_(path_) {}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace quorvantis
