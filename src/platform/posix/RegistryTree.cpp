// SPDX-License-Identifier: MIT
#include "platform/posix/RegistryTree.h"

#include "text/AsciiCase.h"
#include "text/Utf.h"

#include <charconv>

namespace quorvantis {
namespace {

constexpr std::string_view kTitle = "Quorvantis registry 1";
constexpr std::string_view kDword = "dword:";
constexpr std::string_view kHex = "hex(";
constexpr std::size_t kDwordSize = 4;
constexpr char16_t kSeparator = u'\\';

std::u16string_view RootName(RegistryRoot root) {
  return root == RegistryRoot::ClassesRoot ? u"HKEY_CLASSES_ROOT" : u"HKEY_CURRENT_USER";
}

/// Whether the text fits in one line of the file and reads back the same.
bool IsStorable(std::u16string_view text) {
  constexpr char16_t kFirstPrintable = 0x20;
  const bool controls = std::ranges::any_of(text, [](char16_t unit) { return unit < kFirstPrintable; });
  return !controls && ReplaceLoneSurrogates(text) == text;
}

void AppendHex(std::string& text, std::byte byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  text.push_back(kDigits[std::to_integer<std::size_t>(byte >> 4)]);
  text.push_back(kDigits[std::to_integer<std::size_t>(byte & std::byte{15})]);
}

std::string FormatValue(const RegistryValue& value) {
  if (value.type == RegistryType::Dword && value.bytes.size() == kDwordSize) {
    std::string text(kDword);
    std::for_each(value.bytes.rbegin(), value.bytes.rend(), [&](std::byte b) { AppendHex(text, b); });
    return text;
  }
  std::string text = std::string(kHex) + std::to_string(static_cast<std::uint32_t>(value.type)) + "):";
  for (const std::byte b : value.bytes) AppendHex(text, b);
  return text;
}

/// The whole of `digits` as a number.
template <class Number>
std::optional<Number> ParseWhole(std::string_view digits, int base) {
  Number number{};
  const char* const end = digits.data() + digits.size();
  const auto [stopped, error] = std::from_chars(digits.data(), end, number, base);
  if (error != std::errc() || stopped != end) return std::nullopt;
  return number;
}

std::optional<std::vector<std::byte>> ParseBytes(std::string_view digits) {
  std::vector<std::byte> bytes;
  if (digits.size() % 2 != 0) return std::nullopt;
  for (; !digits.empty(); digits.remove_prefix(2)) {
    const auto byte = ParseWhole<std::uint8_t>(digits.substr(0, 2), 16);
    if (!byte) return std::nullopt;
    bytes.push_back(std::byte{*byte});
  }
  return bytes;
}

std::optional<RegistryValue> ParseData(std::string_view text) {
  std::optional<std::vector<std::byte>> bytes;
  if (text.starts_with(kDword)) {
    bytes = ParseBytes(text.substr(kDword.size()));
    if (!bytes || bytes->size() != kDwordSize) return std::nullopt;
    std::ranges::reverse(*bytes);
    return RegistryValue{RegistryType::Dword, *std::move(bytes)};
  }
  const std::size_t colon = text.find("):");
  if (!text.starts_with(kHex) || colon == std::string_view::npos) return std::nullopt;
  const auto type = ParseWhole<std::uint32_t>(text.substr(kHex.size(), colon - kHex.size()), 10);
  bytes = ParseBytes(text.substr(colon + 2));
  if (!type || !bytes) return std::nullopt;
  return RegistryValue{static_cast<RegistryType>(*type), *std::move(bytes)};
}

/// Removes a line from the front of `text`; edited files have both kinds of line breaks.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t length = text.find('\n');
  std::string_view line = text.substr(0, length);
  text.remove_prefix(length == std::string_view::npos ? text.size() : length + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

RegistryTree::RegistryTree() {
  for (const RegistryRoot root : {RegistryRoot::ClassesRoot, RegistryRoot::CurrentUser}) {
    keys_[std::u16string(RootName(root))].path = RootName(root);
  }
}

std::optional<RegistryTree> RegistryTree::Parse(std::string_view text) {
  RegistryTree tree;
  if (text.empty()) return tree;
  if (TakeLine(text) != kTitle) return std::nullopt;
  std::u16string key;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.empty()) continue;
    const bool understood = line.front() == '[' ? tree.ParseKey(line, key) : tree.ParseValue(line, key);
    if (!understood) return std::nullopt;
  }
  return tree;
}

bool RegistryTree::ParseKey(std::string_view line, std::u16string& key) {
  if (!line.ends_with(']')) return false;
  key = Utf8ToUtf16(line.substr(1, line.size() - 2));
  const bool namesAreWhole = key.find(u"\\\\") == std::u16string::npos && !key.ends_with(kSeparator);
  if (!namesAreWhole || !keys_.contains(AsciiUpper(key.substr(0, key.find(kSeparator))))) return false;
  CreateKey(key);
  return true;
}

bool RegistryTree::ParseValue(std::string_view line, std::u16string_view key) {
  const std::size_t equals = line.rfind("\"=");  // a name may contain these, what follows may not
  if (line.front() != '"' || equals == std::string_view::npos || equals == 0) return false;
  std::optional<RegistryValue> value = ParseData(line.substr(equals + 2));
  return value && SetValue(key, Utf8ToUtf16(line.substr(1, equals - 1)), *std::move(value));
}

std::string RegistryTree::Format() const {
  std::string text(kTitle);
  text += '\n';
  for (const auto& [upperPath, key] : keys_) {
    text += "\n[" + Utf16ToUtf8(key.path) + "]\n";
    for (const auto& [upperName, named] : key.values) {
      text += '"' + Utf16ToUtf8(named.name) + "\"=" + FormatValue(named.value) + "\n";
    }
  }
  return text;
}

std::optional<std::u16string> RegistryTree::FullPath(RegistryRoot root, std::u16string_view path) {
  if (!IsStorable(path)) return std::nullopt;
  std::u16string full(RootName(root));
  while (!path.empty()) {
    const std::size_t length = std::min(path.find(kSeparator), path.size());
    if (length > 0) full.append(1, kSeparator).append(path.substr(0, length));
    path.remove_prefix(std::min(length + 1, path.size()));
  }
  return full;
}

bool RegistryTree::HasKey(std::u16string_view fullPath) const {
  const std::u16string path = AsciiUpper(fullPath);
  return keys_.contains(path) || HasKeysBelow(path);
}

bool RegistryTree::HasKeysBelow(const std::u16string& upperPath) const {
  const std::u16string below = upperPath + kSeparator;
  const auto first = keys_.lower_bound(below);
  return first != keys_.end() && first->first.starts_with(below);
}

void RegistryTree::CreateKey(std::u16string_view fullPath) {
  keys_.try_emplace(AsciiUpper(fullPath), Key{std::u16string(fullPath), {}});
}

bool RegistryTree::DeleteKey(std::u16string_view fullPath) {
  const std::u16string path = AsciiUpper(fullPath);
  const std::size_t parentEnd = fullPath.rfind(kSeparator);
  if (parentEnd == std::u16string_view::npos || HasKeysBelow(path)) return false;
  if (keys_.erase(path) == 0) return false;
  CreateKey(fullPath.substr(0, parentEnd));  // it may have existed only as the parent of this one
  return true;
}

const RegistryValue* RegistryTree::QueryValue(std::u16string_view fullPath, std::u16string_view name) const {
  const auto key = keys_.find(AsciiUpper(fullPath));
  if (key == keys_.end()) return nullptr;
  const auto value = key->second.values.find(AsciiUpper(name));
  return value == key->second.values.end() ? nullptr : &value->second.value;
}

bool RegistryTree::SetValue(std::u16string_view fullPath, std::u16string_view name, RegistryValue value) {
  if (!HasKey(fullPath) || !IsStorable(name)) return false;
  CreateKey(fullPath);
  auto& values = keys_.find(AsciiUpper(fullPath))->second.values;
  values.try_emplace(AsciiUpper(name), NamedValue{std::u16string(name), {}}).first->second.value =
      std::move(value);
  return true;
}

bool RegistryTree::DeleteValue(std::u16string_view fullPath, std::u16string_view name) {
  const auto key = keys_.find(AsciiUpper(fullPath));
  return key != keys_.end() && key->second.values.erase(AsciiUpper(name)) != 0;
}

}  // namespace quorvantis
