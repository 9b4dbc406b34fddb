// SPDX-License-Identifier: MIT
#pragma once

#include "import/TextMarking.h"
#include "platform/WordDocuments.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// A picture that has no file, and why.
struct LostPicture {
  int number = 0;
  WordResult reason = WordResult::Damaged;
};

/// The file of a picture: "5.bmp".
std::u16string PictureFileName(int number);

/// Reads one paper for an import as a word processor would be driven: opened, made plain text step by step,
/// marked, closed. The steps are called in the order in which they stand here. They change what has been
/// read, never the file, so that any document reader can stand behind them.
class WordReader {
 public:
  struct Watch {
    CancelHook isCancelled;                                                 ///< may be empty
    std::function<void(std::size_t done, std::size_t total)> pictureSaved;  ///< may be empty
  };

  /// `documents` must outlive the reader. Pictures get their files in `workRoot` (editor/WorkCopies.h), named
  /// by PictureFileName; files of these names are replaced.
  WordReader(WordDocuments& documents, std::filesystem::path workRoot, Watch watch)
      : documents_(documents), workRoot_(std::move(workRoot)), watch_(std::move(watch)) {}

  /// False when there is nothing to read; Result tells why. With `listLabels`, automatic numbers are part of
  /// the text.
  bool OpenDocument(const std::filesystem::path& file, bool listLabels);

  /// `Done`, or why the last step that failed did.
  WordResult Result() const { return result_; }

  /// Word processors mark an empty place with a line of U+2574, exams with "_". A text file means what it
  /// says.
  void ReplaceBoxCharacters();

  /// Writes the document's pictures to bitmap files, numbered from `firstNumber` on in the order of the
  /// document, and puts " <number>.bmp " in their places. The number after the last one; nothing, and no
  /// file, when the user cancelled it.
  std::optional<int> SavePictures(int firstNumber);

  /// Those of them that could not be read or written. Their names stand in the text all the same.
  const std::vector<LostPicture>& LostPictures() const { return lostPictures_; }

  /// Puts "##" in the place of each equation. How many there are, those in tables included.
  std::size_t MaskFormulas();

  /// What has become of the document so far.
  const WordDocument& Document() const { return document_; }

  /// The marked text of the tables, or of the text without them.
  MarkedText TableToString(const ImportSettings& rules) const;
  MarkedText TextToString(const ImportSettings& rules) const;

  /// Lets go of what was read.
  void CloseDocument();

  /// Lets go of all that the word processor made for the reading. No program runs on between the steps.
  void QuitWordProcessor() { pictures_.reset(); }

 private:
  std::filesystem::path FileOf(int picture) const;
  WordResult SavePicture(std::size_t picture, const std::filesystem::path& file);
  WordResult ReadClipboardBitmap(std::size_t picture, std::string& bitmap);
  bool IsCancelled() const { return watch_.isCancelled && watch_.isCancelled(); }

  WordDocuments& documents_;
  std::filesystem::path workRoot_;
  Watch watch_;
  WordDocument document_;
  std::unique_ptr<WordPictures> pictures_;
  std::vector<LostPicture> lostPictures_;
  WordResult result_ = WordResult::Done;
};

}  // namespace quorvantis
