// SPDX-License-Identifier: MIT
#include "import/WordReader.h"

#include "editor/WorkCopies.h"
#include "import/BitmapFile.h"
#include "import/marking/ImportMarkers.h"
#include "import/prepare/MarkedPaper.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <new>
#include <string_view>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr char16_t kBoxCharacter = u'\u2574';

/// Of all pictures together. A document of a few kilobytes can contain pictures that fill any disk.
constexpr std::uintmax_t kMostPictureBytes = std::uintmax_t{1} << 30;

template <class Visit>
void VisitTexts(WordContent& document, const Visit& visit) {
  visit(document.runningText);
  for (WordTable& table : document.tables) {
    for (auto& row : table.rows) {
      for (WordText& cell : row) visit(cell);
    }
  }
}

/// The texts that were put in for objects: where, and the size of all up to there. By place.
struct Shift {
  std::size_t place = 0;
  std::size_t size = 0;
};
using Shifts = std::vector<Shift>;

/// Where what ended at a place ends now: before the texts that were put in there.
std::size_t MovedEnd(std::size_t place, const Shifts& shifts) {
  const auto next = std::ranges::lower_bound(shifts, place, {}, &Shift::place);
  return next == shifts.begin() ? place : place + std::prev(next)->size;
}

/// Where what began at a place begins now: behind them.
std::size_t MovedBegin(std::size_t place, const Shifts& shifts) {
  const auto next = std::ranges::upper_bound(shifts, place, {}, &Shift::place);
  return next == shifts.begin() ? place : place + std::prev(next)->size;
}

void MoveEmphasis(std::vector<EmphasisRun>& runs, const Shifts& shifts) {
  for (EmphasisRun& run : runs) {
    run.begin = MovedBegin(run.begin, shifts);
    run.end = MovedEnd(run.end, shifts);
  }
}

/// Replaces each object of one kind by a text; the others move along.
template <class TextOf>
Shifts FillPlaces(WordText& text, WordObjectKind kind, const TextOf& textOf) {
  const std::u16string_view characters = text.characters;
  WordText filled;
  Shifts shifts;
  std::size_t from = 0;
  for (const WordObject& object : text.objects) {
    const std::size_t place = std::min(object.position, characters.size());
    filled.characters += characters.substr(from, place - from);
    from = place;
    if (object.kind == kind) {
      const std::u16string put(textOf(object));
      filled.characters += put;
      shifts.push_back({place, put.size() + (shifts.empty() ? 0 : shifts.back().size)});
    } else {
      filled.objects.push_back(object);
      filled.objects.back().position = filled.characters.size();
    }
  }
  filled.characters += characters.substr(from);
  filled.emphasis = std::move(text.emphasis);
  MoveEmphasis(filled.emphasis, shifts);
  text = std::move(filled);
  return shifts;
}

/// Without the care for power cuts that saving takes: these files are worth nothing without the unsaved
/// questions.
bool WriteNewFile(const fs::path& file, const std::string& bytes) {
  std::error_code ignored;
  fs::remove(file, ignored);
  std::ofstream out(file, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (out.fail()) fs::remove(file, ignored);
  return !out.fail();
}

/// The same in a whole document. An object at the place of a table follows it: the text before a table ends
/// with its line.
template <class TextOf>
void FillDocument(WordContent& document, WordObjectKind kind, const TextOf& textOf) {
  const Shifts shifts = FillPlaces(document.runningText, kind, textOf);
  for (WordTable& table : document.tables) {
    table.position = MovedEnd(table.position, shifts);
    for (auto& row : table.rows) {
      for (WordText& cell : row) FillPlaces(cell, kind, textOf);
    }
  }
}

}  // namespace

std::u16string PictureFileName(int number) {
  return FormatInteger(number).append(kPictureSuffix);
}

bool WordReader::OpenDocument(const fs::path& file, bool listLabels) {
  WordReadOutcome opened = documents_.Open(file, {listLabels, watch_.isCancelled});
  result_ = opened.result;
  document_ = std::move(opened.document);
  pictures_ = std::move(opened.pictures);
  return result_ == WordResult::Done;
}

void WordReader::ReplaceBoxCharacters() {
  if (document_.isPlainText) return;
  VisitTexts(document_, [](WordText& text) { std::ranges::replace(text.characters, kBoxCharacter, u'_'); });
}

/// A picture that cannot be read must not cost the user all questions.
std::optional<int> WordReader::SavePictures(int firstNumber) {
  const std::size_t count = document_.pictures;
  std::error_code ignored;
  std::uintmax_t bytes = 0;
  if (count > 0) MakeWorkRoot(workRoot_);
  for (std::size_t picture = 0; picture < count; ++picture) {
    const int number = firstNumber + static_cast<int>(picture);
    const fs::path file = FileOf(number);
    fs::remove(file, ignored);  // an older picture must not be taken for this one
    WordResult saved = IsCancelled() ? WordResult::Cancelled : WordResult::TooLarge;
    if (saved != WordResult::Cancelled && bytes < kMostPictureBytes) saved = SavePicture(picture, file);
    if (saved == WordResult::Cancelled) {
      for (int n = firstNumber; n <= number; ++n) fs::remove(FileOf(n), ignored);
      result_ = saved;
      return std::nullopt;
    }
    if (saved == WordResult::Done) bytes += fs::file_size(file, ignored);
    if (saved != WordResult::Done) lostPictures_.push_back({number, saved});
    if (watch_.pictureSaved) watch_.pictureSaved(picture + 1, count);
  }
  return NamePictures(firstNumber);
}

int WordReader::NamePictures(int firstNumber) {
  FillDocument(document_, WordObjectKind::Picture, [firstNumber](const WordObject& object) {
    return u" " + PictureFileName(firstNumber + static_cast<int>(object.picture)) + u" ";
  });
  return firstNumber + static_cast<int>(document_.pictures);
}

fs::path WordReader::FileOf(int picture) const {
  return workRoot_ / TextToPath(PictureFileName(picture));
}

WordResult WordReader::SavePicture(std::size_t picture, const fs::path& file) {
  std::string bitmap;
  const WordResult read = ReadClipboardBitmap(picture, bitmap);
  if (read != WordResult::Done) return read;
  return WriteNewFile(file, bitmap) ? WordResult::Done : WordResult::CannotAccess;
}

/// The current picture as a bitmap file. It comes straight from the document, not through the clipboard,
/// whose content stays.
WordResult WordReader::ReadClipboardBitmap(std::size_t picture, std::string& bitmap) {
  if (!pictures_) return WordResult::NotFound;
  try {
    PixelGrid pixels;
    const WordResult read = pictures_->Read(picture, pixels);
    if (read == WordResult::Done) bitmap = BitmapFile(pixels).Bytes();
    return read;
  } catch (const std::bad_alloc&) {
    return WordResult::TooLarge;
  }
}

std::size_t WordReader::MaskFormulas() {
  std::size_t found = 0;
  FillDocument(document_, WordObjectKind::Equation, [&found](const WordObject&) {
    ++found;
    return kFormulaText;
  });
  return found;
}

MarkedText WordReader::TableToString(const ImportSettings& rules) const {
  return MarkTables(PaperOf(document_), rules, watch_.isCancelled);
}

MarkedText WordReader::TextToString(const ImportSettings& rules) const {
  return MarkText(PaperOf(document_), rules, watch_.isCancelled);
}

void WordReader::CloseDocument() {
  document_ = {};
}

}  // namespace quorvantis
