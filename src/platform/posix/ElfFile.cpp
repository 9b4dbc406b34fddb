// SPDX-License-Identifier: MIT
#include "platform/posix/ElfFile.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <link.h>

namespace quorvantis {
namespace {

template <class Structure>
bool ReadAt(std::ifstream& in, std::uint64_t offset, Structure& structure) {
  in.seekg(static_cast<std::streamoff>(offset));
  in.read(reinterpret_cast<char*>(&structure), sizeof structure);
  return in.good();
}

bool HasMark(const ElfW(Ehdr) & header) {
  constexpr unsigned char kClass = __ELF_NATIVE_CLASS == 64 ? ELFCLASS64 : ELFCLASS32;
  return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == kClass &&
         header.e_phentsize == sizeof(ElfW(Phdr));
}

}  // namespace

bool IsWholeElfFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return false;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  std::ifstream in(file, std::ios::binary);
  ElfW(Ehdr) header{};
  if (error || !ReadAt(in, 0, header) || !HasMark(header)) return false;
  for (std::uint64_t i = 0; i < header.e_phnum; ++i) {
    ElfW(Phdr) segment{};
    if (!ReadAt(in, header.e_phoff + i * sizeof segment, segment)) return false;
    if (segment.p_offset > size || segment.p_filesz > size - segment.p_offset) return false;
  }
  return true;
}

}  // namespace quorvantis
