// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/QuestionTextParser.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {

/// What would be no key in one question, but is one where several have it in the same place: "The sun is a
/// star. true", a letter behind a question or on a line of its own. For each of these questions, by its
/// index, the place as it is shown.
std::map<std::size_t, std::u16string> KeysShownAlike(const std::vector<ReadQuestion>& questions);

}  // namespace quorvantis
