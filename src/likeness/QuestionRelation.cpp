// SPDX-License-Identifier: MIT
#include "likeness/QuestionRelation.h"

#include "likeness/TextSketch.h"
#include "text/LineBreaks.h"
#include "text/ScriptDigits.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quorvantis {
namespace {

constexpr double kOptionsAlike = 0.6;  // one of four may be another

std::u16string DigitsOf(std::u16string_view text) {
  std::u16string digits;
  for (const char16_t unit : text) {
    if (DigitValueOf(unit) >= 0) {
      digits.push_back(unit);
    } else if (!digits.empty() && digits.back() != u' ') {
      digits.push_back(u' ');
    }
  }
  if (digits.ends_with(u' ')) digits.pop_back();
  return digits;
}

/// Takes the lines away that both begin or end with, which may be a passage for several questions. A last
/// common line stays if it is all that there is.
void DropCommonLines(std::u16string_view& a, std::u16string_view& b) {
  const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  if (inA == a.end() && inB == b.end()) return;
  const std::u16string_view common = a.substr(0, static_cast<std::size_t>(inA - a.begin()));
  const std::size_t line = common.rfind(u'\n') + 1;  // npos + 1 is 0
  a.remove_prefix(line);
  b.remove_prefix(line);
  const auto [fromA, fromB] = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
  const std::u16string_view end = a.substr(static_cast<std::size_t>(a.rend() - fromA));
  const std::size_t cut = end.find(u'\n');
  const std::size_t tail = cut == end.npos ? 0 : end.size() - cut;
  a.remove_suffix(tail);
  b.remove_suffix(tail);
}

std::vector<std::u16string> NormalisedSorted(const std::vector<std::u16string>& texts) {
  std::vector<std::u16string> all;
  all.reserve(texts.size());
  for (const std::u16string& text : texts) all.push_back(Normalised(text));
  std::sort(all.begin(), all.end());
  return all;
}

std::vector<std::u16string> Sorted(std::vector<std::u16string> texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

Shingles AllShingles(const std::u16string& text, const std::vector<std::u16string>& options,
                     const std::vector<std::u16string>& files) {
  std::vector<std::u16string> texts = options;
  texts.push_back(text);
  Shingles all(texts);
  return all.IsEmpty() ? Shingles(files) : all;
}

}  // namespace

Shingles ShinglesOf(const QuestionContent& content) {
  return AllShingles(Normalised(content.text), NormalisedSorted(content.options), content.files);
}

ComparedQuestion::ComparedQuestion(const QuestionContent& content)
    : text_(WithLineEnds(content.text, u"\n")),
      normalised_(Normalised(text_)),
      digits_(DigitsOf(normalised_)),
      options_(NormalisedSorted(content.options)),
      files_(Sorted(content.files)),
      ofText_(normalised_),
      ofOptions_(options_),
      all_(AllShingles(normalised_, options_, files_)) {}

bool ComparedQuestion::HasLikeText(const ComparedQuestion& other) const {
  if (ofText_.Likeness(other.ofText_) < kAlike) return false;
  std::u16string_view own = text_;
  std::u16string_view others = other.text_;
  DropCommonLines(own, others);
  return Shingles(Normalised(own)).Likeness(Shingles(Normalised(others))) >= kAlike;
}

QuestionRelation RelationOf(const ComparedQuestion& a, const ComparedQuestion& b) {
  if (a.all_.IsEmpty() || b.all_.IsEmpty()) return QuestionRelation::Different;
  if (a.all_.Likeness(b.all_) < kAlike) return QuestionRelation::Different;
  if (a.files_ != b.files_) return QuestionRelation::OtherFiles;
  if (a.normalised_ == b.normalised_ && a.options_ == b.options_) return QuestionRelation::Equal;
  if (a.digits_ != b.digits_) return QuestionRelation::OtherNumbers;
  if (a.ofOptions_.Likeness(b.ofOptions_) < kOptionsAlike) return QuestionRelation::OtherOptions;
  return a.HasLikeText(b) ? QuestionRelation::NearlyEqual : QuestionRelation::OtherText;
}

}  // namespace quorvantis
