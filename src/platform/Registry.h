// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

enum class RegistryRoot { ClassesRoot, CurrentUser };

/// The type of a registry value. Other programs use more types, which are kept.
enum class RegistryType : std::uint32_t {
  String = 1,  ///< UTF-16LE, usually with a NUL at its end
  Dword = 4,   ///< 32 bits, lowest byte first
};

/// A stored value; its size is as written, whatever the type says.
struct RegistryValue {
  RegistryType type = RegistryType::String;
  std::vector<std::byte> bytes;

  bool operator==(const RegistryValue&) const = default;
};

/// An open key. Names are found without regard to the case of ASCII letters; the empty name is the key's
/// default value. If the key has been deleted meanwhile, every operation fails.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;

  virtual std::optional<RegistryValue> QueryValue(std::u16string_view name) const = 0;

  /// False when the value could not be stored.
  virtual bool SetValue(std::u16string_view name, const RegistryValue& value) = 0;

  /// False when there is no such value, or it could not be deleted.
  virtual bool DeleteValue(std::u16string_view name) = 0;
};

/// Settings that programs of this user share: keys in a tree, values in keys. A path names a key below a
/// root, with a backslash between names; the case of ASCII letters does not count.
class Registry {
 public:
  virtual ~Registry() = default;

  /// Null when the key does not exist. Keys must not outlive the registry.
  virtual std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root, std::u16string_view path) = 0;

  /// Opens the key, creating it and its parents if needed. Null when that fails.
  virtual std::unique_ptr<RegistryKey> CreateKey(RegistryRoot root, std::u16string_view path) = 0;

  /// Deletes a key with its values. False when there is no such key, when it has keys below it, or when it
  /// could not be deleted.
  virtual bool DeleteKey(RegistryRoot root, std::u16string_view path) = 0;
};

}  // namespace quorvantis
