// SPDX-License-Identifier: MIT
#include "regex/RegexCompiler.h"

#include "regex/GroupDependence.h"
#include "regex/LookAhead.h"
#include "regex/ProgramSize.h"
#include "regex/RegexError.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kLargestProgram = 200'000;  // instructions
constexpr int kMostUnitCopies = 4;                // of one required unit
constexpr int kMostMarks = 6;                     // enclosing loops that failures may depend on

/// Whether a tree has a node of one of these kinds.
template <class... Wanted>
bool Has(const SyntaxNode& tree) {
  return std::visit(
      [](const auto& node) {
        using Node = std::decay_t<decltype(node)>;
        if constexpr ((std::is_same_v<Node, Wanted> || ...)) return true;
        const auto has = [](const SyntaxTree& part) { return part && Has<Wanted...>(*part); };
        if constexpr (std::is_same_v<Node, SequenceNode>) {
          return std::ranges::any_of(node.parts, has);
        } else if constexpr (std::is_same_v<Node, AlternationNode>) {
          return std::ranges::any_of(node.choices, has);
        } else if constexpr (std::is_same_v<Node, ConditionNode>) {
          return has(node.look) || has(node.whenTrue) || has(node.whenFalse);
        } else if constexpr (requires { node.body; }) {
          return has(node.body);
        }
        return false;
      },
      tree.value);
}

class RegexCompiler {
 public:
  RegexCompiler(const ParsedPattern& pattern, bool rightToLeft) : pattern_(pattern) {
    program_.backward = rightToLeft;
    program_.groups = pattern.groupCount + 1;
    groupStarts_.resize(static_cast<std::size_t>(program_.groups), GroupStart{kNowhere, rightToLeft});
    groupStarts_[0].place = 0;
    hasRecursion_ = Has<RecursionNode>(*pattern.tree);
  }

  RegexProgram Compile() {
    Emit(*pattern_.tree, program_.backward);
    AppendReturn(0);
    Append({.op = Op::Match});
    ConnectCalls();
    ForgetWhatDependsOnGroups(program_);
    LookAhead(program_);
    return std::move(program_);
  }

 private:
  void ConnectCalls() {
    for (Instruction& call : program_.code) {
      if (call.op != Op::Call) continue;
      const GroupStart& group = groupStarts_[static_cast<std::size_t>(call.index)];
      if (group.backward != call.backward)
        throw RegexError{0, "a recursion runs against the direction of its group"};
      call.target = group.place;
    }
  }

  int Here() const { return static_cast<int>(program_.code.size()); }
  Instruction& At(int place) { return program_.code[static_cast<std::size_t>(place)]; }

  int Append(const Instruction& instruction) {
    if (program_.code.size() >= kLargestProgram) throw RegexError{0, "the pattern is too large"};
    program_.code.push_back(instruction);
    return Here() - 1;
  }

  int NewRegister() { return program_.registers++; }

  const CharacterSet* Keep(const std::shared_ptr<const CharacterSet>& set) {
    if (program_.sets.empty() || program_.sets.back() != set) program_.sets.push_back(set);
    return set.get();
  }

  /// Gives an instruction with a choice its rows in the memory of failures: one for each state of the marks
  /// of the enclosing loops.
  void Remember(Instruction& instruction) {
    if (hasRecursion_ || insideCountedLoop_ || marks_.size() > kMostMarks) return;
    instruction.memory = program_.memoryRows;
    program_.memoryRows += 1 << marks_.size();
    instruction.firstMark = static_cast<int>(program_.marks.size());
    instruction.markCount = static_cast<int>(marks_.size());
    program_.marks.insert(program_.marks.end(), marks_.begin(), marks_.end());
  }

  void Emit(const SyntaxNode& tree, bool backward) {
    std::visit([&](const auto& node) { Emit(node, backward); }, tree.value);
  }

  void Emit(const UnitNode& node, bool backward) { EmitUnit(*Keep(node.set), backward); }

  /// `set` belongs to the program.
  void EmitUnit(const CharacterSet& set, bool backward) {
    if (set.Count() == 1) {
      Append({.op = Op::Unit, .backward = backward, .unit = set.First()});
    } else {
      Append({.op = Op::Set, .backward = backward, .set = &set});
    }
  }

  void Emit(const AssertionNode& node, bool) { Append({.op = Op::Assert, .assertion = node.kind}); }

  void Emit(const SequenceNode& node, bool backward) {
    if (backward) {
      for (auto part = node.parts.rbegin(); part != node.parts.rend(); ++part) Emit(**part, backward);
    } else {
      for (const SyntaxTree& part : node.parts) Emit(*part, backward);
    }
  }

  int AppendSplit(bool backward, bool isLoop = false) {
    Instruction split{.op = Op::Split, .backward = backward, .isLoop = isLoop};
    Remember(split);
    return Append(split);
  }

  void Emit(const AlternationNode& node, bool backward) {
    std::vector<int> exits;
    for (std::size_t i = 0; i + 1 < node.choices.size(); ++i) {
      const int split = AppendSplit(backward);
      At(split).target = Here();
      Emit(*node.choices[i], backward);
      exits.push_back(Append({.op = Op::Jump}));
      At(split).other = Here();
    }
    Emit(*node.choices.back(), backward);
    for (const int exit : exits) At(exit).target = Here();
  }

  void Emit(const CaptureNode& node, bool backward) {
    GroupStart& start = groupStarts_[static_cast<std::size_t>(node.group)];
    if (start.place == kNowhere) start = {Here(), backward};
    const int begin = NewRegister();
    Append({.op = Op::MarkPosition, .index = begin});
    Emit(*node.body, backward);
    Append({.op = Op::Capture, .other = begin, .index = node.group});
    AppendReturn(node.group);
  }

  /// A pattern without calls needs no returns.
  void AppendReturn(int group) {
    if (hasRecursion_) Append({.op = Op::Return, .index = group});
  }

  // --- repetitions ---

  void Emit(const RepeatNode& node, bool backward) {
    if (node.mode == RepeatMode::Possessive && !RepeatedUnit(node)) {
      EmitAtomic([&] { EmitRepeat(node, backward, RepeatMode::Greedy); });
    } else {
      EmitRepeat(node, backward, node.mode);
    }
  }

  /// The group around a repeated element, if there is one.
  static const CaptureNode* RepeatedGroup(const RepeatNode& node) {
    return std::get_if<CaptureNode>(&node.body->value);
  }

  /// The set of a repeated element that is one unit, or a group around one; null for others.
  std::shared_ptr<const CharacterSet> RepeatedUnit(const RepeatNode& node) const {
    const CaptureNode* capture = RepeatedGroup(node);
    if (capture && hasRecursion_) return nullptr;  // such a group could be called separately
    return OnlyUnit(capture ? *capture->body : *node.body);
  }

  void EmitRepeat(const RepeatNode& node, bool backward, RepeatMode mode) {
    if (const auto set = RepeatedUnit(node)) return EmitUnits(node, *Keep(set), backward, mode);
    if (node.min == 0 && node.max == kUnlimited) return EmitStar(node, backward, mode);
    if (node.max == 0) return EmitNever(node, backward);
    const auto copies = static_cast<std::size_t>(std::max(node.min, node.max));
    if (ProgramSize(*node.body) * copies > kLargestCopies) return EmitCounted(node, backward, mode);
    const int alone = node.max == kUnlimited ? node.min - 1 : node.min;
    for (int i = 0; i < alone; ++i) Emit(*node.body, backward);
    if (node.max == kUnlimited) return EmitPlus(node, backward, mode);
    EmitOptional(node, node.max - node.min, backward, mode);
  }

  /// The required units and the optional ones are two steps, so that every place in the second is alike.
  void EmitUnits(const RepeatNode& node, const CharacterSet& set, bool backward, RepeatMode mode) {
    Instruction repeat{.op = Op::Repeat, .backward = backward, .mode = mode};
    repeat.index = RepeatedGroup(node) ? RepeatedGroup(node)->group : kNowhere;
    repeat.set = &set;
    if (repeat.index == kNowhere && node.min <= kMostUnitCopies) {
      for (int i = 0; i < node.min; ++i) EmitUnit(set, backward);
    } else if (node.min > 0) {
      repeat.min = repeat.max = node.min;
      Append(repeat);
    }
    if (node.max == node.min) return;
    repeat.min = 0;
    repeat.max = node.max == kUnlimited ? kUnlimited : node.max - node.min;
    Remember(repeat);
    Append(repeat);
  }

  /// "x{0}" matches nothing, but groups in it may be called.
  void EmitNever(const RepeatNode& node, bool backward) {
    const int jump = Append({.op = Op::Jump});
    Emit(*node.body, backward);
    At(jump).target = Here();
  }

  /// Makes the split at `split` choose between a body and what follows it, in the order of the mode.
  void Direct(int split, RepeatMode mode, int body, int exit) {
    At(split).target = mode == RepeatMode::Lazy ? exit : body;
    At(split).other = mode == RepeatMode::Lazy ? body : exit;
  }

  void EmitStar(const RepeatNode& node, bool backward, RepeatMode mode) {
    const int split = AppendSplit(backward, true);
    const int body = Here();
    const int exit = EmitIteration(node, backward);
    Append({.op = Op::Jump, .target = split});
    Direct(split, mode, body, Here());
    if (exit != kNowhere) At(exit).target = Here();
  }

  /// One iteration or more. The first one also leaves the loop if it has taken nothing.
  void EmitPlus(const RepeatNode& node, bool backward, RepeatMode mode) {
    const int body = Here();
    const int exit = EmitIteration(node, backward);
    const int split = AppendSplit(backward, true);
    Direct(split, mode, body, Here());
    if (exit != kNowhere) At(exit).target = Here();
  }

  /// A body that leaves the loop if it has taken nothing: otherwise it would go on forever. Returns the place
  /// whose target is the end of the loop, or kNowhere for a body that always takes something.
  int EmitIteration(const RepeatNode& node, bool backward) {
    if (!CanBeEmpty(*node.body)) {
      Emit(*node.body, backward);
      return kNowhere;
    }
    const int mark = NewRegister();
    Append({.op = Op::MarkPosition, .index = mark});
    marks_.push_back(mark);
    Emit(*node.body, backward);
    marks_.pop_back();
    return Append({.op = Op::ExitIfEmpty, .index = mark});
  }

  void EmitOptional(const RepeatNode& node, int copies, bool backward, RepeatMode mode) {
    std::vector<std::pair<int, int>> splits;
    for (int i = 0; i < copies; ++i) {
      const int split = AppendSplit(backward);
      splits.emplace_back(split, Here());
      Emit(*node.body, backward);
    }
    for (const auto& [split, body] : splits) Direct(split, mode, body, Here());
  }

  /// A loop that counts, for bodies too large to copy. What follows depends on the count, so no failure in it
  /// is remembered. An iteration that takes nothing is the last one; but where the next one could go another
  /// way because of what groups have matched, it is one of those that copies of the body would have.
  void EmitCounted(const RepeatNode& node, bool backward, RepeatMode mode) {
    const bool outer = std::exchange(insideCountedLoop_, true);
    const int counter = NewRegister();
    Append({.op = Op::ResetCounter, .index = counter});
    const int loop = Append({.op = Op::CountedLoop, .backward = backward, .mode = mode, .index = counter});
    At(loop).min = node.min;
    At(loop).max = node.max;
    const int exit = EmitIteration(node, backward);
    if (exit != kNowhere && Has<BackReferenceNode, ConditionNode, RecursionNode>(*node.body)) {
      At(exit).other = counter;
      At(exit).min = node.max == kUnlimited ? node.min : node.max;
    }
    Append({.op = Op::Jump, .target = loop});
    At(loop).target = Here();
    if (exit != kNowhere) At(exit).target = Here();
    insideCountedLoop_ = outer;
  }

  // --- bodies matched on their own ---

  template <class Body>
  void EmitAtomic(const Body& body) {
    const int keeper = NewRegister();
    Append({.op = Op::Atomic, .index = keeper});
    const std::vector<int> outerMarks = std::exchange(marks_, {});
    body();
    marks_ = outerMarks;
    Append({.op = Op::AtomicEnd, .index = keeper});
  }

  void Emit(const AtomicNode& node, bool backward) {
    EmitAtomic([&] { Emit(*node.body, backward); });
  }

  struct LookPlaces {
    int look;
    int end;
  };

  /// Leaves the targets of the Look and its LookEnd open; without a target, they fail.
  LookPlaces EmitLookBody(const LookNode& node) {
    const int keeper = NewRegister();
    const int look = Append({.op = Op::Look, .index = keeper});
    const std::vector<int> outerMarks = std::exchange(marks_, {});
    Emit(*node.body, node.behind);
    marks_ = outerMarks;
    const int end = Append({.op = Op::LookEnd, .index = keeper});
    At(look).target = end;
    return {look, end};
  }

  void Emit(const LookNode& node, bool) {
    const LookPlaces places = EmitLookBody(node);
    (node.negative ? At(places.look).other : At(places.end).target) = Here();
  }

  void Emit(const ConditionNode& node, bool backward) {
    const auto* look = node.look ? std::get_if<LookNode>(&node.look->value) : nullptr;
    if (!look) {
      const int test = Append({.op = Op::IfGroup, .index = GroupNumber(node.place)});
      return EmitBranches(node, backward, {test, &Instruction::target}, {test, &Instruction::other});
    }
    const LookPlaces places = EmitLookBody(*look);
    const Exit matched{places.end, &Instruction::target};
    const Exit failed{places.look, &Instruction::other};
    EmitBranches(node, backward, look->negative ? failed : matched, look->negative ? matched : failed);
  }

  /// A field of an instruction that holds a target.
  struct Exit {
    int place;
    int Instruction::*field;
  };

  void EmitBranches(const ConditionNode& node, bool backward, Exit whenTrue, Exit whenFalse) {
    At(whenTrue.place).*whenTrue.field = Here();
    Emit(*node.whenTrue, backward);
    const int jump = Append({.op = Op::Jump});
    At(whenFalse.place).*whenFalse.field = Here();
    Emit(*node.whenFalse, backward);
    At(jump).target = Here();
  }

  // --- references ---

  int GroupNumber(const GroupPlace& place) const {
    const int group = place.name.empty() ? place.number : FindGroup(pattern_.names, place.name);
    if (group < 1 || group > pattern_.groupCount) throw RegexError{place.at, "there is no such group"};
    return group;
  }

  void Emit(const BackReferenceNode& node, bool backward) {
    Instruction reference{.op = Op::BackReference, .backward = backward, .ignoreCase = node.ignoreCase};
    reference.index = GroupNumber(node.place);
    Append(reference);
  }

  void Emit(const RecursionNode& node, bool backward) {
    const bool wholePattern = node.place.name.empty() && node.place.number == 0;
    Append({.op = Op::Call, .backward = backward, .index = wholePattern ? 0 : GroupNumber(node.place)});
  }

  struct GroupStart {
    int place;
    bool backward;
  };

  const ParsedPattern& pattern_;
  RegexProgram program_;
  std::vector<GroupStart> groupStarts_;
  bool hasRecursion_;
  bool insideCountedLoop_ = false;
  std::vector<int> marks_;  ///< registers of the enclosing loops whose bodies can be empty
};

}  // namespace

RegexProgram CompileProgram(const ParsedPattern& pattern, bool rightToLeft) {
  return RegexCompiler(pattern, rightToLeft).Compile();
}

}  // namespace quorvantis
