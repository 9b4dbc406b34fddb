// SPDX-License-Identifier: MIT
#pragma once

#include "import/PaperReader.h"
#include "platform/WordReader.h"

namespace quorvantis {

/// Reads papers that are word processors' documents. Their pictures become bitmap files.
class WordPaperReader : public PaperReader {
 public:
  /// `documents` must outlive the reader. Pictures get their files in `workRoot` (editor/WorkCopies.h), named
  /// by PictureFileName; files of these names are replaced.
  WordPaperReader(WordReader& documents, std::filesystem::path workRoot)
      : documents_(documents), workRoot_(std::move(workRoot)) {}

  PaperOutcome Read(const std::filesystem::path& document, const PaperReading& reading) override;

 private:
  std::filesystem::path FileOf(int picture) const;
  WordResult SavePictures(OpenWordDocument& document, const PaperReading& reading, PaperContent& content);

  WordReader& documents_;
  std::filesystem::path workRoot_;
};

}  // namespace quorvantis
