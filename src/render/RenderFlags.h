// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What a page shows of a question.
struct RenderFlags {
  bool question;     ///< text, options, the input for the answer
  bool marks;        ///< O or X beside the number; then there is no input
  bool key;          ///< the correct answer
  bool response;     ///< the student's answer
  bool attachments;  ///< most settings show them even without it; see QuestionRow

  bool operator==(const RenderFlags&) const = default;
};

inline constexpr RenderFlags kPreviewPage{true, false, true, false, true};
inline constexpr RenderFlags kResultPage{true, true, true, true, false};
inline constexpr RenderFlags kPrintPage{true, false, false, false, false};

// Pages of other hosts: not written here, but their rows follow the same rules.
inline constexpr RenderFlags kKeyPage{true, false, true, false, false};
inline constexpr RenderFlags kResponsePage{false, true, false, true, false};

}  // namespace quorvantis
