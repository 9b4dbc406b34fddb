// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/TextOrigins.h"
#include "text/TextSpan.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A text of a paper on its way to the marking: its characters, how each is emphasised, and where it came
/// from. The three always have the same size.
struct PaperText {
  std::u16string characters;
  std::vector<std::uint8_t> emphasis;  ///< sums of `emphasis` values (platform/WordContent.h)
  TextOrigins origins;                 ///< places in Paper::source; kInserted for what a step put in

  std::size_t Size() const { return characters.size(); }

  /// A part of it, which keeps its emphasis and origins.
  PaperText Part(TextSpan span) const;

  void Append(const PaperText& text);
  /// Appends what no paper held.
  void AppendInserted(std::u16string_view text);
};

/// Text that a step puts in.
PaperText InsertedText(std::u16string_view text);

/// A part of a text that gives way to another text.
struct PaperEdit {
  TextSpan span;
  PaperText with{};
};

/// Makes all edits at once. Their spans refer to the text as it is before; of two that overlap, the later one
/// in the text is left out. Several at one place are made in their order.
void ApplyEdits(PaperText& text, std::vector<PaperEdit> edits);

}  // namespace quorvantis
