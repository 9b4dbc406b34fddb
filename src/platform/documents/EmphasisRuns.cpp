// SPDX-License-Identifier: MIT
#include "platform/documents/EmphasisRuns.h"

#include <iterator>

namespace quorvantis {

void AppendEmphasis(std::vector<EmphasisRun>& runs, std::size_t begin, std::size_t end, std::uint8_t kinds) {
  if (kinds == 0 || begin == end) return;
  const bool goesOn = !runs.empty() && runs.back().end == begin && runs.back().kinds == kinds;
  if (goesOn)
    runs.back().end = end;
  else
    runs.push_back({begin, end, kinds});
}

void InsertEmphasis(std::vector<EmphasisRun>& runs, std::size_t place, std::size_t size, std::uint8_t kinds) {
  auto after = runs.end();
  while (after != runs.begin() && std::prev(after)->begin >= place) {
    --after;
    after->begin += size;
    after->end += size;
  }
  if (kinds != 0 && size > 0) runs.insert(after, {place, place + size, kinds});
}

}  // namespace quorvantis
