// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/FileDigestCache.h"

#include <cstddef>
#include <fstream>
#include <optional>

namespace quorvantis {

std::string FileDigestCache::OfFile(const std::filesystem::path& file) const {
  const std::optional<FileStamp> stamp = FileStamp::Of(file);
  if (!stamp) return {};
  const auto known = known_.find(file);
  if (known != known_.end() && known->second.first == *stamp) return known->second.second;
  const std::string digest = Read(file);
  const bool isSettled = stamp->IsSettled();
  if (isSettled && !digest.empty() && FileStamp::Of(file) == stamp) known_[file] = {*stamp, digest};
  return digest;
}

std::string FileDigestCache::Read(const std::filesystem::path& file) const {
  constexpr std::size_t kPiece = std::size_t{1} << 20;  // a millisecond
  std::ifstream input(file, std::ios::binary);
  const auto digest = digest_.Begin();
  std::string piece(kPiece, '\0');
  while (input && !(isCancelled_ && isCancelled_())) {
    input.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    digest->Add(std::string_view(piece).substr(0, static_cast<std::size_t>(input.gcount())));
  }
  return input.eof() ? digest->Text() : std::string();
}

}  // namespace quorvantis
