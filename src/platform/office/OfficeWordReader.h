// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"
#include "platform/WordReader.h"
#include "platform/office/OfficeConverter.h"

namespace quorvantis {

/// Reads ".docx" itself; has LibreOffice make one of ".doc", ".odt" and ".rtf" first. What a file is tells
/// its content, not its name.
class OfficeWordReader : public WordReader {
 public:
  /// `files` outlives this and the documents that it opens.
  explicit OfficeWordReader(Files& files, OfficePrograms programs = OfficePrograms::Find());

  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override;

 private:
  Files& files_;
  OfficePrograms programs_;
};

}  // namespace quorvantis
