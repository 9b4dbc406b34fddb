// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/Paper.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quorvantis {

/// A paper as text for a window: one kind of line ends (LF), bars between the cells of tables, small signs
/// for pictures and formulas, nothing that a window could not show, and no line that would take it long to
/// lay out. Places are led from the paper to this text and back.
class ShownPaper {
 public:
  /// Papers beyond this many UTF-16 units are shown by their beginning.
  static constexpr std::size_t kMostShown = 5'000'000;
  /// Longer lines are broken, in UTF-16 units.
  static constexpr std::size_t kLongestLine = 2'000;

  ShownPaper() = default;
  /// `hasFormulas`: whether "##" in the paper stands for formulas.
  ShownPaper(const Paper& paper, bool hasFormulas);

  const std::u16string& Text() const { return text_; }
  bool IsWhole() const { return isWhole_; }

  /// The place in the text that shows a place of the paper.
  std::size_t ToShown(std::size_t source) const;
  /// The place of the paper that is shown at a place of the text.
  std::size_t ToSource(std::size_t shown) const;

 private:
  friend class ShownPaperMaking;
  /// From here on text and paper run alike, up to the next one.
  struct Shift {
    std::size_t source;
    std::size_t shown;
  };

  std::u16string text_;
  std::vector<Shift> shifts_{{0, 0}};
  bool isWhole_ = true;
};

}  // namespace quorvantis
