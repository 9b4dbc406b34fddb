// SPDX-License-Identifier: MIT
// Parts of papers, and the parts of a key that are for them: "Part B", "二、判断题", "Section II: essays".
#pragma once

#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What the title of a part says of it.
struct PartName {
  std::u16string before{};  ///< the word before its number, folded: "part"
  int number = 0;           ///< "B", "II", "二" are 2; 0 for none
  std::u16string words{};   ///< folded, without number and brackets: "判断题"

  bool IsEmpty() const { return number == 0 && words.empty(); }
};

/// Whether a line is the title of a part: "Part B", or "A卷" where that is one.
bool IsTitleOfPart(std::u16string_view line);

PartName PartNameOf(std::u16string_view title);

enum class SameParts { Yes, No, Unknown };

SameParts AreSameParts(const PartName& one, const PartName& other);

/// A title of a part in a paper.
struct PartTitle {
  PartName name;
  std::size_t question = 0;  ///< the index of the first question behind it
};

/// The titles between the questions and in front of the first one.
std::vector<PartTitle> PartTitlesOf(std::u16string_view text, const std::vector<OutlinedQuestion>& questions);

/// Whether a question certainly stands in another part than the named one: that part is in the paper, but the
/// question's own is counted in the same way and has another number.
bool IsInOtherPart(const std::vector<PartTitle>& titles, std::size_t question, const PartName& name);

}  // namespace quorvantis
