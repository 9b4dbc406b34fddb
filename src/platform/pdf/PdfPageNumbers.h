// SPDX-License-Identifier: MIT
// What the browser leaves open in the PDF files that it prints.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The number of pages of a PDF file; nothing for bytes that are none.
std::optional<int> CountPdfPages(std::string_view pdf);

/// The file with empty pages like its last one at the end, so that there are `pages`. Nothing if it is no PDF
/// file or has no page.
std::optional<std::string> WithBlankPages(std::string_view pdf, int pages);

/// Where the numbers stand: at the end of the line of the foot, by the direction of the page.
enum class NumberCorner { BottomRight, BottomLeft };

/// From the edges of the paper to the numbers, in points.
struct NumberPlace {
  NumberCorner corner;
  double fromSide;
  double fromBottom;  ///< to the line on which the digits stand
};

/// The file with "2 / 7" on every page: the browser cannot number pages. Nothing for bytes that are no PDF
/// file.
std::optional<std::string> WithPageNumbers(std::string_view pdf, const NumberPlace& place);

}  // namespace quorvantis
