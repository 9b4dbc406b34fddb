// SPDX-License-Identifier: MIT
// An exam on its way into a file of a learning system, in two steps: what the format makes of it, and the
// file.
#pragma once

#include "exchange/Formats.h"
#include "platform/Files.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace quorvantis {

class FrameSetExam;

/// What a format makes of an exam.
struct ForeseenExport {
  ExchangedExam held;                ///< what the file will hold
  std::vector<ExchangeNote> losses;  ///< and what it cannot
};

ForeseenExport ForeseeExport(const FrameSetExam& exam, const FormatRow& format);

/// What a file is written with. Everything outlives the writing.
struct WritingTools {
  const StringTable& strings;
  Files& files;
  Progress& progress;
};

/// Writes a file in `format`, which has a writer. `target` is replaced only once the new file is complete.
/// The error is operation_canceled if the user has cancelled.
std::error_code WriteQuestionFile(const ExchangedExam& held, const FormatRow& format,
                                  const std::filesystem::path& target, const WritingTools& tools);

}  // namespace quorvantis
