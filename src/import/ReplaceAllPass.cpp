// SPDX-License-Identifier: MIT
#include "import/ReplaceAllPass.h"

#include <algorithm>

namespace quorvantis {
namespace {

auto At(std::vector<char>& flags, std::size_t index) {
  return flags.begin() + static_cast<std::ptrdiff_t>(index);
}

/// A match that begins between CR and LF: what stands before it becomes a line break of its own.
bool SplitsLineBreak(std::u16string_view text, std::size_t place) {
  return place > 0 && place < text.size() && text[place - 1] == u'\r' && text[place] == u'\n';
}

}  // namespace

ReplaceAllPass::ReplaceAllPass(std::u16string& text, const RuleSearch& rule, std::u16string_view marker)
    : text_(text),
      rule_(rule),
      marker_(marker),
      barrier_(rule.Pattern().IsBarrier(marker.front())),
      made_(text.size(), 0) {}

int ReplaceAllPass::Run() {
  int count = 0;
  std::size_t start = 0;
  while (const auto match = rule_.Find(text_, start)) {
    const MatchSpan span(*match);
    WatchForEnd(span);
    start = NextStart(span);
    Replace(span);
    ++count;
  }
  return count;
}

bool ReplaceAllPass::RunOnce() {
  const auto match = rule_.Find(text_);
  if (match) Replace(MatchSpan(*match));
  return match.has_value();
}

/// The next search may begin where the last match began if none can come up before it; IsBarrier proves when.
/// Its proof needs the line starts at and before that place to be what they were.
std::size_t ReplaceAllPass::NextStart(const MatchSpan& match) const {
  return barrier_ && !SplitsLineBreak(text_, match.begin) ? match.begin : 0;
}

void ReplaceAllPass::Replace(const MatchSpan& match) {
  text_.replace(match.begin, match.Size(), marker_);
  made_.erase(At(made_, match.begin), At(made_, match.end));
  made_.insert(At(made_, match.begin), marker_.size(), 1);
}

bool ReplaceAllPass::IsProgress(const MatchSpan& match) const {
  const auto isMade = [this](std::size_t index) { return index < made_.size() && made_[index] != 0; };
  if (match.Size() == 0) return !isMade(match.begin) && (match.begin == 0 || !isMade(match.begin - 1));
  for (std::size_t index = match.begin; index < match.end; ++index) {
    if (!isMade(index)) return true;
  }
  return false;
}

/// The next search depends on the text alone, so a text that stays the same stays so for ever. And what a
/// rule matches anywhere, it finds in every marker that has it.
void ReplaceAllPass::WatchForEnd(const MatchSpan& match) {
  const std::u16string_view matched = std::u16string_view(text_).substr(match.begin, match.Size());
  const bool unchanged = matched == marker_;
  const bool inEveryMarker = rule_.Pattern().MatchesAnywhere() && marker_.starts_with(matched);
  futile_ = IsProgress(match) ? 0 : futile_ + 1;
  if (unchanged || inEveryMarker || futile_ > kMostFutile) rule_.Fail(ImportFailure::Reason::Endless);
}

int RemoveTitles(std::u16string& text, const RuleSearch& rule) {
  // Deliberate: the ten characters go with every title, and near the start of the text, where there are fewer
  // before it, as many more go behind it. Rules are written with that in mind.
  constexpr std::size_t kBefore = 10;
  int count = 0;
  while (const auto match = rule.Find(text)) {
    if (text.empty()) rule.Fail(ImportFailure::Reason::Endless);  // every other removal makes it shorter
    const MatchSpan span(*match);
    text.erase(span.begin - std::min(span.begin, kBefore), span.Size() + kBefore);
    ++count;
  }
  return count;
}

}  // namespace quorvantis
