// SPDX-License-Identifier: MIT
// Compiles any bytes as a pattern and matches it. Whatever comes out must lie in the text.
//
// The first byte holds the flags, then comes the pattern as UTF-8 up to a byte FF, then the text.
#include "regex/RegexPattern.h"
#include "text/Utf.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace quorvantis;

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckBounds(const MatchResult& result, int length) {
  if (!result.IsMatched()) return;
  Require(result.GroupStart(0) >= 0);
  for (int group = 0; group < result.Groups(); ++group) {
    const int start = result.GroupStart(group);
    const int end = result.GroupEnd(group);
    Require((start == -1 && end == -1) || (start >= 0 && start <= end && end <= length));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::size_t end = bytes.find('\xFF');
  const std::u16string text = end == std::string_view::npos ? u"aab" : Utf8ToUtf16(bytes.substr(end + 1));
  const RegexPattern pattern(Utf8ToUtf16(bytes.substr(0, end)), data[0] & 63);
  Require(pattern.IsEmpty() == pattern.CompileError().has_value());
  int asked = 0;
  MatchContext context{-1, [&asked] { return ++asked > 20; }};
  CheckBounds(pattern.Match(text, -1, &context), static_cast<int>(text.size()));
  return 0;
}
