// SPDX-License-Identifier: MIT
#include "bank/index/BankFolders.h"

#include "platform/WholeFile.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kMostBytes = std::size_t{4} * 1024 * 1024;
constexpr std::string_view kLineEnd = "%0A";
constexpr std::string_view kPercent = "%25";

std::string Escaped(const std::string& path) {
  std::string line;
  for (const char c : path) {
    if (c == '\n') {
      line += kLineEnd;
    } else if (c == '%') {
      line += kPercent;
    } else {
      line += c;
    }
  }
  return line;
}

fs::path Unescaped(std::string_view line) {
  std::string path;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view rest = line.substr(at);
    const bool isEscape = rest.starts_with(kLineEnd) || rest.starts_with(kPercent);
    path += isEscape ? (rest[1] == '0' ? '\n' : '%') : line[at];
    if (isEscape) at += 2;
  }
  return path;
}

}  // namespace

std::vector<fs::path> ReadBankFolders(const fs::path& file) {
  std::vector<fs::path> folders;
  const std::string bytes = ReadWholeFile(file, kMostBytes).value_or("");
  for (std::size_t begin = 0; begin < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    const fs::path folder = Unescaped(std::string_view(bytes).substr(begin, end - begin));
    if (folder.is_absolute()) folders.push_back(folder);
    begin = end + 1;
  }
  return folders;
}

std::error_code WriteBankFolders(Files& files, const fs::path& file, const std::vector<fs::path>& folders) {
  std::string bytes;
  for (const fs::path& folder : folders) bytes += Escaped(folder.string()) + "\n";
  std::error_code error;
  fs::create_directories(file.parent_path(), error);
  return SaveWholeFile(files, file, bytes);
}

bool LiesIn(const fs::path& path, const fs::path& folder) {
  const auto [inFolder, inPath] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return inFolder == folder.end() || inFolder->empty();
}

}  // namespace quorvantis
