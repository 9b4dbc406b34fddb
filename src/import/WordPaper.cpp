// SPDX-License-Identifier: MIT
#include "import/WordPaper.h"

#include "import/ImportMarkers.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr char16_t kBoxCharacter = u'\u2574';

/// Puts texts in the places of pictures and formulas.
class Filling {
 public:
  Filling(int firstPicture, PaperContent& content) : firstPicture_(firstPicture), content_(content) {}

  std::u16string Fill(const WordText& text) {
    std::u16string filled;
    std::size_t from = 0;
    for (const WordObject& object : text.objects) {
      const std::size_t place = std::min(object.position, text.characters.size());
      filled += text.characters.substr(from, place - from);
      filled += TextOf(object);
      from = place;
    }
    filled += text.characters.substr(from);
    std::ranges::replace(filled, kBoxCharacter, u'_');
    return filled;
  }

 private:
  std::u16string TextOf(const WordObject& object) {
    if (object.kind == WordObjectKind::Equation) {
      ++content_.formulas;
      return std::u16string(kFormulaText);
    }
    return u" " + PictureFileName(firstPicture_ + static_cast<int>(object.picture)) + u" ";
  }

  const int firstPicture_;
  PaperContent& content_;
};

}  // namespace

std::u16string PictureFileName(int number) {
  return FormatInteger(number).append(kPictureSuffix);
}

PaperContent PaperFromWord(const WordDocument& document, int firstPicture) {
  PaperContent content;
  Filling filling(firstPicture, content);
  content.text = filling.Fill(document.runningText);
  for (const WordTable& wordTable : document.tables) {
    PaperTable& table = content.tables.emplace_back();
    for (const auto& wordRow : wordTable.rows) {
      auto& row = table.rows.emplace_back();
      for (const WordText& cell : wordRow) row.push_back(filling.Fill(cell));
    }
  }
  content.nextPicture = firstPicture + static_cast<int>(document.pictures);
  return content;
}

}  // namespace quorvantis
