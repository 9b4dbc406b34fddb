// SPDX-License-Identifier: MIT
#pragma once

#include "import/lines/AnswerHeadings.h"
#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A heading that answers may follow.
struct HeadingPlace {
  std::size_t begin = 0;  ///< of its line
  std::size_t end = 0;    ///< where the answers may begin
  AnswerHeading heading = AnswerHeading::None;
  bool isTitle = false;  ///< the title of a part that comes again
};

/// The places behind the first question that look like headings of a key, with something like a key behind
/// them; of many, some of the first and of the last.
std::vector<HeadingPlace> FindKeyHeadings(std::u16string_view text, const PaperOutline& outline);

}  // namespace quorvantis
