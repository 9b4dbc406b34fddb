// SPDX-License-Identifier: MIT
#include "import/marking/ReplaceAllPass.h"

#include <algorithm>
#include <vector>

namespace quorvantis {

ReplaceAllPass::ReplaceAllPass(std::u16string& text, const RuleSearch& rule, std::u16string_view marker,
                               MarkingTracer* trace)
    : text_(text),
      rule_(rule),
      marker_(marker),
      trace_(trace),
      search_(text, rule),
      made_(std::vector<char>(text.size())) {}

int ReplaceAllPass::Run() {
  int count = 0;
  while (const auto match = search_.Find()) {
    WatchForEnd(*match);
    Replace(*match);
    ++count;
  }
  return count;
}

bool ReplaceAllPass::RunOnce() {
  const auto match = search_.Find();
  if (match) Replace(*match);
  return match.has_value();
}

void ReplaceAllPass::Replace(const MatchSpan& match) {
  text_.replace(match.begin, match.Size(), marker_);
  made_.Replace(match.begin, match.end, marker_.size(), 1);
  if (trace_ != nullptr) trace_->Replace(rule_.Key(), match.begin, match.Size(), marker_.size());
  search_.ChangedFrom(match.begin);
}

bool ReplaceAllPass::IsProgress(const MatchSpan& match) const {
  if (match.Size() == 0) return !IsMade(match.begin) && (match.begin == 0 || !IsMade(match.begin - 1));
  for (std::size_t index = match.begin; index < match.end; ++index) {
    if (!IsMade(index)) return true;
  }
  return false;
}

void ReplaceAllPass::WatchForEnd(const MatchSpan& match) {
  futile_ = IsProgress(match) ? 0 : futile_ + 1;
  if (futile_ > kMostFutile || (futile_ > 0 && ComesUpAgain(match)))
    rule_.Fail(ImportFailure::Reason::Endless);
}

/// Whether everything that mattered for a match will be there again once the marker is in place: then the
/// next search finds the same match, and so do all later ones. Each replacement moves what follows to the
/// right by the same distance, so text that did not change the first time never will.
bool ReplaceAllPass::ComesUpAgain(const MatchSpan& match) const {
  if (match.Size() > marker_.size()) return false;
  const bool grows = match.Size() < marker_.size();
  if (grows && search_.Seen() >= text_.size()) return false;
  const std::u16string_view text = text_;
  const std::u16string_view seen = text.substr(match.begin, search_.Seen() + 1 - match.begin);
  std::u16string next(marker_);
  next += text.substr(match.end, seen.size());
  return next.starts_with(seen);
}

int RemoveTitles(std::u16string& text, const RuleSearch& rule, MarkingTracer* trace) {
  // Deliberate: ten characters go with every title. Near the start of the text, where there are fewer before
  // it, the rest goes after it. Rules are written with that in mind.
  constexpr std::size_t kBefore = 10;
  RepeatedSearch search(text, rule);
  int count = 0;
  while (const auto match = search.Find()) {
    if (text.empty()) rule.Fail(ImportFailure::Reason::Endless);  // every other removal shortens the text
    const std::size_t begin = match->begin - std::min(match->begin, kBefore);
    const std::size_t removed = std::min(match->Size() + kBefore, text.size() - begin);
    text.erase(begin, removed);
    if (trace != nullptr) trace->Replace(rule.Key(), begin, removed, 0);
    search.ChangedFrom(begin);
    ++count;
  }
  return count;
}

}  // namespace quorvantis
