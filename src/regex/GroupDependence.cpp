// SPDX-License-Identifier: MIT
#include "regex/GroupDependence.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool GoesOnBelow(Op op) {
  return op != Op::Jump && op != Op::Split && op != Op::IfGroup && op != Op::LookEnd && op != Op::Match;
}

}  // namespace

void ForgetWhatDependsOnGroups(RegexProgram& program) {
  const std::size_t size = program.code.size();
  std::vector<char> depends(size + 1);
  const auto leadsTo = [&](int place) {
    return place != kNowhere && depends[static_cast<std::size_t>(place)] != 0;
  };
  // Loops lead back, so this goes over the program until nothing changes.
  for (bool changed = true; changed;) {
    changed = false;
    for (std::size_t place = size; place-- > 0;) {
      const Instruction& code = program.code[place];
      const bool keepsRegister = code.op == Op::Capture || code.op == Op::ExitIfEmpty;
      const bool other = !keepsRegister && leadsTo(code.other);
      const bool now = code.op == Op::BackReference || code.op == Op::IfGroup || leadsTo(code.target) ||
                       other || (GoesOnBelow(code.op) && depends[place + 1] != 0);
      changed = changed || (now && depends[place] == 0);
      if (now) depends[place] = 1;
    }
  }
  for (std::size_t place = 0; place < size; ++place) {
    if (depends[place] != 0) program.code[place].memory = kNowhere;
  }
}

}  // namespace quorvantis
