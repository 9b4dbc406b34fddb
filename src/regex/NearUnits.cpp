// SPDX-License-Identifier: MIT
#include "regex/NearUnits.h"

#include <vector>

namespace quorvantis {
namespace {

constexpr std::size_t kMostSteps = 100;  // instructions that one search visits

/// Follows all ways from some places to where they take a unit.
class NextUnitSearch {
 public:
  explicit NextUnitSearch(const RegexProgram& program) : program_(program) {}

  void Go(int place) {
    for (const int seen : seen_) {
      if (seen == place) return;
    }
    seen_.push_back(place);
    open_.push_back(place);
  }

  /// If one of the ways takes no unit, or is unknown, there is no result.
  bool Run() {
    while (!open_.empty()) {
      const int place = open_.back();
      open_.pop_back();
      if (place == kNowhere) continue;
      if (!Step(program_.code[static_cast<std::size_t>(place)], place)) return false;
    }
    return true;
  }

  const CharacterSet& Units() const { return units_; }

  /// A search for the unit that comes after.
  NextUnitSearch After() const {
    NextUnitSearch search(program_);
    search.units_ = again_;
    for (const int place : after_) search.Go(place);
    return search;
  }

 private:
  bool Step(const Instruction& instruction, int place) {
    if (seen_.size() > kMostSteps) return false;
    switch (instruction.op) {
      case Op::Unit:
        units_.Add(instruction.unit);
        after_.push_back(place + 1);
        return true;
      case Op::Set:
        units_.AddAll(*instruction.set);
        after_.push_back(place + 1);
        return true;
      case Op::Repeat:
        units_.AddAll(*instruction.set);
        if (instruction.max != 1) again_.AddAll(*instruction.set);
        if (instruction.min <= 1) after_.push_back(place + 1);
        if (instruction.min == 0) Go(place + 1);
        return true;
      case Op::Split:
      case Op::IfGroup:
        Go(instruction.target);
        Go(instruction.other);
        return true;
      case Op::Jump:
        Go(instruction.target);
        return true;
      case Op::ExitIfEmpty:
      case Op::CountedLoop:
        Go(place + 1);
        Go(instruction.target);
        return true;
      case Op::Look:  // takes no unit, however it ends
        Go(program_.code[static_cast<std::size_t>(instruction.target)].target);
        Go(instruction.other);
        return true;
      case Op::Assert:
      case Op::MarkPosition:
      case Op::Capture:
      case Op::ResetCounter:
      case Op::Atomic:
        Go(place + 1);
        return true;
      case Op::AtomicEnd:  // its body decides alone, whatever follows
      case Op::BackReference:
      case Op::LookEnd:
      case Op::Call:
      case Op::Return:
      case Op::Match:
        break;
    }
    return false;
  }

  const RegexProgram& program_;
  std::vector<int> seen_;
  std::vector<int> open_;
  std::vector<int> after_;  ///< where the ways go on with the unit after
  CharacterSet units_;
  CharacterSet again_;  ///< units after the first one that the same instruction takes
};

/// The units of a one-unit look-behind at `place` that must come out one way; otherwise nothing.
std::optional<CharacterSet> UnitsOfLookBehind(const RegexProgram& program, int place) {
  const auto at = [&](int index) -> const Instruction& {
    return program.code[static_cast<std::size_t>(index)];
  };
  const Instruction& look = at(place);
  const Instruction& body = at(place + 1);
  const int afterMatch = at(look.target).target;
  const bool isDecision = (look.other == kNowhere) != (afterMatch == kNowhere);
  if (!isDecision || look.target != place + 2 || !body.backward) return std::nullopt;
  CharacterSet units;
  if (body.op == Op::Unit) {
    units.Add(body.unit);
  } else if (body.op == Op::Set) {
    units = *body.set;
  } else {
    return std::nullopt;
  }
  if (afterMatch == kNowhere) units.Invert();
  return units;
}

}  // namespace

std::optional<CharacterSet> FindFirstUnits(const RegexProgram& program, int place) {
  NextUnitSearch first(program);
  first.Go(place);
  if (!first.Run()) return std::nullopt;
  return first.Units();
}

std::optional<CharacterSet> FindSecondUnits(const RegexProgram& program, int place) {
  NextUnitSearch first(program);
  first.Go(place);
  if (!first.Run()) return std::nullopt;
  NextUnitSearch second = first.After();
  if (!second.Run()) return std::nullopt;
  return second.Units();
}

std::optional<CharacterSet> FindUnitsBefore(const RegexProgram& program, int place) {
  for (;; ++place) {
    const Instruction& code = program.code[static_cast<std::size_t>(place)];
    if (code.op == Op::Look) return UnitsOfLookBehind(program, place);
    if (code.op == Op::Assert && code.assertion == AssertionKind::LineStart) return CharacterSet::Of(u"\r\n");
    // These take no unit, so what follows is at the same position.
    if (code.op != Op::Assert && code.op != Op::MarkPosition && code.op != Op::Atomic) return std::nullopt;
  }
}

}  // namespace quorvantis
