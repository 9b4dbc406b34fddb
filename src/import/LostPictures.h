// SPDX-License-Identifier: MIT
#pragma once

#include "import/ImportReport.h"

#include <map>
#include <vector>

namespace quorvantis {

constexpr int kNoQuestion = 0;

/// Numbers of pictures by the number of their question.
using PicturesByQuestion = std::map<int, std::vector<int>>;

/// The pictures of an import that could not be read, by reason. If questions were removed again, a picture's
/// question is unknown, and it is listed under none.
std::map<WordResult, PicturesByQuestion> GroupLostPictures(const ImportReport& report);

}  // namespace quorvantis
