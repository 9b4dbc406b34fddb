// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Registry.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

class Files;
class RegistryTree;

/// Its name in the application folder.
constexpr const char* kRegistryFile = "registry.txt";

/// A registry in one text file (see RegistryTree), which appears when the first key is made. The file is read
/// again for each operation, and replaced in one step when something changes. An unreadable or damaged file
/// has no keys and accepts none, so nothing in it is lost.
class FileRegistry : public Registry {
 public:
  /// `files` must outlive this.
  FileRegistry(std::filesystem::path file, Files& files) : file_(std::move(file)), files_(files) {}

  std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root, std::u16string_view path) override;
  std::unique_ptr<RegistryKey> CreateKey(RegistryRoot root, std::u16string_view path) override;
  bool DeleteKey(RegistryRoot root, std::u16string_view path) override;

 private:
  class Key;

  std::optional<RegistryTree> Load() const;
  bool Save(const RegistryTree& tree);

  std::filesystem::path file_;
  Files& files_;
};

}  // namespace quorvantis
