// SPDX-License-Identifier: MIT
#include "RandomPatterns.h"
#include "RegexTest.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis::test {
namespace {

/// Searches `text`, replaces everything from `place` on by `end`, and searches again from the place that is
/// said to be enough.
void ExpectSameAsFromTheStart(const RegexPattern& pattern, std::u16string text, std::size_t place,
                              std::u16string_view end, const std::string& about) {
  FailedStarts failed;
  int asked = 0;
  MatchContext context{0, [&asked] { return ++asked > 8; }, &failed};
  const MatchResult first = pattern.Match(text, 0, &context);
  if (first.Outcome() == MatchOutcome::Cancelled) return;
  if (first.IsMatched()) place = std::min(place, static_cast<std::size_t>(first.GroupStart(0)));
  text.replace(place, text.npos, end);
  const int resume = failed.ResumeAfterChange(static_cast<int>(place));
  EXPECT_LE(resume, static_cast<int>(place));
  context.previousEnd = 0;
  const MatchResult expected = pattern.Match(text, 0, &context);
  context.previousEnd = 0;
  const MatchResult found = pattern.Match(text, resume, &context);
  if (found.Outcome() == MatchOutcome::Cancelled || expected.Outcome() == MatchOutcome::Cancelled) return;
  EXPECT_EQ(Bounds(pattern, found), Bounds(pattern, expected)) << about << " from " << resume;
}

TEST(FailedStarts, FailAgainWhereTheySawNoChange) {
  constexpr int kPatterns = 2'000;
  for (int seed = 0; seed < kPatterns && !HasFailure(); ++seed) {
    RandomPatterns random(static_cast<unsigned>(seed));
    const std::u16string text = random.Pattern();
    const RegexPattern pattern(text, random.Flags());
    for (int i = 0; i < 4; ++i) {
      const std::u16string subject = random.Subject();
      const std::u16string end = random.Subject();
      const std::size_t place = (static_cast<std::size_t>(seed) + end.size()) % (subject.size() + 1);
      ExpectSameAsFromTheStart(
          pattern, subject, place, end,
          Utf16ToUtf8(text + u"  " + subject + u"  " + end) + " at " + std::to_string(place));
    }
  }
}

TEST(FailedStarts, SeeWhatIsRemembered) {
  const std::u16string as(4000, u'a');
  for (const std::u16string pattern : {u"(?:a|aa)+b", u"(a+)+b", u"(?:a?)+?b", u"(?=(?:a|aa)+b)a"})
    ExpectSameAsFromTheStart(RegexPattern(pattern, 3), as, 3990, u"ab", Utf16ToUtf8(pattern));
}

}  // namespace
}  // namespace quorvantis::test
