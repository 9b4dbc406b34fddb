// SPDX-License-Identifier: MIT
#include "platform/documents/CompoundFile.h"

#include "platform/documents/ByteNumbers.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kSectorShift = 30;
constexpr std::size_t kFirstDirectorySector = 48;
constexpr std::size_t kSmallestOwnSectors = 56;  // smaller streams share the sectors of the first entry
constexpr std::size_t kAllocationSectors = 76;
constexpr std::size_t kAllocationSectorsInHeader = 109;
constexpr std::size_t kEntryBytes = 128;
constexpr std::size_t kEntryNameBytes = 64;
constexpr std::size_t kEntryStart = 116;
constexpr std::size_t kEntrySize = 120;
constexpr std::size_t kSmallSectorBytes = 64;
constexpr std::uint32_t kNoSector = 0xFFFFFFFE;  // this and the one above end a chain
constexpr int kMostDirectorySectors = 256;       // a chain may be a ring

}  // namespace

CompoundFile::CompoundFile(std::string_view bytes) : bytes_(bytes) {
  if (NumberAt(bytes_, kSectorShift, 2) == 12) sectorBytes_ = 4096;
}

std::uint32_t CompoundFile::NextSector(std::uint32_t sector) const {
  const std::size_t entriesInSector = sectorBytes_ / 4;
  const std::size_t table = sector / entriesInSector;
  if (table >= kAllocationSectorsInHeader) return kNoSector;
  const std::uint32_t allocation = NumberAt(bytes_, kAllocationSectors + 4 * table, 4);
  if (allocation >= kNoSector || OffsetOf(allocation) >= bytes_.size()) return kNoSector;
  return NumberAt(bytes_, OffsetOf(allocation) + 4 * (sector % entriesInSector), 4);
}

std::optional<std::size_t> CompoundFile::EntryOf(std::u16string_view name) const {
  std::uint32_t sector = NumberAt(bytes_, kFirstDirectorySector, 4);
  for (int i = 0; i < kMostDirectorySectors && sector < kNoSector; ++i, sector = NextSector(sector)) {
    for (std::size_t entry = OffsetOf(sector); entry < OffsetOf(sector) + sectorBytes_;
         entry += kEntryBytes) {
      std::u16string found;
      for (std::size_t at = 0; at < kEntryNameBytes && NumberAt(bytes_, entry + at, 2) != 0; at += 2) {
        found += static_cast<char16_t>(NumberAt(bytes_, entry + at, 2));
      }
      if (EqualsIgnoringAsciiCase(found, name)) return entry;
    }
  }
  return std::nullopt;
}

std::size_t CompoundFile::StreamOffset(std::size_t entry) const {
  const std::uint32_t start = NumberAt(bytes_, entry + kEntryStart, 4);
  if (NumberAt(bytes_, entry + kEntrySize, 4) >= NumberAt(bytes_, kSmallestOwnSectors, 4))
    return OffsetOf(start);
  const std::size_t position = start * kSmallSectorBytes;
  const std::size_t firstEntry = OffsetOf(NumberAt(bytes_, kFirstDirectorySector, 4));
  std::uint32_t sector = NumberAt(bytes_, firstEntry + kEntryStart, 4);
  const std::size_t sectors = std::min(position, bytes_.size()) / sectorBytes_;
  for (std::size_t i = 0; i < sectors && sector < kNoSector; ++i) sector = NextSector(sector);
  return OffsetOf(sector) + position % sectorBytes_;
}

std::string_view CompoundFile::Head(std::u16string_view name, std::size_t count) const {
  const auto entry = EntryOf(name);
  const std::size_t offset = entry ? StreamOffset(*entry) : bytes_.size();
  return offset < bytes_.size() ? bytes_.substr(offset, count) : std::string_view();
}

}  // namespace quorvantis
