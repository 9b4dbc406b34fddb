// SPDX-License-Identifier: MIT
#include "import/WordPaperReader.h"

#include "editor/WorkCopies.h"
#include "import/WordPaper.h"
#include "text/PathText.h"

#include <cstdint>
#include <utility>

namespace quorvantis {
namespace {

/// Of all pictures together. A document of a few kilobytes can hold pictures that fill any disk.
constexpr std::uintmax_t kMostPictureBytes = std::uintmax_t{1} << 30;

}  // namespace

std::filesystem::path WordPaperReader::FileOf(int picture) const {
  return workRoot_ / TextToPath(PictureFileName(picture));
}

PaperOutcome WordPaperReader::Read(const std::filesystem::path& document, const PaperReading& reading) {
  const WordReadOutcome opened = documents_.Open(document, {reading.listLabels, reading.isCancelled});
  if (opened.result != WordResult::Done) return {opened.result, std::nullopt};
  PaperContent content = PaperFromWord(opened.document->Content(), reading.firstPicture);
  const WordResult saved = SavePictures(*opened.document, reading, content);
  if (saved != WordResult::Done) return {saved, std::nullopt};
  return {WordResult::Done, std::move(content)};
}

/// A picture that cannot be read is no reason to have none of the questions. When the import is cancelled, no
/// file stays.
WordResult WordPaperReader::SavePictures(OpenWordDocument& document, const PaperReading& reading,
                                         PaperContent& content) {
  const std::size_t count = document.Content().pictures;
  std::error_code ignored;
  std::uintmax_t bytes = 0;
  if (count > 0) MakeWorkRoot(workRoot_);
  for (std::size_t picture = 0; picture < count; ++picture) {
    const int number = reading.firstPicture + static_cast<int>(picture);
    const std::filesystem::path file = FileOf(number);
    std::filesystem::remove(file, ignored);  // an older picture must not pass for this one
    const bool isCancelled = reading.isCancelled && reading.isCancelled();
    WordResult saved = isCancelled ? WordResult::Cancelled : WordResult::TooLarge;
    if (!isCancelled && bytes < kMostPictureBytes) saved = document.SavePicture(picture, file);
    if (saved == WordResult::Cancelled) {
      for (int n = reading.firstPicture; n <= number; ++n) std::filesystem::remove(FileOf(n), ignored);
      return saved;
    }
    if (saved != WordResult::Done) content.lostPictures.push_back({number, saved});
    if (saved == WordResult::Done) bytes += std::filesystem::file_size(file, ignored);
    if (reading.pictureSaved) reading.pictureSaved(picture + 1, count);
  }
  return WordResult::Done;
}

}  // namespace quorvantis
