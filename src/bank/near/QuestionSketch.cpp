// SPDX-License-Identifier: MIT
#include "bank/near/QuestionSketch.h"

#include "bank/near/MixedBits.h"

#include <algorithm>
#include <limits>

namespace quorvantis {
namespace {

/// Takes a shingle's 32 bits x to the upper half of factor * x + addend.
struct HashFunction {
  std::uint64_t factor = 0;
  std::uint64_t addend = 0;
};

constexpr std::array<HashFunction, QuestionSketch::kValues> MakeHashFunctions() {
  std::array<HashFunction, QuestionSketch::kValues> functions{};
  std::uint64_t count = 0;
  for (HashFunction& function : functions) {
    function.factor = MixedBits(++count) | 1;
    function.addend = MixedBits(++count);
  }
  return functions;
}

constexpr auto kHashFunctions = MakeHashFunctions();

std::uint16_t SmallestHalf(const std::vector<std::uint32_t>& hashes, const HashFunction& function) {
  std::uint32_t smallest = std::numeric_limits<std::uint32_t>::max();
  for (const std::uint32_t hash : hashes) {
    const auto value = static_cast<std::uint32_t>((function.factor * hash + function.addend) >> 32);
    smallest = std::min(smallest, value);
  }
  return static_cast<std::uint16_t>(smallest);
}

}  // namespace

QuestionSketch::QuestionSketch(const Shingles& shingles) {
  if (shingles.IsEmpty()) return;
  std::vector<std::uint32_t> hashes;
  hashes.reserve(shingles.Values().size());
  for (const std::uint64_t shingle : shingles.Values()) {
    const std::uint64_t mixed = MixedBits(shingle);
    fingerprint_ += MixedBits(mixed ^ shingle);
    hashes.push_back(static_cast<std::uint32_t>(mixed >> 32));
  }
  fingerprint_ = std::max<std::uint64_t>(fingerprint_, 1);
  for (std::size_t i = 0; i < kValues; ++i) values_[i] = SmallestHalf(hashes, kHashFunctions[i]);
}

std::uint64_t QuestionSketch::Band(std::size_t band) const {
  constexpr std::size_t kRows = kValues / kBands;
  static_assert(kRows * 16 == 64, "a band fills a number");
  std::uint64_t rows = 0;
  for (std::size_t row = 0; row < kRows; ++row) rows = (rows << 16) | values_[band * kRows + row];
  return rows;
}

std::string QuestionSketch::Bytes() const {
  std::string bytes;
  bytes.reserve(kBytes);
  for (int shift = 0; shift < 64; shift += 8) bytes.push_back(static_cast<char>(fingerprint_ >> shift));
  for (const std::uint16_t value : values_) {
    bytes.push_back(static_cast<char>(value & 0xFF));
    bytes.push_back(static_cast<char>(value >> 8));
  }
  return bytes;
}

std::optional<QuestionSketch> QuestionSketch::FromBytes(std::string_view bytes) {
  if (bytes.size() != kBytes) return std::nullopt;
  const auto byteAt = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  QuestionSketch sketch;
  for (std::size_t i = 0; i < 8; ++i) sketch.fingerprint_ |= std::uint64_t{byteAt(i)} << (8 * i);
  for (std::size_t i = 0; i < kValues; ++i)
    sketch.values_[i] = static_cast<std::uint16_t>(byteAt(8 + 2 * i) | byteAt(9 + 2 * i) << 8);
  return sketch;
}

double EstimateSimilarity(const QuestionSketch& a, const QuestionSketch& b) {
  if (a.IsEmpty() || b.IsEmpty()) return 0;
  std::uint16_t equal = 0;
  for (std::size_t i = 0; i < QuestionSketch::kValues; ++i) {
    equal = static_cast<std::uint16_t>(equal + (a.Values()[i] == b.Values()[i] ? 1 : 0));
  }
  return static_cast<double>(equal) / static_cast<double>(QuestionSketch::kValues);
}

std::vector<std::size_t> LikelyAlike(const QuestionSketch& sketch, std::span<const QuestionSketch> others) {
  std::vector<std::size_t> likely;
  for (std::size_t i = 0; i < others.size(); ++i) {
    if (EstimateSimilarity(sketch, others[i]) >= kWorthAnExactLook) likely.push_back(i);
  }
  return likely;
}

std::vector<std::uint64_t> BandKeys(const QuestionSketch& sketch) {
  std::vector<std::uint64_t> keys;
  if (sketch.IsEmpty()) return keys;
  keys.reserve(QuestionSketch::kBands);
  for (std::size_t band = 0; band < QuestionSketch::kBands; ++band)
    keys.push_back(MixedBits(sketch.Band(band) ^ MixedBits(band + 1)));
  return keys;
}

}  // namespace quorvantis
