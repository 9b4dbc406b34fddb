// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordReader.h"
#include "platform/office/OfficeConverter.h"

#include <utility>

namespace quorvantis {

/// Reads ".docx" itself; has LibreOffice make one of ".doc", ".odt" and ".rtf" first. What a file is tells
/// its content, not its name.
class OfficeWordReader : public WordReader {
 public:
  explicit OfficeWordReader(OfficePrograms programs = OfficePrograms::Find())
      : programs_(std::move(programs)) {}

  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override;

 private:
  OfficePrograms programs_;
};

}  // namespace quorvantis
