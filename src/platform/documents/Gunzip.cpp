// SPDX-License-Identifier: MIT
#include "platform/documents/Gunzip.h"

#include <string_view>
#include <zlib.h>

namespace quorvantis {
namespace {

constexpr std::string_view kSignature = "\x1F\x8B";
constexpr std::size_t kStep = 65'536;

/// Owns the state of the unpacking.
struct Inflation {
  z_stream stream{};
  bool isReady = ::inflateInit2(&stream, 16 + MAX_WBITS) == Z_OK;  // 16: with the header of gzip
  Inflation() = default;
  ~Inflation() { ::inflateEnd(&stream); }
  Inflation(const Inflation&) = delete;
  Inflation& operator=(const Inflation&) = delete;
};

}  // namespace

PackagePart Gunzip(PackagePart part, std::size_t limit) {
  if (part.result != WordResult::Done || !part.bytes.starts_with(kSignature)) return part;
  Inflation inflation;
  if (!inflation.isReady) return {WordResult::TooLarge, {}};
  z_stream& stream = inflation.stream;
  stream.next_in = reinterpret_cast<Bytef*>(part.bytes.data());
  stream.avail_in = static_cast<uInt>(part.bytes.size());
  PackagePart unpacked;
  for (int state = Z_OK; state != Z_STREAM_END;) {
    const std::size_t size = unpacked.bytes.size();
    if (size > limit) return {WordResult::TooLarge, {}};
    unpacked.bytes.resize(size + kStep);
    stream.next_out = reinterpret_cast<Bytef*>(unpacked.bytes.data() + size);
    stream.avail_out = kStep;
    state = ::inflate(&stream, Z_NO_FLUSH);
    if (state != Z_OK && state != Z_STREAM_END) return {WordResult::Damaged, {}};
    unpacked.bytes.resize(size + kStep - stream.avail_out);
  }
  return unpacked;
}

}  // namespace quorvantis
