// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/TextMarking.h"
#include "platform/WordDocuments.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// A picture without a file, and the reason.
struct LostPicture {
  int number = 0;
  WordResult reason = WordResult::Damaged;
};

/// The file of a picture: "5.bmp".
std::u16string PictureFileName(int number);

/// Reads one paper for an import, in the steps in which one would drive a word processor: open, turn into
/// plain text step by step, mark, close. The steps are called in the order of their declarations. They change
/// what has been read, never the file, so any document reader will do.
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

  /// False when there is nothing to read; Result says why. With `listLabels`, automatic numbers are part of
  /// the text.
  bool OpenDocument(const std::filesystem::path& file, bool listLabels);

  /// `Done`, or why the last failed step failed.
  WordResult Result() const { return result_; }

  /// Word processors mark a blank with a line of U+2574, exams with "_". Text files stay as they are.
  void ReplaceBoxCharacters();

  /// Writes the document's pictures to bitmap files, numbered from `firstNumber` in the order of the
  /// document, and puts " <number>.bmp " in their places. Returns the number after the last one; nothing, and
  /// leaves no file, if the user cancelled.
  std::optional<int> SavePictures(int firstNumber);

  /// Puts these names into the text without writing any file. Returns the number after the last one.
  int NamePictures(int firstNumber);

  /// The pictures that could not be read or written. Their names are in the text all the same.
  const std::vector<LostPicture>& LostPictures() const { return lostPictures_; }

  /// Replaces each equation by "##". Returns their number, including those in tables.
  std::size_t MaskFormulas();

  /// The document as the steps have left it so far.
  const WordContent& Document() const { return document_; }

  /// The marked text of the tables, or of the text without them as the rules' steps prepare it.
  MarkedText TableToString(const ImportSettings& rules) const;
  MarkedText TextToString(const ImportSettings& rules) const;

  /// Discards what was read.
  void CloseDocument();

  /// Removes everything the word processor made for reading. No program keeps running between the steps.
  void QuitWordProcessor() { pictures_.reset(); }

 private:
  std::filesystem::path FileOf(int picture) const;
  WordResult SavePicture(std::size_t picture, const std::filesystem::path& file);
  WordResult ReadClipboardBitmap(std::size_t picture, std::string& bitmap);
  bool IsCancelled() const { return watch_.isCancelled && watch_.isCancelled(); }

  WordDocuments& documents_;
  std::filesystem::path workRoot_;
  Watch watch_;
  WordContent document_;
  std::unique_ptr<WordPictures> pictures_;
  std::vector<LostPicture> lostPictures_;
  WordResult result_ = WordResult::Done;
};

}  // namespace quorvantis
