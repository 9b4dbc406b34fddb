// SPDX-License-Identifier: MIT
// What a person says is right of a paper, in a file NAME.expected beside it. A line: "12| how question 12
// begins", "A| an option", "=| its key, or its answer", "# a remark".
#pragma once

#include "import/labels/LineText.h"
#include "import/lines/JudgementWords.h"
#include "import/marking/QuestionTextParser.h"
#include "platform/WholeFile.h"
#include "text/Utf.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::test {

struct ExpectedQuestion {
  std::u16string text;
  std::map<char16_t, std::u16string> options;
  std::u16string key;
};

inline std::vector<ExpectedQuestion> ReadExpected(const std::filesystem::path& file) {
  std::vector<ExpectedQuestion> questions;
  const std::u16string text = Utf8ToUtf16(ReadWholeFile(file, 10'000'000).value_or(""));
  for (const TextSpan& span : LinesOf(text, {0, text.size()})) {
    const std::u16string_view line = span.Of(text);
    const std::size_t bar = line.find(u'|');
    if (line.starts_with(u'#') || bar == line.npos || bar == 0) continue;
    const std::u16string value(line.substr(std::min(bar + 2, line.size())));
    if (line[0] >= u'0' && line[0] <= u'9') {
      questions.push_back({value, {}, {}});
    } else if (!questions.empty() && line[0] == u'=') {
      questions.back().key = value;
    } else if (!questions.empty()) {
      questions.back().options[line[0]] = value;
    }
  }
  return questions;
}

/// What is left when blanks, brackets and dots of all kinds are gone.
inline std::u16string Bare(std::u16string_view text) {
  std::u16string bare;
  for (const char16_t unit : text) {
    const bool isMark = unit < u'0' || (unit > u'9' && unit < u'A') || (unit > u'Z' && unit < u'a') ||
                        (unit > u'z' && unit < 0xC0) || (unit >= 0x2000 && unit < 0x2100) ||
                        (unit >= 0x3000 && unit < 0x3030) || (unit >= 0xFF00 && unit < 0xFF10) ||
                        (unit >= 0xFF1A && unit < 0xFF21) || unit == 0xFF3F;
    if (!isMark) bare += unit;
  }
  return bare;
}

/// The same without single letters in brackets, which are keys.
inline std::u16string BareText(std::u16string_view text) {
  std::u16string without(text);
  constexpr std::u16string_view kOpens = u"(（[【";
  constexpr std::u16string_view kCloses = u")）]】";
  for (std::size_t at = 0; at < without.size(); ++at) {
    if (kOpens.find(without[at]) == kOpens.npos) continue;
    const std::size_t end = without.find_first_of(kCloses, at);
    if (end == without.npos || end - at > 6) continue;
    if (Bare(std::u16string_view(without).substr(at, end - at)).size() <= 1) without.erase(at, end - at + 1);
  }
  return Bare(without);
}

/// Whether the right option of a judgement says "true"; nothing if the two options are no judgement.
inline std::optional<bool> SaysTrue(const ReadQuestion& question) {
  if (question.letters != u"A" && question.letters != u"B") return std::nullopt;
  const std::vector<JudgementWord> first = JudgementWordsAt(question.options[0]);
  for (const JudgementWord& second : JudgementWordsAt(question.options[1])) {
    for (const JudgementWord& word : first) {
      const bool arePair = word.pair == second.pair && word.isRight != second.isRight;
      if (arePair) return word.isRight == (question.letters == u"A");
    }
  }
  return std::nullopt;
}

struct Verdict {
  bool text = false;
  bool options = false;
  bool key = false;
};

inline Verdict Compare(const ExpectedQuestion& expected, const ReadQuestion* read) {
  Verdict verdict;
  if (read == nullptr) return verdict;
  const std::u16string wanted = BareText(expected.text);
  const std::u16string got = BareText(read->text);
  // A passage that several questions share may stand before the first of them.
  verdict.text = got.starts_with(wanted) || (wanted.size() >= 8 && got.find(wanted) != got.npos);
  const bool isJudgement = expected.options.empty() && (expected.key == u"T" || expected.key == u"F");
  verdict.options = true;
  for (std::size_t i = 0; i < kOptionCount && !isJudgement; ++i) {
    const auto option = expected.options.find(static_cast<char16_t>(u'A' + i));
    const std::u16string text = option == expected.options.end() ? u"" : Bare(option->second);
    std::u16string have = Bare(read->options[i]);
    if (i + 1 == kOptionCount && expected.options.size() > kOptionCount)
      have.resize(std::min(have.size(), text.size()));
    if (text != have) verdict.options = false;
  }
  if (isJudgement) {
    verdict.key = SaysTrue(*read) == (expected.key == u"T");
  } else if (!expected.options.empty()) {
    verdict.key = read->letters == expected.key;
  } else {
    verdict.key = expected.key.empty() ? Bare(read->answer).empty()
                                       : Bare(read->answer).starts_with(Bare(expected.key));
  }
  return verdict;
}

}  // namespace quorvantis::test
