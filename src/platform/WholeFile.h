// SPDX-License-Identifier: MIT
// Whole files: small ones are read and written at once, large ones copied.
#pragma once

#include "platform/Files.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The bytes of a regular file, or of its link's target; empty when it does not exist. Nothing when it exists
/// but cannot be read, is not a regular file, or has more than `limit` bytes: it must not be taken for an
/// empty file.
inline std::optional<std::string> ReadWholeFile(const std::filesystem::path& file, std::size_t limit) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) return std::string();
  if (!std::filesystem::is_regular_file(status)) return std::nullopt;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  std::ifstream in(file, std::ios::binary);
  if (error || size > limit || !in) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (in.bad()) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

/// Replaces the file by `bytes` in one step. On failure the old file is unchanged.
inline std::error_code SaveWholeFile(Files& files, const std::filesystem::path& file,
                                     std::string_view bytes) {
  std::error_code error;
  const std::unique_ptr<PendingFile> pending = files.Replace(file, error);
  if (!pending) return error ? error : std::make_error_code(std::errc::io_error);
  if (const auto failure = pending->Write(std::as_bytes(std::span(bytes)))) return failure;
  return pending->Commit();
}

/// Replaces `to` by a copy of `from` in one step. On failure the old file is unchanged.
inline std::error_code CopyWholeFile(Files& files, const std::filesystem::path& from,
                                     const std::filesystem::path& to) {
  constexpr std::size_t kBlock = std::size_t{512} * 1024;
  std::error_code error;
  if (std::filesystem::equivalent(from, to, error)) return {};
  std::ifstream source(from, std::ios::binary);
  if (!source) return std::make_error_code(std::errc::permission_denied);
  error.clear();
  const std::unique_ptr<PendingFile> target = files.Replace(to, error);
  if (!target) return error ? error : std::make_error_code(std::errc::io_error);
  std::vector<char> block(kBlock);
  while (source.read(block.data(), kBlock) || source.gcount() > 0) {
    const auto size = static_cast<std::size_t>(source.gcount());
    if (const auto failure = target->Write(std::as_bytes(std::span(block).first(size)))) return failure;
  }
  return source.eof() ? target->Commit() : std::make_error_code(std::errc::io_error);
}

}  // namespace quorvantis
