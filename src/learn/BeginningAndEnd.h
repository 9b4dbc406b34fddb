// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperLearner.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quorvantis {

/// A paper that is too long to be tried again and again is judged by its beginning, and by its end, where the
/// answers may be. A shorter one is looked at as it is. Where answers at the end are long themselves, it is
/// their beginning that is looked at: it belongs to the first questions.
class BeginningAndEnd {
 public:
  /// Both must outlive this.
  BeginningAndEnd(const Paper& paper, const std::vector<PaperMark>& marks);

  bool IsCut() const { return !kept_.empty(); }
  const Paper& LookedAt() const { return IsCut() ? short_ : paper_; }

  /// The marks in what is looked at, at their places there.
  const std::vector<PaperMark>& Marks() const { return marks_; }

  /// Indices of marks of the whole paper, from those of Marks.
  std::vector<std::size_t> OriginalIndices(const std::vector<std::size_t>& indices) const;

 private:
  void Cut();
  std::optional<TextSpan> MovedTogether(TextSpan span) const;
  std::optional<TableInPaper> MovedTogether(const TableInPaper& table) const;

  const Paper& paper_;
  std::vector<TextSpan> kept_;  ///< the parts that are looked at; empty for all of it
  Paper short_;
  std::vector<PaperMark> marks_;
  std::vector<std::size_t> indices_;  ///< of each of these in the whole paper
};

}  // namespace quorvantis
