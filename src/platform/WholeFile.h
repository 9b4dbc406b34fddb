// SPDX-License-Identifier: MIT
// Small files that are read and written as a whole.
#pragma once

#include "platform/Files.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The bytes of a regular file, or of its link's target; none when it does not exist. Nothing when it is
/// there but cannot be read, is something else, or has more than `limit` bytes: it must not be taken for an
/// empty one then.
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

/// Puts `bytes` in the place of the file in one step. On failure the old file is as it was.
inline std::error_code SaveWholeFile(Files& files, const std::filesystem::path& file,
                                     std::string_view bytes) {
  std::error_code error;
  const std::unique_ptr<PendingFile> pending = files.Replace(file, error);
  if (!pending) return error ? error : std::make_error_code(std::errc::io_error);
  if (const auto failure = pending->Write(std::as_bytes(std::span(bytes)))) return failure;
  return pending->Commit();
}

}  // namespace quorvantis
