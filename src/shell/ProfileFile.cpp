// SPDX-License-Identifier: MIT
#include "shell/ProfileFile.h"

#include "text/Utf.h"

#include <algorithm>
#include <fstream>

namespace quorvantis {
namespace {

constexpr std::size_t kMaxBytes = std::size_t{1024} * 1024;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

std::u16string Decode(std::string_view bytes) {
  if (bytes.starts_with(kUtf16Mark)) {
    std::u16string text;
    for (std::size_t i = kUtf16Mark.size(); i + 1 < bytes.size(); i += 2) {
      const auto low = static_cast<unsigned char>(bytes[i]);
      const auto high = static_cast<unsigned char>(bytes[i + 1]);
      text.push_back(static_cast<char16_t>(low | (high << 8)));
    }
    return text;
  }
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  return Utf8ToUtf16(bytes);
}

std::u16string_view Trim(std::u16string_view text) {
  constexpr std::u16string_view kBlanks = u" \t";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::u16string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::u16string_view Unquote(std::u16string_view text) {
  const bool quoted =
      text.size() >= 2 && text.front() == text.back() && (text[0] == u'"' || text[0] == u'\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

bool EqualsIgnoringCase(std::u16string_view a, std::u16string_view b) {
  const auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; };
  return std::ranges::equal(a, b, {}, lower, lower);
}

/// Takes one line off the front of `content`.
std::u16string_view TakeLine(std::u16string_view& content) {
  const std::size_t length = content.find_first_of(u"\r\n");
  const std::u16string_view line = content.substr(0, length);
  content.remove_prefix(length == std::u16string_view::npos ? content.size() : length + 1);
  return Trim(line);
}

}  // namespace

ProfileFile::ProfileFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return;
  std::ifstream in(file, std::ios::binary);
  std::string bytes(kMaxBytes, '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  content_ = Decode(std::string_view(bytes).substr(0, static_cast<std::size_t>(in.gcount())));
}

std::optional<std::u16string> ProfileFile::Value(std::u16string_view section, std::u16string_view key) const {
  bool inSection = false;
  for (std::u16string_view content = content_; !content.empty();) {
    const std::u16string_view line = TakeLine(content);
    if (line.starts_with(u'[')) {
      inSection = EqualsIgnoringCase(Trim(line.substr(1, line.find(u']') - 1)), section);
      continue;
    }
    const std::size_t equals = line.find(u'=');
    if (!inSection || line.starts_with(u';') || equals == std::u16string_view::npos) continue;
    if (EqualsIgnoringCase(Trim(line.substr(0, equals)), key)) {
      return std::u16string(Unquote(Trim(line.substr(equals + 1))));
    }
  }
  return std::nullopt;
}

}  // namespace quorvantis
