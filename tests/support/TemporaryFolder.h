// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace quorvantis::test {

/// A new folder, which is removed with its content at the end of the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "quorvantis-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

inline std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

inline std::filesystem::path WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
  return file;
}

/// The number of files and folders directly in a folder.
inline std::ptrdiff_t CountEntries(const std::filesystem::path& folder) {
  return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

}  // namespace quorvantis::test
