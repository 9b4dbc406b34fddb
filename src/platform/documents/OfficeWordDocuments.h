// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"
#include "platform/programs/OfficeConverter.h"

#include <utility>

namespace quorvantis {

/// Reads ".docx" itself; has LibreOffice make one of ".doc", ".odt", ".rtf" and Word 2003 XML first. A file's
/// content decides its type, not its name.
class OfficeWordDocuments : public WordDocuments {
 public:
  explicit OfficeWordDocuments(OfficePrograms programs = OfficePrograms::Find())
      : programs_(std::move(programs)) {}

  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override;

 private:
  OfficePrograms programs_;
};

}  // namespace quorvantis
