// SPDX-License-Identifier: MIT
#pragma once

#include "import/ImportReport.h"

#include <map>
#include <vector>

namespace quorvantis {

constexpr int kNoQuestion = 0;

/// Numbers of pictures by the number of the question in which they stand.
using PicturesByQuestion = std::map<int, std::vector<int>>;

/// The pictures of an import that could not be read, by why. Where questions have been taken out again, it
/// is not known to which question a picture belonged, and it is listed under none.
std::map<WordResult, PicturesByQuestion> GroupLostPictures(const ImportReport& report);

}  // namespace quorvantis
