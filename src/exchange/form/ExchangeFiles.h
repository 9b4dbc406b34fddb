// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/AttachmentName.h"
#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Keeps the files that a reader finds inside another file. They go into one folder, under names that cannot
/// leave it, and stay until the owner of the folder removes them.
class ExchangeFiles {
 public:
  /// The folder must exist by the time a file is kept.
  ExchangeFiles(std::filesystem::path folder, ExchangeNotes& notes)
      : names_(std::move(folder)), notes_(notes) {}

  /// Writes `bytes` to a new file that users see as `name`. Nothing if it cannot be kept, which is told.
  std::optional<ExchangedFile> Keep(std::u16string_view name, std::string_view bytes);

 private:
  FreeNames names_;
  ExchangeNotes& notes_;
  std::size_t total_ = 0;
};

/// The bytes of a file of an exam; empty if it has none.
std::string BytesOf(const ExchangedFile& file);

}  // namespace quorvantis
