// SPDX-License-Identifier: MIT
// Random patterns and texts, compared with a well-known engine.
#include "RandomPatterns.h"
#include "RegexTest.h"
#include "regex/RegexFlags.h"
#include "text/Utf.h"

#include <algorithm>
#include <initializer_list>
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
    PCRE2_SIZE place = 0;
    code_.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(), options, &error_,
                              &place, nullptr));
    if (code_) data_.reset(pcre2_match_data_create_from_pattern(code_.get(), nullptr));
  }

  bool Compiled() const { return code_ != nullptr; }
  int CompileError() const { return error_; }

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
  int error_ = 0;
  std::unique_ptr<pcre2_code, Freed> code_;
  std::unique_ptr<pcre2_match_data, Freed> data_;
};

bool EndsUnbegunQuotation(std::u16string_view pattern) {
  for (std::size_t at = 0; at != pattern.npos;) {
    const std::size_t begin = pattern.find(u"\\Q", at);
    if (pattern.find(u"\\E", at) < begin) return true;
    at = begin == pattern.npos ? begin : pattern.find(u"\\E", begin);
    if (at != pattern.npos) at += 2;
  }
  return false;
}

/// Whether only one of the two compiles a pattern, and rightly so. We accept quantifiers after anchors and
/// after other quantifiers, and look-behind of any length; the peer has some groups of its own, and accepts
/// the end of a quotation that has not begun.
bool DiffersRightfully(std::u16string_view pattern, const RegexPattern& ours, const Peer& peer) {
  if (!peer.Compiled())
    return !ours.IsEmpty() && (peer.CompileError() == PCRE2_ERROR_QUANTIFIER_INVALID ||
                               peer.CompileError() == PCRE2_ERROR_LOOKBEHIND_NOT_FIXED_LENGTH);
  if (EndsUnbegunQuotation(pattern)) return true;
  const std::u16string_view own[] = {u"(?|", u"(?*", u"(?^", u"(?+"};
  return ours.IsEmpty() &&
         std::ranges::any_of(own, [&](auto group) { return pattern.find(group) != pattern.npos; });
}

void ExpectSame(const std::u16string& text, int flags, std::initializer_list<std::u16string_view> subjects) {
  const RegexPattern ours(text, flags);
  Peer peer(text, flags);
  if (DiffersRightfully(text, ours, peer)) return;
  const std::string about = "pattern '" + Utf16ToUtf8(text) + "', flags " + std::to_string(flags);
  EXPECT_EQ(ours.IsEmpty(), !peer.Compiled()) << about;
  if (ours.IsEmpty() || !peer.Compiled()) return;
  for (const std::u16string_view subject : subjects) {
    const std::optional<std::string> expected = peer.Match(subject);
    if (!expected) continue;
    EXPECT_EQ(Bounds(ours, ours.Match(subject)), *expected) << about << ", text " << Utf16ToUtf8(subject);
  }
}

/// Every sequence of three of these: comments, quotations, white space, flags and quantifiers in any order.
TEST(RegexPeer, AgreesOnMarksInAnyOrder) {
  const std::u16string_view tokens[] = {u"a",    u"(?#c)", u"\\Q",    u"\\E",  u" ",   u"#n\n", u"(?i)",
                                        u"(?x)", u"(?-x)", u"(?x-i:", u"(",    u")",   u"|",    u"*",
                                        u"+",    u"?",     u"{2}",    u"(?<!", u"[A]", u"^"};
  for (const auto first : tokens) {
    for (const auto second : tokens) {
      for (const auto third : tokens) {
        for (const int flags : {3, 35}) {
          const std::u16string text = std::u16string(first).append(second).append(third);
          ExpectSame(text, flags, {u"", u"a", u"aab A", u"#n\na*", u"(?#c)|+"});
          ExpectSame(u"a" + text + u"b|[a]" + text + u")", flags, {u"a", u"aab A"});
        }
      }
    }
  }
}

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
