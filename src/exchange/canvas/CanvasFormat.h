// SPDX-License-Identifier: MIT
// QTI 1.2 as Canvas writes and reads it: one assessment with all items, and files in a folder of their own.
// Plain QTI 1.2 is read, too.
#pragma once

#include "exchange/form/Format.h"

#include <string_view>

namespace quorvantis {

/// What stands for the folder of the files in addresses, and its name in the package.
inline constexpr std::string_view kCanvasFileBase = "$IMS-CC-FILEBASE$/";
inline constexpr std::string_view kCanvasFiles = "web_resources/";

bool LooksLikeCanvas(const ExchangeSource& source);

class CanvasReader : public FormatReader {
 public:
  std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) override;
};

class CanvasWriter : public FormatWriter {
 public:
  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;
};

}  // namespace quorvantis
