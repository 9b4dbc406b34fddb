// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Registry.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The keys and values of a registry in memory, and as text for a file:
///
///     Quorvantis registry 1
///     [HKEY_CURRENT_USER\Software]
///     "Number"=dword:0000002a
///     "Anything else, by type and bytes"=hex(1):41004200
///
/// A path begins with the name of its root. The roots are always there.
class RegistryTree {
 public:
  RegistryTree();

  /// Nothing when `Format` cannot have written the text. An empty text is a tree without keys.
  static std::optional<RegistryTree> Parse(std::string_view text);
  std::string Format() const;

  /// `path` below `root` in full, without empty names; nothing when it holds characters that a key cannot
  /// have (controls, lone surrogates).
  static std::optional<std::u16string> FullPath(RegistryRoot root, std::u16string_view path);

  bool HasKey(std::u16string_view fullPath) const;

  /// Creates a key of FullPath, and with it those above.
  void CreateKey(std::u16string_view fullPath);

  /// False for a root, for a missing key and for one with keys below it.
  bool DeleteKey(std::u16string_view fullPath);

  /// The value, or null.
  const RegistryValue* QueryValue(std::u16string_view fullPath, std::u16string_view name) const;

  /// False when there is no such key, or when the name has invalid characters.
  bool SetValue(std::u16string_view fullPath, std::u16string_view name, RegistryValue value);
  bool DeleteValue(std::u16string_view fullPath, std::u16string_view name);

 private:
  struct NamedValue {
    std::u16string name;  ///< as it was written first
    RegistryValue value;
  };
  struct Key {
    std::u16string path;                          ///< in full, as first written
    std::map<std::u16string, NamedValue> values;  ///< by upper-case name
  };

  bool HasKeysBelow(const std::u16string& upperPath) const;
  bool ParseKey(std::string_view line, std::u16string& key);
  bool ParseValue(std::string_view line, std::u16string_view key);

  std::map<std::u16string, Key> keys_;  ///< by upper-case path; parents may be missing
};

}  // namespace quorvantis
