// SPDX-License-Identifier: MIT
#include "import/keys/KeyLeftovers.h"

#include "import/labels/LineText.h"

#include <algorithm>
#include <set>
#include <utility>

namespace quorvantis {
namespace {

using Kind = KeyLeftover::Kind;

/// Joins pieces of one kind between which nothing stands.
std::vector<KeyLeftover> Joined(std::u16string_view text, const std::vector<KeyLeftover>& pieces) {
  std::vector<KeyLeftover> joined;
  for (const KeyLeftover& piece : pieces) {
    const bool goesOn = !joined.empty() && joined.back().kind == piece.kind &&
                        piece.kind != Kind::Miscounted && joined.back().span.end <= piece.span.begin &&
                        Trimmed(text, {joined.back().span.end, piece.span.begin}).IsEmpty();
    if (goesOn) {
      joined.back().span.end = piece.span.end;
    } else {
      joined.push_back(piece);
    }
  }
  return joined;
}

}  // namespace

std::vector<KeyLeftover> LeftoversOf(std::u16string_view text, const KeyList& key,
                                     const std::vector<MatchedEntry>& matched) {
  std::set<std::pair<std::size_t, int>> placed;
  for (const MatchedEntry& entry : matched) placed.emplace(entry.entry.begin, entry.entry.number);
  std::vector<KeyLeftover> pieces;
  std::size_t miscounted = text.size();  // the place of the range that was told last
  for (const KeyEntry& entry : key.entries) {
    const TextSpan whole{std::min(entry.begin, entry.answer.begin), entry.answer.end};
    if (entry.IsMiscounted() && entry.answer.begin != miscounted) {
      miscounted = entry.answer.begin;
      pieces.push_back({Kind::Miscounted, whole, KeyLetterCount(entry.answer.Of(text)), entry.asked});
    } else if (!entry.IsMiscounted() && !placed.contains({entry.begin, entry.number})) {
      pieces.push_back({Kind::NotPlaced, whole});
    }
  }
  for (const TextSpan& line : key.unread) pieces.push_back({Kind::NotPlaced, line});
  for (const TextSpan& line : key.explanations) pieces.push_back({Kind::Explanation, line});
  std::ranges::stable_sort(pieces, {}, [](const KeyLeftover& piece) { return piece.span.begin; });
  return Joined(text, pieces);
}

}  // namespace quorvantis
