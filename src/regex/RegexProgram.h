// SPDX-License-Identifier: MIT
// The parts of a compiled pattern. RegexCompiler.h makes programs, RegexMatcher.h runs them.
#pragma once

#include "regex/CharacterSet.h"
#include "regex/StartSearch.h"
#include "regex/SyntaxTree.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvantis {

constexpr int kNowhere = -1;

enum class Op : std::uint8_t {
  Unit,           ///< takes one unit, `unit`
  Set,            ///< takes one unit of `set`
  Repeat,         ///< takes `min` to `max` units of `set`; group `index`, if not kNowhere, gets the last one
  Split,          ///< continues at `target`, and at `other` when that fails
  Jump,           ///< continues at `target`
  Assert,         ///< continues where `assertion` holds
  MarkPosition,   ///< stores the position in register `index`
  Capture,        ///< group `index` has matched from the position in register `other` to here
  ExitIfEmpty,    ///< continues at `target` when the position is that in register `index`, and the count in
                  ///< register `other`, if not kNowhere, is at least `min`
  ResetCounter,   ///< register `index` becomes 0
  CountedLoop,    ///< counts in register `index` and enters the body below; leaves to `target` from `min` on
  BackReference,  ///< takes what group `index` matched
  Look,       ///< tries the body below, to its LookEnd at `target`; continues at `other` when the body fails
  LookEnd,    ///< the body of the Look with register `index` matched: continues at `target` from before it
  Atomic,     ///< begins a body whose choices are dropped at its end
  AtomicEnd,  ///< ends the body of the Atomic with register `index`
  Call,       ///< runs the code of group `index` at `target` and comes back
  Return,     ///< comes back if the code of group `index` was called
  IfGroup,    ///< continues at `target` if group `index` took part, at `other` if not
  Match,      ///< the pattern has matched
};

/// One step of a program. Which fields count depends on `op`.
struct Instruction {
  Op op = Op::Match;
  bool backward = false;    ///< units are taken from before the position
  bool ignoreCase = false;  ///< of a BackReference
  bool isLoop = false;      ///< of a Split that goes back
  RepeatMode mode = RepeatMode::Greedy;
  AssertionKind assertion = AssertionKind::StartOfText;
  char16_t unit = 0;
  int target = kNowhere;
  int other = kNowhere;
  int index = kNowhere;
  int min = 0;
  int max = 0;
  /// The first of this instruction's rows in the memory of failures; kNowhere if its failures must not be
  /// kept. There is a row for each state of the marks of the enclosing loops, a range of RegexProgram::marks.
  int memory = kNowhere;
  int firstMark = 0;
  int markCount = 0;
  const CharacterSet* set = nullptr;
  /// The units that can come first at `target` and `other` of a Split, or after a Repeat (`first` alone);
  /// null where any unit can, or none is needed.
  const CharacterSet* first = nullptr;
  const CharacterSet* otherFirst = nullptr;
  /// Of a greedy Repeat: only the largest number of units needs to be tried, because what follows cannot
  /// begin with a repeated unit, or always matches.
  bool onlyMost = false;
  const UnitSearch* endOfUnits = nullptr;  ///< of a Repeat that takes units forward: the first not in `set`
  const StartSearch* endOfRepeat =
      nullptr;  ///< of a lazy one: where it can end, or has to; null for anywhere
};

/// A compiled pattern.
struct RegexProgram {
  std::vector<Instruction> code;
  std::vector<std::shared_ptr<const CharacterSet>> sets;  ///< what the instructions point to
  std::vector<int> marks;  ///< registers with the starts of iterations that can be empty
  int groups = 1;          ///< the whole match is group 0
  int registers = 0;
  int memoryRows = 0;
  bool backward = false;                ///< right-to-left
  bool onlyAtTextStart = false;         ///< a match can begin only at the start of the text
  const CharacterSet* first = nullptr;  ///< the units that a match can begin with; null for any, or none
  const StartSearch* starts = nullptr;  ///< where a match can begin; null for anywhere, or if backward
  std::vector<std::shared_ptr<const UnitSearch>> unitSearches;    ///< what the instructions point to
  std::vector<std::shared_ptr<const StartSearch>> startSearches;  ///< likewise
};

}  // namespace quorvantis
