// SPDX-License-Identifier: MIT
#include "platform/documents/ZipPackage.h"

#include <algorithm>
#include <zip.h>

namespace quorvantis {
namespace {

struct FileCloser {
  void operator()(zip_file_t* file) const { ::zip_fclose(file); }
};

WordResult ResultOf(int zipError) {
  switch (zipError) {
    case ZIP_ER_NOENT:
      return WordResult::NotFound;
    case ZIP_ER_OPEN:
    case ZIP_ER_READ:
      return WordResult::CannotAccess;
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
      return WordResult::PasswordProtected;
    case ZIP_ER_MEMORY:
      return WordResult::TooLarge;
    default:
      return WordResult::Damaged;
  }
}

}  // namespace

void ZipPackage::Closer::operator()(zip* archive) const {
  ::zip_discard(archive);
}

ZipPackage::ZipPackage(const std::filesystem::path& file) {
  int error = ZIP_ER_OK;
  archive_.reset(::zip_open(file.c_str(), ZIP_RDONLY, &error));
  if (!archive_) opened_ = ResultOf(error);
}

bool ZipPackage::Has(const std::string& name) const {
  return ::zip_name_locate(archive_.get(), name.c_str(), ZIP_FL_NOCASE) >= 0;
}

std::vector<std::string> ZipPackage::Names(std::size_t limit) const {
  std::vector<std::string> names;
  const auto count =
      static_cast<zip_uint64_t>(std::max<zip_int64_t>(0, ::zip_get_num_entries(archive_.get(), 0)));
  for (zip_uint64_t i = 0; i < count && names.size() < limit; ++i) {
    const char* const name = ::zip_get_name(archive_.get(), i, 0);
    if (name != nullptr) names.emplace_back(name);
  }
  return names;
}

std::size_t ZipPackage::ClaimedSize(const std::string& name) const {
  zip_stat_t part;
  ::zip_stat_init(&part);
  if (::zip_stat(archive_.get(), name.c_str(), ZIP_FL_NOCASE, &part) != 0) return 0;
  return (part.valid & ZIP_STAT_SIZE) != 0 ? part.size : 0;
}

PackagePart ZipPackage::Read(const std::string& name, std::size_t limit) const {
  const zip_int64_t index = ::zip_name_locate(archive_.get(), name.c_str(), ZIP_FL_NOCASE);
  if (index < 0) return {WordResult::NotFound, {}};
  const std::unique_ptr<zip_file_t, FileCloser> file(
      ::zip_fopen_index(archive_.get(), static_cast<zip_uint64_t>(index), 0));
  if (!file) return {ResultOf(::zip_error_code_zip(::zip_get_error(archive_.get()))), {}};
  PackagePart part;
  constexpr std::size_t kStep = 65'536;
  for (std::size_t size = 0;;) {
    part.bytes.resize(size + kStep);
    const zip_int64_t read = ::zip_fread(file.get(), part.bytes.data() + size, kStep);
    if (read < 0) return {WordResult::Damaged, {}, size};
    size += static_cast<std::size_t>(read);
    if (size > limit) return {WordResult::TooLarge, {}, size};
    part.bytes.resize(size);
    part.unpacked = size;
    if (read == 0) return part;
  }
}

}  // namespace quorvantis
