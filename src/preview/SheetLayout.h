// SPDX-License-Identifier: MIT
// How sheets are put on paper (see render/sheets/).
#pragma once

#include <QPageLayout>

#include <filesystem>

namespace quorvantis {

/// Their paper and its margins.
QPageLayout SheetLayout();

/// Adds blank pages to a PDF file that was printed in this layout until there are `pages`, and then the
/// numbers of the pages, in the corner that the direction of the page leaves free. A file that is no PDF file
/// goes without. False if the file cannot be read or written.
bool NumberSheets(const std::filesystem::path& pdf, bool isRightToLeft, int pages = 0);

/// The number of pages of a PDF file; 0 if it cannot be read.
int CountSheets(const std::filesystem::path& pdf);

}  // namespace quorvantis
