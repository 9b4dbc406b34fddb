// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PdfText.h"

namespace quorvantis {

/// Reads the text of PDF files with pdftotext of poppler.
class PopplerPdfText : public PdfText {
 public:
  PdfPages Read(const std::filesystem::path& pdf) override;
};

}  // namespace quorvantis
