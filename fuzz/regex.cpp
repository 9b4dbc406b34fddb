// SPDX-License-Identifier: MIT
// Compiles any bytes as a pattern and matches it. The result must lie within the text. After a replacement, a
// search from the place where that is enough must find the same as a search from the first unit.
//
// The first byte holds the flags; the pattern follows as UTF-8 up to a byte FF, then the text.
#include "Require.h"
#include "regex/RegexFlags.h"
#include "regex/RegexPattern.h"
#include "text/Utf.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace quorvantis;

void CheckBounds(const MatchResult& result, int length) {
  if (!result.IsMatched()) return;
  Require(result.GroupStart(0) >= 0);
  for (int group = 0; group < result.Groups(); ++group) {
    const int start = result.GroupStart(group);
    const int end = result.GroupEnd(group);
    Require((start == -1 && end == -1) || (start >= 0 && start <= end && end <= length));
  }
}

/// Replaces a match, then compares the search from the place where that is enough with a search from the
/// first unit.
template <class Match>
void CheckResumption(const MatchResult& result, std::u16string text, FailedStarts& failed,
                     const Match& match) {
  if (!result.IsMatched()) return;
  const int place = result.GroupStart(0);
  text.replace(static_cast<std::size_t>(place), static_cast<std::size_t>(result.GroupEnd(0) - place),
               u"!!!!!");
  const int resume = failed.ResumeAfterChange(place);
  Require(resume >= 0 && resume <= place);
  const MatchResult found = match(text, resume);
  const MatchResult expected = match(text, 0);
  if (found.Outcome() == MatchOutcome::Matched && expected.Outcome() == MatchOutcome::Matched)
    Require(found.GroupStart(0) == expected.GroupStart(0) && found.GroupEnd(0) == expected.GroupEnd(0));
  Require(found.Outcome() != MatchOutcome::NoMatch || expected.Outcome() != MatchOutcome::Matched);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::size_t end = bytes.find('\xFF');
  const std::u16string text = end == std::string_view::npos ? u"aab" : Utf8ToUtf16(bytes.substr(end + 1));
  const RegexPattern pattern(Utf8ToUtf16(bytes.substr(0, end)), data[0] & 63);
  Require(pattern.IsEmpty() == pattern.CompileError().has_value());
  FailedStarts failed;
  const auto match = [&pattern, &failed](std::u16string_view subject, int start) {
    int asked = 0;
    MatchContext context{start < 0 ? -1 : 0, [&asked] { return ++asked > 6; }, &failed};
    const MatchResult result = pattern.Match(subject, start, &context);
    CheckBounds(result, static_cast<int>(subject.size()));
    return result;
  };
  const MatchResult result = match(text, (data[0] & regex_flag::kRightToLeft) != 0 ? -1 : 0);
  if ((data[0] & regex_flag::kRightToLeft) == 0) CheckResumption(result, text, failed, match);
  return 0;
}
