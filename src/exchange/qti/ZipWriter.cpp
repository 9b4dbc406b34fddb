// SPDX-License-Identifier: MIT
#include "exchange/qti/ZipWriter.h"

#include <algorithm>
#include <zip.h>

namespace quorvantis {
namespace {

// The first day of 2000 at noon, as archives keep it: without a time zone, so that none changes the bytes.
constexpr zip_uint16_t kDateOfParts = ((2000 - 1980) << 9) + (1 << 5) + 1;
constexpr zip_uint16_t kTimeOfParts = 12 << 11;

}  // namespace

ZipWriter::ZipWriter() {
  archiveSource_ = ::zip_source_buffer_create(nullptr, 0, 0, nullptr);
  if (archiveSource_ == nullptr) return;
  ::zip_source_keep(archiveSource_);
  archive_ = ::zip_open_from_source(archiveSource_, ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  if (archive_ == nullptr) ::zip_source_free(archiveSource_);
}

ZipWriter::~ZipWriter() {
  if (archive_ != nullptr) ::zip_discard(archive_);
  if (archiveSource_ != nullptr) ::zip_source_free(archiveSource_);
}

void ZipWriter::Add(const std::string& name, std::string bytes, bool isCompressed) {
  if (archive_ == nullptr) return;
  parts_.push_back(std::make_unique<std::string>(std::move(bytes)));
  const std::string& part = *parts_.back();
  zip_source_t* const source = ::zip_source_buffer(archive_, part.data(), part.size(), 0);
  if (source == nullptr) return;
  const zip_int64_t index =
      ::zip_file_add(archive_, name.c_str(), source, ZIP_FL_ENC_UTF_8 | ZIP_FL_OVERWRITE);
  if (index < 0) return ::zip_source_free(source);
  const auto entry = static_cast<zip_uint64_t>(index);
  if (isCompressed) ::zip_set_file_compression(archive_, entry, ZIP_CM_STORE, 0);
  ::zip_file_set_dostime(archive_, entry, kTimeOfParts, kDateOfParts, 0);
}

std::string ZipWriter::Finish() {
  if (archive_ == nullptr || ::zip_close(archive_) != 0) return {};
  archive_ = nullptr;
  zip_stat_t information;
  ::zip_stat_init(&information);
  if (::zip_source_stat(archiveSource_, &information) != 0 || ::zip_source_open(archiveSource_) != 0)
    return {};
  std::string bytes(information.size, '\0');
  const zip_int64_t read = ::zip_source_read(archiveSource_, bytes.data(), bytes.size());
  ::zip_source_close(archiveSource_);
  bytes.resize(static_cast<std::size_t>(std::max<zip_int64_t>(0, read)));
  return bytes;
}

}  // namespace quorvantis
