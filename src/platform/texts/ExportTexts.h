// SPDX-License-Identifier: MIT
// Of export as a document or PDF: file filters, and what came of it.
#pragma once

namespace quorvantis::text_id {

constexpr int kExportTimedOut = 1060;
constexpr int kExportCancelled = 1061;
constexpr int kCannotWrite = 1062;  // "%1 cannot be written: %2", with what the system says

constexpr int kCannotExport = 1002;

constexpr int kDocumentFilter = 1440;
constexpr int kPdfFilter = 1441;
constexpr int kPdfWritten = 1442;  // "%1 has been written."
constexpr int kPdfNotMade = 1443;  // "%1 was not written …"

}  // namespace quorvantis::text_id
