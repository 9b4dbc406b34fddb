// SPDX-License-Identifier: MIT
#pragma once

#include "import/WordPaperReader.h"
#include "shell/TextPaperReader.h"

namespace quorvantis {

struct ExamServices;

/// Reads papers of every kind: files named ".txt" as text, all others as word processors' documents, whose
/// content tells which.
class DocumentPaperReader : public PaperReader {
 public:
  /// Both must outlive the reader. Pictures get their files in the work folder of the application folder.
  DocumentPaperReader(const ExamServices& services, WordReader& documents);

  PaperOutcome Read(const std::filesystem::path& document, const PaperReading& reading) override;

 private:
  TextPaperReader text_;
  WordPaperReader word_;
};

}  // namespace quorvantis
