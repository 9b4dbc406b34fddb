// SPDX-License-Identifier: MIT
#pragma once

#include "model/QuestionKinds.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <optional>

namespace quorvantis {

/// Lengths in the window are in layout pixels, independent of the scale of the screen.
struct PixelSize {
  int width = 0;
  int height = 0;
};

/// A place in the client area of the window, from its top left corner.
struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool operator==(const PixelRect&) const = default;
};

/// The large buttons of the toolbar: New, Open, Import, Save, Save As, Score settings, Attach Files, Preview
/// and Print, in this order.
inline constexpr std::size_t kToolbarButtons = 9;

/// Back 10, previous, next, forward 10, insert, delete and attach to the question, in this order.
inline constexpr std::size_t kNavigationButtons = 7;

/// In the order of their kinds.
inline constexpr std::size_t kKindButtons = std::size(kQuestionKinds);

/// What the places of the controls depend on. Caption sizes are those of their text in the window's font.
struct LayoutInput {
  PixelSize client;
  std::array<bool, kToolbarButtons> enabled{};
  PixelSize titleLabel;
  int randomTextWidth = 0;
  PixelSize examAttachmentsLabel;
  bool examListVisible = false;
  PixelSize questionLabel;
  bool questionListVisible = false;
  PixelSize oralToggle;  ///< of the whole button
  PixelSize answerLabel;
  PixelSize essayLabel;
  QuestionKind kind = QuestionKind::Choice;
};

/// The places of the controls. A control without a place stays where it is.
struct LayoutPlaces {
  std::array<std::optional<PixelRect>, kToolbarButtons> toolbar;
  PixelRect titleLabel;
  PixelRect title;
  PixelRect random;
  std::optional<PixelRect> examAttachmentsLabel;
  std::optional<PixelRect> examAttachments;
  PixelRect questionArea;
  PixelRect questionLabel;
  PixelRect number;
  std::array<PixelRect, kKindButtons> kinds;
  std::array<PixelRect, kNavigationButtons> navigation;
  PixelRect text;
  std::optional<PixelRect> attachments;
  std::optional<PixelRect> oralToggle;
  std::array<std::optional<PixelRect>, kOptionCount> boxes;
  std::array<std::optional<PixelRect>, kOptionCount> options;
  std::optional<PixelRect> answerLabel;
  std::optional<PixelRect> answer;
  std::optional<PixelRect> listSeparator;
  std::optional<PixelRect> essayLabel;
  std::optional<PixelRect> essay;
};

/// The places of the window's controls, for a language that runs from left to right. In a window below the
/// smallest size, places may be outside it or empty.
LayoutPlaces Layout(const LayoutInput& input);

/// The place of a notice: beside the rows of buttons, where there is room in every language.
PixelRect NoticePlace(const LayoutPlaces& places);

/// The place of a control for a right-to-left language.
PixelRect Mirrored(const PixelRect& place, int clientWidth);

}  // namespace quorvantis
