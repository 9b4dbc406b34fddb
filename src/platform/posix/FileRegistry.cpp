// SPDX-License-Identifier: MIT
#include "platform/posix/FileRegistry.h"

#include "platform/WholeFile.h"
#include "platform/posix/RegistryTree.h"

namespace quorvantis {
namespace {

constexpr std::size_t kMaxBytes = std::size_t{1024} * 1024;

}  // namespace

class FileRegistry::Key : public RegistryKey {
 public:
  Key(FileRegistry& registry, std::u16string path) : registry_(registry), path_(std::move(path)) {}

  std::optional<RegistryValue> QueryValue(std::u16string_view name) const override {
    const std::optional<RegistryTree> tree = registry_.Load();
    const RegistryValue* const value = tree ? tree->QueryValue(path_, name) : nullptr;
    return value != nullptr ? std::optional(*value) : std::nullopt;
  }

  bool SetValue(std::u16string_view name, const RegistryValue& value) override {
    std::optional<RegistryTree> tree = registry_.Load();
    if (!tree) return false;
    const RegistryValue* const before = tree->QueryValue(path_, name);
    if (before != nullptr && *before == value) return true;
    return tree->SetValue(path_, name, value) && registry_.Save(*tree);
  }

  bool DeleteValue(std::u16string_view name) override {
    std::optional<RegistryTree> tree = registry_.Load();
    return tree && tree->DeleteValue(path_, name) && registry_.Save(*tree);
  }

 private:
  FileRegistry& registry_;
  std::u16string path_;
};

std::unique_ptr<RegistryKey> FileRegistry::OpenKey(RegistryRoot root, std::u16string_view path) {
  const std::optional<std::u16string> full = RegistryTree::FullPath(root, path);
  const std::optional<RegistryTree> tree = Load();
  if (!full || !tree || !tree->HasKey(*full)) return nullptr;
  return std::make_unique<Key>(*this, *full);
}

std::unique_ptr<RegistryKey> FileRegistry::CreateKey(RegistryRoot root, std::u16string_view path) {
  const std::optional<std::u16string> full = RegistryTree::FullPath(root, path);
  std::optional<RegistryTree> tree = Load();
  if (!full || !tree) return nullptr;
  if (!tree->HasKey(*full)) {
    tree->CreateKey(*full);
    if (!Save(*tree)) return nullptr;
  }
  return std::make_unique<Key>(*this, *full);
}

bool FileRegistry::DeleteKey(RegistryRoot root, std::u16string_view path) {
  const std::optional<std::u16string> full = RegistryTree::FullPath(root, path);
  std::optional<RegistryTree> tree = Load();
  return full && tree && tree->DeleteKey(*full) && Save(*tree);
}

std::optional<RegistryTree> FileRegistry::Load() const {
  const std::optional<std::string> text = ReadWholeFile(file_, kMaxBytes);
  return text ? RegistryTree::Parse(*text) : std::nullopt;
}

bool FileRegistry::Save(const RegistryTree& tree) {
  return !SaveWholeFile(files_, file_, tree.Format());
}

}  // namespace quorvantis
