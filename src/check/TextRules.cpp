// SPDX-License-Identifier: MIT
#include "check/TextRules.h"

#include "check/WordScripts.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// A part of a text that fits into a line.
std::u16string Quoted(std::u16string_view text, const TextSpan& span) {
  constexpr std::size_t kLongest = 40;
  std::u16string quoted(span.Of(text).substr(0, kLongest));
  if (IsHighSurrogate(quoted.back())) quoted.pop_back();
  std::replace_if(
      quoted.begin(), quoted.end(), [](char16_t unit) { return unit < u' '; }, u' ');
  if (span.Size() > kLongest) quoted += u'\u2026';
  return quoted;
}

std::size_t FindLostCharacter(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPair = IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    if (text[i] == kReplacementCharacter || (!isPair && IsHighSurrogate(text[i])) || IsLowSurrogate(text[i]))
      return i;
    if (isPair) ++i;
  }
  return text.npos;
}

/// The text around a place, without what is lost.
std::u16string Around(std::u16string_view text, std::size_t place) {
  constexpr std::size_t kAround = 12;
  const std::size_t begin = place - std::min(place, kAround);
  const std::size_t end = std::min(text.size(), place + kAround + 1);
  return Quoted(ReplaceLoneSurrogates(text.substr(begin, end - begin)), {0, end - begin});
}

}  // namespace

void UnbalancedMarkup::CheckText(const CheckedText& text, FindingList& findings) const {
  const std::vector<TextSpan>& unmatched = text.markup.unmatched;
  if (!unmatched.empty()) findings.AddIn(text.place, {Quoted(text.text, unmatched.front())});
}

void TakenForMarkup::CheckText(const CheckedText& text, FindingList& findings) const {
  const std::vector<TextSpan>& hidden = text.markup.hidden;
  if (!hidden.empty()) findings.AddIn(text.place, {Quoted(text.text, hidden.front())});
}

void PageMarkup::CheckText(const CheckedText& text, FindingList& findings) const {
  const std::vector<TextSpan>& changing = text.markup.changingPage;
  if (!changing.empty()) findings.AddIn(text.place, {Quoted(text.text, changing.front())});
}

void SwallowingMarkup::CheckText(const CheckedText& text, FindingList& findings) const {
  const std::optional<TextSpan>& swallowing = text.markup.swallowing;
  if (swallowing) findings.AddIn(text.place, {Quoted(text.text, *swallowing)});
}

void LostCharacter::CheckText(const CheckedText& text, FindingList& findings) const {
  const std::size_t lost = text.isAscii ? text.text.npos : FindLostCharacter(text.text);
  if (lost < text.text.size()) findings.AddIn(text.place, {Around(text.text, lost)});
}

void MixedScripts::CheckText(const CheckedText& text, FindingList& findings) const {
  if (text.isAscii) return;
  const auto word = FindMixedWord(text.text);
  if (word) findings.AddIn(text.place, {Quoted(text.text, *word)});
}

}  // namespace quorvantis
