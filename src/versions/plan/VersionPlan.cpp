// SPDX-License-Identifier: MIT
#include "versions/plan/VersionPlan.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {

bool IsComplete(const PlannedVersion& version, int questionCount) {
  const auto count = static_cast<std::size_t>(questionCount);
  if (version.questions.size() != count || version.options.size() != count) return false;
  std::vector<bool> seen(count + 1);
  for (const int question : version.questions) {
    if (question < 1 || question > questionCount || seen[static_cast<std::size_t>(question)]) return false;
    seen[static_cast<std::size_t>(question)] = true;
  }
  return std::ranges::all_of(version.options, IsOptionOrder);
}

}  // namespace quorvantis
