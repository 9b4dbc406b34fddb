// SPDX-License-Identifier: MIT
#include "import/WordPaperReader.h"

#include "editor/WorkCopies.h"
#include "import/WordPaper.h"
#include "text/PathText.h"

#include <utility>

namespace quorvantis {

PaperOutcome WordPaperReader::Read(const std::filesystem::path& document, const PaperReading& reading) {
  const WordReadOutcome opened = documents_.Open(document, {reading.listLabels, reading.isCancelled});
  if (opened.result != WordResult::Done) return {opened.result, std::nullopt};
  PaperContent content = PaperFromWord(opened.document->Content(), reading.firstPicture);
  const WordResult saved = SavePictures(*opened.document, reading, content);
  if (saved != WordResult::Done) return {saved, std::nullopt};
  return {WordResult::Done, std::move(content)};
}

/// A picture that cannot be read is no reason to have none of the questions.
WordResult WordPaperReader::SavePictures(OpenWordDocument& document, const PaperReading& reading,
                                         PaperContent& content) {
  const std::size_t count = document.Content().pictures;
  std::error_code ignored;
  if (count > 0) MakeWorkRoot(workRoot_);
  for (std::size_t picture = 0; picture < count; ++picture) {
    if (reading.isCancelled && reading.isCancelled()) return WordResult::Cancelled;
    const int number = reading.firstPicture + static_cast<int>(picture);
    const std::filesystem::path file = workRoot_ / TextToPath(PictureFileName(number));
    std::filesystem::remove(file, ignored);  // an older picture must not pass for this one
    const WordResult saved = document.SavePicture(picture, file);
    if (saved == WordResult::Cancelled) return saved;
    if (saved != WordResult::Done) content.lostPictures.push_back(number);
    if (reading.pictureSaved) reading.pictureSaved(picture + 1, count);
  }
  return WordResult::Done;
}

}  // namespace quorvantis
