// SPDX-License-Identifier: MIT
#pragma once

#include "learn/reading/PaperReading.h"
#include "learn/reading/PaperRole.h"

#include <vector>

namespace quorvantis {

/// A part of a paper with one role.
struct RolePart {
  TextSpan span;  ///< in Paper::source
  PaperRole role = PaperRole::None;
  int question = -1;  ///< index of the question it belongs to, in ReadPaper::questions; -1 for none
};

/// What each part of the paper became in the reading, in the order of the paper, without gaps.
std::vector<RolePart> RolesOf(const Paper& paper, const PaperReading& reading);

/// The share of the paper's characters, blanks not counted, that have a role: 0 to 1.
double ExplainedShare(const Paper& paper, const std::vector<RolePart>& roles);

}  // namespace quorvantis
