// SPDX-License-Identifier: MIT
#include "check/KeyRules.h"

#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace quorvantis {
namespace {

using KeyCounts = std::array<int, kOptionCount>;

/// How often each letter is the key, of the questions with `options` options and no gap.
KeyCounts CountKeys(const CheckedExam& exam, std::size_t options) {
  KeyCounts counts{};
  for (const CheckedQuestion& question : exam.questions) {
    const auto key = question.SingleKey();
    if (key && question.writtenOptions == options && question.optionsEnd == options) ++counts[*key];
  }
  return counts;
}

bool IsLongest(const CheckedQuestion& question, std::size_t key) {
  const auto isShorter = [&](std::size_t i) {
    return i == key || question.options[i].size() < question.options[key].size();
  };
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (!isShorter(i)) return false;
  }
  return true;
}

}  // namespace

bool AreSkewed(const std::vector<int>& counts) {
  constexpr std::array kCritical{6.635, 9.210, 11.345, 13.277};  // p = 0.01, one to four degrees of freedom
  const double total = std::accumulate(counts.begin(), counts.end(), 0);
  if (counts.size() < 2 || counts.size() > kCritical.size() + 1 || total == 0) return false;
  const double expected = total / static_cast<double>(counts.size());
  double chiSquare = 0;
  for (const int count : counts) chiSquare += (count - expected) * (count - expected) / expected;
  return chiSquare > kCritical[counts.size() - 2];
}

void SkewedKeys::Check(const CheckedExam& exam, FindingList& findings) const {
  constexpr int kFewest = 20;
  for (std::size_t options = 2; options <= kOptionCount; ++options) {
    const KeyCounts counts = CountKeys(exam, options);
    const auto end = counts.begin() + static_cast<std::ptrdiff_t>(options);
    const int total = std::accumulate(counts.begin(), end, 0);
    if (total < kFewest || !AreSkewed({counts.begin(), end})) continue;
    const auto most = std::max_element(counts.begin(), end);
    const std::u16string letter(1, OptionLetter(static_cast<std::size_t>(most - counts.begin())));
    const auto expected = std::llround(static_cast<double>(total) / static_cast<double>(options));
    findings.Add({0, ExamFieldName::AnswerLetters, static_cast<unsigned>(options)},
                 {FormatInteger(total), FormatInteger(static_cast<std::int64_t>(options)), letter,
                  FormatInteger(*most), FormatInteger(expected)});
  }
}

void LongestIsRight::Check(const CheckedExam& exam, FindingList& findings) const {
  constexpr int kFewest = 10;
  constexpr std::size_t kFewestOptions = 3;
  int total = 0;
  int longest = 0;
  for (const CheckedQuestion& question : exam.questions) {
    const auto key = question.SingleKey();
    if (!key || question.writtenOptions < kFewestOptions) continue;
    ++total;
    if (IsLongest(question, *key)) ++longest;
  }
  if (total < kFewest || longest * 3 <= total * 2) return;
  findings.Add({0, ExamFieldName::Options}, {FormatInteger(longest), FormatInteger(total)});
}

}  // namespace quorvantis
