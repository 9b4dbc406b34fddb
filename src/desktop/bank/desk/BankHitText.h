// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"

#include <string>
#include <vector>

namespace quorvantis {

/// A text with marked parts, as a list or a page of details shows it. Spans are in UTF-16 units of the text.
struct BankHitText {
  std::u16string text;
  std::vector<TextSpan> marks;
};

/// The place of a question that the query found first, on one line: without markup, about 200 units long,
/// with "…" for what was cut off. The beginning of the question if the query has no words.
BankHitText ExcerptOf(const BankHit& hit);

/// The whole question: its text, the options with their letters, and the answers that a teacher wants to see.
/// Lines end in LF. The letters of right options are marked with a tick.
BankHitText WholeTextOf(const BankHit& hit);

}  // namespace quorvantis
