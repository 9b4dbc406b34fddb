// SPDX-License-Identifier: MIT
#include "recovery/RecoveryFile.h"

#include "recovery/SnapshotFields.h"

namespace quorvantis {
namespace {

constexpr std::string_view kTag = "Quorvantis recovery 1\n";
constexpr std::size_t kChecksumSize = sizeof(std::uint64_t);

/// Eight bytes at a time, since it processes megabytes.
std::uint64_t Checksum(std::string_view bytes) {
  constexpr std::uint64_t kPrime = 0x9E3779B97F4A7C15u;
  std::uint64_t sum = bytes.size();
  while (!bytes.empty()) {
    std::uint64_t word = 0;
    const std::size_t size = std::min(sizeof word, bytes.size());
    std::memcpy(&word, bytes.data(), size);
    sum = (sum ^ word) * kPrime;
    sum ^= sum >> 32;
    bytes.remove_prefix(size);
  }
  return sum;
}

std::string ChecksumBytes(std::string_view bytes) {
  const std::uint64_t sum = Checksum(bytes);
  return {reinterpret_cast<const char*>(&sum), sizeof sum};
}

}  // namespace

std::string ComposeRecoveryFile(const RecoveryFile& file) {
  std::string body;
  SnapshotWriter fields(body);
  fields.Number(file.time);
  fields.Number(file.links.size());
  for (const auto& [path, number] : file.links) {
    fields.Text(path);
    fields.Number(number);
  }
  body += file.content;
  return std::string(kTag) + ChecksumBytes(body) + body;
}

std::optional<RecoveryFile> ParseRecoveryFile(std::string_view bytes) {
  if (!bytes.starts_with(kTag)) return std::nullopt;
  bytes.remove_prefix(kTag.size());
  const std::string_view checksum = bytes.substr(0, kChecksumSize);
  bytes.remove_prefix(checksum.size());
  if (checksum != ChecksumBytes(bytes)) return std::nullopt;
  RecoveryFile file;
  SnapshotReader fields(bytes);
  std::size_t count = 0;
  fields.Number(file.time);
  fields.Number(count);
  for (std::size_t i = 0; i < count && !fields.Failed(); ++i) {
    std::u16string path;
    fields.Text(path);
    fields.Number(file.links[path]);
  }
  if (fields.Failed()) return std::nullopt;
  file.content = fields.Rest();
  return file;
}

}  // namespace quorvantis
