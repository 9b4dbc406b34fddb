// SPDX-License-Identifier: MIT
// Random patterns and texts, compared with a well-known engine.
#include "RandomPatterns.h"
#include "RegexTest.h"
#include "regex/RegexFlags.h"
#include "text/Utf.h"

#include <memory>
#include <optional>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace quorvantis::test {
namespace {

struct Freed {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
  void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};

/// The peer without its optimizations, some of which change results.
class Peer {
 public:
  Peer(std::u16string_view pattern, int flags) {
    std::uint32_t options = PCRE2_DOLLAR_ENDONLY | PCRE2_ALT_CIRCUMFLEX | PCRE2_NO_AUTO_POSSESS |
                            PCRE2_NO_START_OPTIMIZE | PCRE2_NO_DOTSTAR_ANCHOR;
    if ((flags & regex_flag::kSingleLine) != 0) options |= PCRE2_DOTALL;
    if ((flags & regex_flag::kMultiLine) != 0) options |= PCRE2_MULTILINE;
    if ((flags & regex_flag::kIgnoreCase) != 0) options |= PCRE2_CASELESS;
    if ((flags & regex_flag::kExtended) != 0) options |= PCRE2_EXTENDED;
    int error = 0;
    PCRE2_SIZE place = 0;
    code_.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(), options, &error,
                              &place, nullptr));
    if (code_) data_.reset(pcre2_match_data_create_from_pattern(code_.get(), nullptr));
  }

  bool Compiled() const { return code_ != nullptr; }

  /// In the format of Bounds(); nothing if the peer gave up.
  std::optional<std::string> Match(std::u16string_view text) {
    const int found = pcre2_match(code_.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0, 0,
                                  data_.get(), nullptr);
    if (found == PCRE2_ERROR_NOMATCH) return "no match";
    if (found < 0) return std::nullopt;
    std::string bounds;
    const PCRE2_SIZE* places = pcre2_get_ovector_pointer(data_.get());
    for (std::uint32_t group = 0; group < pcre2_get_ovector_count(data_.get()); ++group) {
      const PCRE2_SIZE start = places[2 * group];
      if (group > 0) bounds += ' ';
      bounds +=
          start == PCRE2_UNSET ? "-" : std::to_string(start) + "-" + std::to_string(places[2 * group + 1]);
    }
    return bounds;
  }

 private:
  std::unique_ptr<pcre2_code, Freed> code_;
  std::unique_ptr<pcre2_match_data, Freed> data_;
};

TEST(RegexPeer, AgreesOnRandomPatterns) {
  constexpr int kPatterns = 5'000;
  int compared = 0;
  for (int seed = 0; seed < kPatterns && !HasFailure(); ++seed) {
    RandomPatterns random(static_cast<unsigned>(seed));
    const std::u16string text = random.Pattern();
    const int flags = random.Flags();
    const RegexPattern pattern(text, flags);
    Peer peer(text, flags);
    ASSERT_EQ(pattern.IsEmpty(), !peer.Compiled()) << Utf16ToUtf8(text);
    for (int i = 0; i < 4 && peer.Compiled(); ++i) {
      const std::u16string subject = random.Subject();
      const std::optional<std::string> expected = peer.Match(subject);
      if (!expected) continue;
      int asked = 0;  // where groups affect the result, some patterns take too long for a test
      MatchContext context{-1, [&asked] { return ++asked > 10; }};
      const MatchResult result = pattern.Match(subject, -1, &context);
      if (result.Outcome() == MatchOutcome::Cancelled) continue;
      ++compared;
      EXPECT_EQ(Bounds(pattern, result), *expected) << Utf16ToUtf8(text) << "\nflags " << flags << ", seed "
                                                    << seed << ", text " << Utf16ToUtf8(subject);
    }
  }
  EXPECT_GT(compared, 3 * kPatterns);
}

}  // namespace
}  // namespace quorvantis::test
