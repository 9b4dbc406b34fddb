// SPDX-License-Identifier: MIT
// Works out the rules of any text with any marks, and reads the text by them. The first byte says how many
// marks.
#include "import/marking/RuleKeys.h"
#include "learn/PaperStudy.h"
#include "text/Utf.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace quorvantis;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMostBytes = 4'000;
  constexpr std::size_t kMostMarks = 4;
  if (size == 0 || size > kMostBytes) return 0;
  const std::size_t marks = data[0] % (kMostMarks + 1);
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  bytes.remove_prefix(std::min(size, 1 + 3 * marks));
  PaperStudy study(PaperOf(Utf8ToUtf16(bytes)));
  for (std::size_t i = 0; i < marks && 3 * i + 3 < size; ++i) {
    const std::size_t begin = data[3 * i + 1] * std::size_t{8};
    study.AddMark({{begin, begin + data[3 * i + 2]}, static_cast<PaperRole>(1 + data[3 * i + 3] % 8)});
  }
  study.Learn();
  // Rules that are proposed can be saved, and none is too long for a line.
  for (const PatternRule& rule : kPatternRules) {
    const std::u16string& pattern = study.Rules().*rule.pattern;
    if (pattern.size() > 1'023 || pattern.find_first_of(u"\r\n") != std::u16string::npos) std::abort();
  }
  std::size_t place = 0;
  for (const RolePart& part : study.Roles()) {
    if (part.span.begin != place || part.span.end <= part.span.begin) std::abort();
    place = part.span.end;
  }
  if (place != study.StudiedPaper().source.Size() && !study.Reading().HasFailed()) std::abort();
  return 0;
}
