// SPDX-License-Identifier: MIT
#pragma once

#include "shell/ImportReport.h"

#include <map>
#include <vector>

namespace quorvantis {

constexpr int kNoQuestion = 0;

/// Numbers of pictures by the number of the question in which they stand.
using PicturesByQuestion = std::map<int, std::vector<int>>;

/// The pictures of an import that could not be read, by why. They count to no question where it is not known
/// any more, because questions have been taken out again.
std::map<WordResult, PicturesByQuestion> GroupLostPictures(const ImportReport& report);

}  // namespace quorvantis
