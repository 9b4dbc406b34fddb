// SPDX-License-Identifier: MIT
// A format of questions is a reader, a writer, or both, and a row in exchange/Formats.cpp.
#pragma once

#include "exchange/form/ExchangeFiles.h"
#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangeSource.h"
#include "exchange/form/ExchangedExam.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"

#include <optional>
#include <string>

namespace quorvantis {

/// What a reader works with. Everything outlives the reading.
struct ReadingTools {
  const StringTable& strings;  ///< for words that go into questions, such as "True"
  ExchangeFiles& files;
  ExchangeNotes& notes;
  Progress& progress;
};

/// Reads exams of one format. A file is a stranger's: it may hold anything.
class FormatReader {
 public:
  virtual ~FormatReader() = default;

  /// Nothing if the file cannot be read, which is told. Polls for cancellation; the questions read by then
  /// are returned.
  virtual std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) = 0;
};

/// Writes exams of one format.
class FormatWriter {
 public:
  virtual ~FormatWriter() = default;

  /// The bytes of a file with the exam, which has only what the format's row says that it holds. Once it is
  /// cancelled, what it returns is worth nothing.
  virtual std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) = 0;
};

}  // namespace quorvantis
