// SPDX-License-Identifier: MIT
#pragma once

#include "import/WordReader.h"
#include "import/marking/ImportSettings.h"
#include "import/marking/QuestionTextParser.h"
#include "import/marking/TextMarking.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// What was read of a document: in the text, pictures are " <number>.bmp " and formulas "##".
struct PaperContent {
  std::u16string text;  ///< without the tables
  int firstPicture = 0;
  int nextPicture = 0;  ///< the number after that of the last picture
  std::size_t formulas = 0;
  std::vector<LostPicture> lostPictures;
  bool hasNumbersLeftOut = false;  ///< automatic numbers that are not part of the text
  std::size_t tableUnits = 0;      ///< size of the text in tables, without blanks
};

/// What happened in an import, for the user and for whoever examines it.
struct ImportReport {
  bool imported = false;  ///< the exam was changed; false if the user gave up
  std::filesystem::path document;
  ImportSettings rules;
  std::optional<PaperContent> content;  ///< nothing when the document could not be read
  MarkedText marked;
  ReadPaper paper;
  int firstSlot = 1;
  int nextSlot = 1;                 ///< the one after the last slot written
  int removed = 0;                  ///< questions removed again because of pictures or formulas
  std::vector<int> replaced;        ///< numbers of earlier questions that are gone
  std::vector<int> filesStayed;     ///< imported questions with attached files of earlier ones
  int loneLineEnds = 0;             ///< questions with line ends after which pages drop a character
  std::vector<int> optionPictures;  ///< imported questions with names of pictures in their options
  std::size_t formulasKept = 0;     ///< places of formulas in the imported questions
  /// The question whose pictures were not checked, because an import that begins with question 1 never checks
  /// its first one; 0 for none.
  int questionAsItIs = 0;
};

/// The report as lines for the user, in the language of `strings`: the first says what was read, the others
/// what was not, or may surprise.
std::vector<std::u16string> ImportSummary(const ImportReport& report, const StringTable& strings);

}  // namespace quorvantis
