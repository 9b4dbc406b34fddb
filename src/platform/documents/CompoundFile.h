// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The container of older documents, a small file system in a file. Only what distinguishes kinds of
/// documents is read.
class CompoundFile {
 public:
  /// `bytes` must outlive this; they may be damaged, or only the beginning of a file.
  explicit CompoundFile(std::string_view bytes);

  /// Whether a stream of that name is listed. Case is ignored, since old programs differ in it.
  bool Has(std::u16string_view name) const { return EntryOf(name).has_value(); }

  /// Up to `count` bytes from the beginning of a stream, at most 64; fewer when they are missing.
  std::string_view Head(std::u16string_view name, std::size_t count) const;

 private:
  std::optional<std::size_t> EntryOf(std::u16string_view name) const;
  std::size_t StreamOffset(std::size_t entry) const;
  std::uint32_t NextSector(std::uint32_t sector) const;
  std::size_t OffsetOf(std::uint32_t sector) const { return (std::size_t{sector} + 1) * sectorBytes_; }

  std::string_view bytes_;
  std::size_t sectorBytes_ = 512;
};

}  // namespace quorvantis
