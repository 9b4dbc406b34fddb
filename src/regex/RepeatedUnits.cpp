// SPDX-License-Identifier: MIT
// RegexMatcher: repetitions of one unit, which need one stack entry however many units they take.
#include "regex/RegexMatcher.h"

namespace quorvantis {

bool RegexMatcher::Repeat(const Instruction& instruction, Thread& thread) {
  if (instruction.min > 0) return RepeatExactly(instruction, thread);
  const int start = thread.position;
  if (IsRemembered(instruction) && memory_.HasFailed(Row(instruction, start), start)) return false;
  if (instruction.mode == RepeatMode::Lazy) return RepeatMore(instruction, thread, start, start);
  const int end = Extent(instruction, start);
  if (instruction.mode == RepeatMode::Possessive) return EndRepeat(instruction, thread, start, end);
  return RepeatFewer(instruction, thread, end, start);
}

bool RegexMatcher::RepeatExactly(const Instruction& instruction, Thread& thread) {
  const int step = instruction.backward ? -1 : 1;
  const int start = thread.position;
  const int end = start + step * instruction.min;
  if (end > length_) See(length_);
  if (end < 0 || end > length_) return false;
  for (int at = start; at != end; at += step) {
    See(at);
    if (!CanComeNext(instruction.set, instruction.backward, at)) return false;
  }
  return EndRepeat(instruction, thread, start, end);
}

/// The furthest position that a Repeat at `position` can get to, short of one that is known to have failed:
/// all beyond it have failed with it.
int RegexMatcher::Extent(const Instruction& instruction, int position) {
  const int step = instruction.backward ? -1 : 1;
  const bool stops = IsRemembered(instruction) && instruction.max == kUnlimited;
  int count = 0;
  int end = position;
  if (instruction.endOfUnits && !stops) {
    end = static_cast<int>(instruction.endOfUnits->Find(text_, static_cast<std::size_t>(position)));
    count = end - position;
  }
  while ((instruction.max == kUnlimited || count < instruction.max) &&
         CanComeNext(instruction.set, instruction.backward, end)) {
    if (stops && memory_.HasFailed(instruction.memory, end + step)) break;
    end += step;
    ++count;
  }
  See(end);
  work_ += count;
  return end;
}

/// Goes on with the units from `low` to `to`; the group of a Repeat gets the last one.
bool RegexMatcher::EndRepeat(const Instruction& instruction, Thread& thread, int low, int to) {
  thread.position = to;
  ++thread.place;
  if (instruction.index == kNowhere || low == to) return true;
  const int last = instruction.backward ? to : to - 1;
  SetGroup(instruction.index, last, last + 1);
  return true;
}

/// Greedy: tries the positions from `from` back to `low`.
bool RegexMatcher::RepeatFewer(const Instruction& instruction, Thread& thread, int from, int low) {
  const int step = instruction.backward ? -1 : 1;
  if (instruction.onlyMost && !IsRemembered(instruction))
    return CanComeNext(instruction.first, instruction.backward, from) &&
           EndRepeat(instruction, thread, low, from);
  int to = from;
  while (to != low && !CanComeNext(instruction.first, instruction.backward, to)) to -= step;
  const bool found = to != low || CanComeNext(instruction.first, instruction.backward, to);
  work_ += step > 0 ? from - to : to - from;
  RememberRange(instruction, low, from, found ? to : low - step);
  if (!found) return false;
  if (to != low || IsRemembered(instruction)) Push(EntryKind::FewerUnits, thread.place, low, to);
  return EndRepeat(instruction, thread, low, to);
}

/// Lazy: tries the positions from `from` on; those before it have failed.
bool RegexMatcher::RepeatMore(const Instruction& instruction, Thread& thread, int from, int low) {
  const int step = instruction.backward ? -1 : 1;
  const bool stops = IsRemembered(instruction) && instruction.max == kUnlimited;
  int to = from;
  for (;; to += step, ++work_) {
    if (!stops && instruction.max == kUnlimited) to = SkipTo(instruction, to);
    See(to);
    if (stops && to != low && memory_.HasFailed(instruction.memory, to)) break;
    if (CanComeNext(instruction.first, instruction.backward, to)) {
      Push(EntryKind::MoreUnits, thread.place, low, to);
      return EndRepeat(instruction, thread, low, to);
    }
    if (!CanTakeMore(instruction, low, to)) break;
  }
  RememberRange(instruction, low, to, low - step);
  return false;
}

/// The first position from `position` on at which a lazy Repeat can end, or has to.
int RegexMatcher::SkipTo(const Instruction& instruction, int position) {
  if (!instruction.endOfRepeat) return position;
  const int to = instruction.endOfRepeat->Find(text_, position).value_or(length_);
  work_ += to - position;
  return to;
}

bool RegexMatcher::CanTakeMore(const Instruction& instruction, int low, int position) const {
  const int count = instruction.backward ? low - position : position - low;
  return (instruction.max == kUnlimited || count < instruction.max) &&
         CanComeNext(instruction.set, instruction.backward, position);
}

bool RegexMatcher::ResumeFewer(const Entry& entry, Thread& thread) {
  const Instruction& repeat = program_.code[static_cast<std::size_t>(entry.a)];
  const int next = entry.c - (repeat.backward ? -1 : 1);
  RememberRange(repeat, entry.b, entry.c, next);
  thread.place = entry.a;
  return entry.c != entry.b && RepeatFewer(repeat, thread, next, entry.b);
}

bool RegexMatcher::ResumeMore(const Entry& entry, Thread& thread) {
  const Instruction& repeat = program_.code[static_cast<std::size_t>(entry.a)];
  const int step = repeat.backward ? -1 : 1;
  thread.place = entry.a;
  if (CanTakeMore(repeat, entry.b, entry.c)) return RepeatMore(repeat, thread, entry.c + step, entry.b);
  RememberRange(repeat, entry.b, entry.c, entry.b - step);
  return false;
}

/// Remembers that a Repeat that began at `low` has failed at the positions from `from` back to before `to`.
/// Where the number of units is limited, the others depend on how many came before them.
void RegexMatcher::RememberRange(const Instruction& instruction, int low, int from, int to) {
  if (!IsRemembered(instruction)) return;
  const int step = instruction.backward ? -1 : 1;
  for (int at = from; at != to; at -= step) {
    if (at == low) {
      memory_.Remember(Row(instruction, low), low);
    } else if (instruction.max == kUnlimited) {
      memory_.Remember(instruction.memory, at);
    }
  }
}

}  // namespace quorvantis
