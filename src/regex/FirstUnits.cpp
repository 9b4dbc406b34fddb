// SPDX-License-Identifier: MIT
#include "regex/FirstUnits.h"

#include <map>
#include <optional>

namespace quorvantis {
namespace {

constexpr std::size_t kMostSteps = 100;  // instructions that one search looks at
constexpr std::size_t kMostSearches = 2'000;

class FirstUnitsSearch {
 public:
  FirstUnitsSearch(const RegexProgram& program, int place) : program_(program) { Go(place); }

  /// Nothing where a way leads to the end, or is not known, without a unit.
  std::optional<CharacterSet> Run() {
    while (!open_.empty()) {
      const int place = open_.back();
      open_.pop_back();
      if (place == kNowhere) continue;
      if (!Step(program_.code[static_cast<std::size_t>(place)], place)) return std::nullopt;
    }
    return std::move(units_);
  }

 private:
  void Go(int place) {
    for (const int seen : seen_) {
      if (seen == place) return;
    }
    seen_.push_back(place);
    open_.push_back(place);
  }

  bool Step(const Instruction& instruction, int place) {
    if (seen_.size() > kMostSteps) return false;
    switch (instruction.op) {
      case Op::Unit:
        units_.Add(instruction.unit);
        return true;
      case Op::Set:
        units_.AddAll(*instruction.set);
        return true;
      case Op::Repeat:
        units_.AddAll(*instruction.set);
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
      case Op::Look:  // takes nothing, however it ends
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
      case Op::AtomicEnd:  // its body decides by itself, whatever comes after
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
  CharacterSet units_;
};

/// Finds sets and keeps one of each in the program.
class FirstUnitsFinder {
 public:
  explicit FirstUnitsFinder(RegexProgram& program) : program_(program) {}

  const CharacterSet* Find(int place) {
    const auto [known, isNew] = found_.emplace(place, nullptr);
    if (!isNew || ++searches_ > kMostSearches) return known->second;
    if (std::optional<CharacterSet> units = FirstUnitsSearch(program_, place).Run()) {
      known->second = Keep(std::move(*units));
    }
    return known->second;
  }

 private:
  const CharacterSet* Keep(CharacterSet units) {
    for (const auto& set : program_.sets) {
      if (*set == units) return set.get();
    }
    program_.sets.push_back(std::make_shared<const CharacterSet>(std::move(units)));
    return program_.sets.back().get();
  }

  RegexProgram& program_;
  std::map<int, const CharacterSet*> found_;
  std::size_t searches_ = 0;
};

/// The units that stand at the front of the program without a choice.
std::u16string FindPrefix(const RegexProgram& program) {
  std::u16string prefix;
  for (const Instruction& instruction : program.code) {
    if (instruction.op == Op::Unit) {
      prefix += instruction.unit;
    } else if (instruction.op != Op::MarkPosition && instruction.op != Op::Capture &&
               instruction.op != Op::Atomic) {
      break;
    }
  }
  return prefix;
}

}  // namespace

void FindFirstUnits(RegexProgram& program) {
  FirstUnitsFinder finder(program);
  program.first = finder.Find(0);
  if (!program.backward) program.prefix = FindPrefix(program);
  for (std::size_t i = 0; i < program.code.size(); ++i) {
    Instruction& instruction = program.code[i];
    if (instruction.op == Op::Split) {
      instruction.first = finder.Find(instruction.target);
      instruction.otherFirst = finder.Find(instruction.other);
    } else if (instruction.op == Op::Repeat) {
      instruction.first = finder.Find(static_cast<int>(i) + 1);
    }
  }
}

}  // namespace quorvantis
