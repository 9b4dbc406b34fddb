// SPDX-License-Identifier: MIT
// The pages of PDF files as images, drawn by poppler.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// The arguments of pdftoppm to draw the pages of `pdf` into `folder`, at this many pixels per inch.
/// `mostPages`, if given, is the last page to draw.
std::vector<std::string> PageImageArguments(const std::filesystem::path& pdf,
                                            const std::filesystem::path& folder, int dotsPerInch,
                                            std::optional<int> mostPages = {});

/// The pages that it has drawn into `folder`, in order: it pads the numbers in the names to the same width.
std::vector<std::filesystem::path> DrawnPages(const std::filesystem::path& folder);

}  // namespace quorvantis
