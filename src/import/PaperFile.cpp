// SPDX-License-Identifier: MIT
#include "import/PaperFile.h"

#include "import/WordReader.h"

#include <utility>

namespace quorvantis {

PaperFile OpenPaper(WordDocuments& documents, const std::filesystem::path& file,
                    const CancelHook& isCancelled, bool listLabels) {
  constexpr int kFirstPicture = 1;
  WordReader reader(documents, {}, {isCancelled, {}});
  PaperFile opened;
  const bool isOpen = reader.OpenDocument(file, listLabels);
  opened.result = reader.Result();
  if (!isOpen) return opened;
  reader.ReplaceBoxCharacters();
  opened.pictures = static_cast<std::size_t>(reader.NamePictures(kFirstPicture) - kFirstPicture);
  opened.formulas = reader.MaskFormulas();
  opened.hasAutomaticNumbers = reader.Document().hasAutomaticNumbers;
  opened.paper = PaperOf(reader.Document());
  opened.paper.hasPictures = opened.pictures > 0;
  opened.paper.hasFormulas = opened.formulas > 0;
  return opened;
}

}  // namespace quorvantis
