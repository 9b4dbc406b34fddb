// SPDX-License-Identifier: MIT
#include "regex/PatternTraits.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool TakesUnits(Op op) {
  return op == Op::Unit || op == Op::Set || op == Op::Repeat;
}

/// Whether an instruction only moves along a path: what it does depends on the path alone.
bool FollowsPath(const Instruction& code) {
  switch (code.op) {
    case Op::Unit:
    case Op::Set:
    case Op::Split:
    case Op::Jump:
    case Op::MarkPosition:
    case Op::Capture:
    case Op::ExitIfEmpty:
    case Op::ResetCounter:
    case Op::CountedLoop:
    case Op::Match:
      return true;
    case Op::Repeat:
      return code.mode != RepeatMode::Possessive;
    default:
      return false;
  }
}

bool Takes(const Instruction& code, char16_t unit) {
  if (!TakesUnits(code.op) || code.backward) return false;
  return code.op == Op::Unit ? code.unit == unit : code.set->Contains(unit);
}

bool AsksForwardOnly(AssertionKind kind) {
  return kind == AssertionKind::LineEnd || kind == AssertionKind::EndOfText ||
         kind == AssertionKind::EndOfTextOrLastBreak;
}

bool AsksBackwardOnly(AssertionKind kind) {
  return kind == AssertionKind::LineStart || kind == AssertionKind::StartOfText;
}

/// The body of a Look that asks for nothing but what stands before its place.
bool IsPureLookBehind(const RegexProgram& program, int look) {
  const Instruction& code = program.code[static_cast<std::size_t>(look)];
  for (int place = look + 1; place < code.target; ++place) {
    const Instruction& inner = program.code[static_cast<std::size_t>(place)];
    const bool asksBackward = inner.op == Op::Assert && AsksBackwardOnly(inner.assertion);
    const bool takesForward = TakesUnits(inner.op) && !inner.backward;
    if (!asksBackward && (takesForward || !FollowsPath(inner))) return false;
  }
  return true;
}

}  // namespace

bool MatchesAnywhere(const RegexProgram& program) {
  return !program.backward && std::ranges::all_of(program.code, FollowsPath);
}

bool IsBarrier(const RegexProgram& program, char16_t unit) {
  if (program.backward) return false;
  for (int place = 0; place < static_cast<int>(program.code.size()); ++place) {
    const Instruction& code = program.code[static_cast<std::size_t>(place)];
    if (code.op == Op::Look) {
      if (!IsPureLookBehind(program, place)) return false;
      place = code.target;  // its LookEnd
    } else if (code.op == Op::Assert) {
      if (!AsksBackwardOnly(code.assertion) && !AsksForwardOnly(code.assertion)) return false;
    } else if (!FollowsPath(code) || Takes(code, unit)) {
      return false;
    }
  }
  return true;
}

}  // namespace quorvantis
