// SPDX-License-Identifier: MIT
#pragma once

#include "regex/FailureMemory.h"
#include "regex/MatchContext.h"
#include "regex/MatchResult.h"
#include "regex/RegexProgram.h"

#include <span>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Runs a program on one text. docs/MATCHER.md explains how. Everything a match needs is in vectors, so the
/// depth of the machine's stack does not depend on the text.
class RegexMatcher {
 public:
  /// All must outlive the matcher. The text has at most 2^31 - 2 units.
  RegexMatcher(const RegexProgram& program, std::u16string_view text, MatchContext& context);

  /// The first match at `start` or after it (before it for programs that run right-to-left).
  MatchResult Find(int start);

 private:
  /// Where the program is.
  struct Thread {
    int place;
    int position;
  };

  enum class EntryKind : int {
    // Choices to come back to:
    Alternative,    ///< continue at place `a`, position `b`
    FewerUnits,     ///< of the Repeat at `a` that began at `b`: the positions from `c` outwards have failed
    MoreUnits,      ///< of the Repeat at `a` that began at `b`: the positions up to `c` have failed
    NextIteration,  ///< enter the body of the CountedLoop at `a`, position `b`
    Barrier,        ///< the body of the Look or Atomic at `a`, begun at position `b`, has failed
    // Values to restore on the way back:
    RestoreGroup,     ///< group a was from b to c
    RestoreRegister,  ///< registers_[a] was b
    RestoreFrame,     ///< the frame was a, of b frames
    // Notes:
    Failure,  ///< all choices of row `a` at position `b` have failed
  };

  struct Entry {
    EntryKind kind;
    int a;
    int b;
    int c;
  };

  /// A call of a group that has not returned.
  struct Frame {
    int group;
    int returnPlace;
    int position;
    int caller;         ///< index of the frame around, or kNowhere
    std::size_t saved;  ///< in savedValues_: the bounds and registers at the call
  };

  int FindStart(int start) const;
  bool RunFrom(int start);
  bool Step(Thread& thread);
  bool BackTrack(Thread& thread);
  bool Resume(const Entry& entry, Thread& thread);
  bool IsStopped();

  bool TakeUnits(Thread& thread) const;
  bool Repeat(const Instruction& instruction, Thread& thread);
  bool RepeatExactly(const Instruction& instruction, Thread& thread);
  bool RepeatFewer(const Instruction& instruction, Thread& thread, int from, int low);
  bool RepeatMore(const Instruction& instruction, Thread& thread, int from, int low);
  int SkipTo(const Instruction& instruction, int position);
  bool CanTakeMore(const Instruction& instruction, int low, int position) const;
  bool ResumeFewer(const Entry& entry, Thread& thread);
  bool ResumeMore(const Entry& entry, Thread& thread);
  int Extent(const Instruction& instruction, int position);
  bool EndRepeat(const Instruction& instruction, Thread& thread, int low, int to);
  void See(int position);
  void RememberRange(const Instruction& instruction, int low, int from, int to);
  bool Split(const Instruction& instruction, Thread& thread);
  bool CountedLoop(const Instruction& instruction, Thread& thread);
  bool Holds(AssertionKind kind, int position) const;
  bool BackReference(const Instruction& instruction, Thread& thread);
  void Capture(const Instruction& instruction, int position);
  void RaiseBarrier(const Instruction& instruction, const Thread& thread);
  void DropChoices(int barrier);
  void UnwindTo(int size);
  bool LookEnd(const Instruction& instruction, Thread& thread);
  bool Call(const Instruction& instruction, Thread& thread);
  bool Return(const Instruction& instruction, Thread& thread);

  bool IsRemembered(const Instruction& instruction) const {
    return memory_.IsOn() && instruction.memory != kNowhere;
  }
  int Row(const Instruction& instruction, int position) const;
  bool CanComeNext(const CharacterSet* units, bool backward, int position) const {
    if (!units) return true;
    const int at = backward ? position - 1 : position;
    return at >= 0 && at < length_ && units->Contains(text_[static_cast<std::size_t>(at)]);
  }

  /// Takes the fields rather than an entry: copying a newly built entry stalls on its parts.
  void Push(EntryKind kind, int a, int b, int c = 0) {
    if (stack_.capacity() == 0) stack_.reserve(kUsualEntries);
    stack_.push_back({kind, a, b, c});
  }
  static constexpr std::size_t kUsualEntries = 64;  ///< enough for most matches that need any
  void SetGroup(int group, int start, int end);
  void SetRegister(int index, int value);
  void Restore(const Entry& entry);

  const RegexProgram& program_;
  const std::u16string_view text_;
  MatchContext& context_;
  const int length_;
  int scanStart_ = 0;
  std::vector<int> entries_;  ///< of the result, followed by the registers
  std::span<int> bounds_;     ///< of these, the starts and ends of groups
  std::span<int> registers_;
  std::vector<Entry> stack_;
  std::vector<Frame> frames_;
  std::vector<int> savedValues_;
  int frame_ = kNowhere;
  FailureMemory memory_;
  int seen_ = 0;            ///< the furthest index of the text that was looked at, or whether it is the end
  long long work_ = 0;      ///< steps and units so far
  long long nextLook_ = 0;  ///< the work after which to check whether to go on
  MatchOutcome stopped_ = MatchOutcome::NoMatch;
};

}  // namespace quorvantis
