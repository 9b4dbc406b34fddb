// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"
#include "platform/WordWriter.h"
#include "platform/programs/OfficeConverter.h"

namespace quorvantis {

/// Has LibreOffice make the documents, from a file with nothing but the paragraphs.
class OfficeWordWriter : public WordWriter {
 public:
  /// `files` outlives this.
  explicit OfficeWordWriter(Files& files, OfficePrograms programs = OfficePrograms::Find());

  WordWriteOutcome Write(const WordWriteJob& job) override;

 private:
  WordWriteOutcome Convert(const WordWriteJob& job, const std::filesystem::path& source) const;

  Files& files_;
  OfficePrograms programs_;
};

}  // namespace quorvantis
