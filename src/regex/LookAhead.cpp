// SPDX-License-Identifier: MIT
#include "regex/LookAhead.h"

#include "regex/NearUnits.h"

#include <map>
#include <optional>

namespace quorvantis {
namespace {

constexpr std::size_t kMostSearches = 2'000;  // of places in one program

/// Computes what the instructions of a program need to know, and stores each result once.
class LookAheadFinder {
 public:
  explicit LookAheadFinder(RegexProgram& program) : program_(program) {}

  void Run() {
    FindStarts();
    for (std::size_t i = 0; i < program_.code.size(); ++i) {
      Instruction& instruction = program_.code[i];
      if (instruction.op == Op::Split) {
        instruction.first = First(instruction.target);
        instruction.otherFirst = First(instruction.other);
      } else if (instruction.op == Op::Repeat) {
        LookBehindRepeat(instruction, static_cast<int>(i) + 1);
      }
    }
  }

 private:
  using SharedSet = std::shared_ptr<const CharacterSet>;

  void FindStarts() {
    if (program_.backward) {
      program_.first = First(0);
    } else {
      program_.starts = StartsAt(0);
      program_.onlyAtTextStart = BeginsAtTextStart();
    }
  }

  bool BeginsAtTextStart() const {
    const auto takesNothing = [](Op op) { return op == Op::MarkPosition || op == Op::Atomic; };
    auto next = program_.code.begin();
    while (takesNothing(next->op)) ++next;
    return next->op == Op::Assert && next->assertion == AssertionKind::StartOfText;
  }

  /// `next` is the place below the Repeat.
  void LookBehindRepeat(Instruction& repeat, int next) {
    repeat.first = First(next);
    repeat.onlyMost = (repeat.first && repeat.first->IsDisjoint(*repeat.set)) || AlwaysMatches(next);
    if (repeat.backward || repeat.max != kUnlimited || ++searches_ > kMostSearches) return;
    if (repeat.mode == RepeatMode::Lazy) {
      repeat.endOfRepeat = EndsOfLazy(repeat, next);
    } else {
      repeat.endOfUnits = EndOf(*repeat.set);
    }
  }

  bool AlwaysMatches(int place) const {
    for (;;) {
      const Instruction& code = program_.code[static_cast<std::size_t>(place)];
      if (code.op != Op::Capture && code.op != Op::MarkPosition && code.op != Op::Jump)
        return code.op == Op::Match;
      place = code.op == Op::Jump ? code.target : place + 1;
    }
  }

  const CharacterSet* First(int place) {
    const auto [known, isNew] = firsts_.emplace(place, nullptr);
    if (!isNew || ++searches_ > kMostSearches) return known->second.get();
    if (std::optional<CharacterSet> units = FindFirstUnits(program_, place)) known->second = Keep(*units);
    return known->second.get();
  }

  /// Null for anywhere.
  const StartSearch* StartsAt(int place) {
    std::vector<StartSearch::Condition> conditions;
    const auto add = [&](int offset, const std::optional<CharacterSet>& units) {
      if (units && *units != CharacterSet::All()) conditions.push_back({offset, Keep(*units)});
    };
    add(0, FindFirstUnits(program_, place));
    add(1, FindSecondUnits(program_, place));
    add(-1, FindUnitsBefore(program_, place));
    return Keep(std::move(conditions));
  }

  /// If all units can be taken, search for what follows. Otherwise the search ends at a unit that cannot be
  /// taken, and must not look beyond it: it would do so again from every start.
  const StartSearch* EndsOfLazy(const Instruction& repeat, int next) {
    if (*repeat.set == CharacterSet::All()) return StartsAt(next);
    if (!repeat.first) return nullptr;
    CharacterSet ends = *repeat.set;
    ends.Invert();
    ends.AddAll(*repeat.first);
    return Keep({{0, Keep(ends)}});
  }

  const UnitSearch* EndOf(const CharacterSet& units) {
    const auto [known, isNew] = ends_.emplace(&units, nullptr);
    if (isNew) {
      CharacterSet others = units;
      others.Invert();
      program_.unitSearches.push_back(std::make_shared<const UnitSearch>(Keep(others)));
      known->second = program_.unitSearches.back().get();
    }
    return known->second;
  }

  const StartSearch* Keep(std::vector<StartSearch::Condition> conditions) {
    if (conditions.empty()) return nullptr;
    program_.startSearches.push_back(std::make_shared<const StartSearch>(std::move(conditions)));
    return program_.startSearches.back().get();
  }

  SharedSet Keep(const CharacterSet& units) {
    for (const SharedSet& set : program_.sets) {
      if (*set == units) return set;
    }
    program_.sets.push_back(std::make_shared<const CharacterSet>(units));
    return program_.sets.back();
  }

  RegexProgram& program_;
  std::map<int, SharedSet> firsts_;
  std::map<const CharacterSet*, const UnitSearch*> ends_;
  std::size_t searches_ = 0;
};

}  // namespace

void LookAhead(RegexProgram& program) {
  LookAheadFinder(program).Run();
}

}  // namespace quorvantis
