// SPDX-License-Identifier: MIT
#pragma once

#include "import/PaperReader.h"
#include "platform/WordDocument.h"

#include <string>

namespace quorvantis {

/// The file of a picture: "5.bmp".
std::u16string PictureFileName(int number);

/// A document as import wants it. Pictures are replaced by their names between blanks, formulas by "##", and
/// the line of U+2574 that marks an empty place by "_".
PaperContent PaperFromWord(const WordDocument& document, int firstPicture);

}  // namespace quorvantis
