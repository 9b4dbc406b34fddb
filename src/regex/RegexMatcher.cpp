// SPDX-License-Identifier: MIT
#include "regex/RegexMatcher.h"

#include "regex/LetterCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr long long kWorkBetweenLooks = 200'000;        // under a millisecond
constexpr long long kWorkPerUnitBeforeRemembering = 8;  // ordinary matches end before this
constexpr std::size_t kMostEntries = std::size_t{24} * 1024 * 1024;
constexpr std::size_t kMostSavedValues = std::size_t{32} * 1024 * 1024;

bool IsWordUnit(char16_t unit) {
  return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') ||
         unit == u'_';
}

}  // namespace

RegexMatcher::RegexMatcher(const RegexProgram& program, std::u16string_view text, MatchContext& context)
    : program_(program),
      text_(text),
      context_(context),
      length_(static_cast<int>(text.size())),
      entries_(2 * static_cast<std::size_t>(program.groups) + 2 +
               static_cast<std::size_t>(program.registers)),
      bounds_(std::span(entries_).subspan(2, 2 * static_cast<std::size_t>(program.groups))),
      registers_(std::span(entries_).last(static_cast<std::size_t>(program.registers))) {
  entries_[0] = 1;
  entries_[1] = program.groups;
}

MatchResult RegexMatcher::Find(int start) {
  scanStart_ = start;
  FailedStarts* const failed = program_.backward ? nullptr : context_.failedStarts;
  if (failed) failed->BeginSearch(program_.starts ? program_.starts->Reach() : 0);
  const int step = program_.backward ? -1 : 1;
  for (int place = start; place >= 0 && place <= length_; place += step) {
    place = FindStart(place);
    if (place < 0 || place > length_) break;
    seen_ = place;
    const bool matches = RunFrom(place);
    if (stopped_ != MatchOutcome::NoMatch) break;
    if (!matches && failed) failed->Add(place, seen_);
    if (!matches) continue;
    if (failed) failed->Matched(seen_);
    entries_.resize(entries_.size() - registers_.size());
    return MatchResult(std::move(entries_));
  }
  return MatchResult(stopped_);
}

/// The first position from `start` on where a match can begin, by the units near it; outside the text if
/// there is none.
int RegexMatcher::FindStart(int start) const {
  if (program_.onlyAtTextStart && start > 0) return length_ + 1;
  if (program_.starts) return program_.starts->Find(text_, start).value_or(length_ + 1);
  if (!program_.first) return start;
  while (start > 0 && !program_.first->Contains(text_[static_cast<std::size_t>(start) - 1])) --start;
  return start > 0 ? start : -1;
}

bool RegexMatcher::RunFrom(int start) {
  Thread thread{0, start};
  const bool canBegin = TakeUnits(thread);
  See(thread.position);
  if (!canBegin) return false;  // most starts end here
  std::ranges::fill(bounds_, -1);
  stack_.clear();
  frames_.clear();
  savedValues_.clear();
  frame_ = kNowhere;
  bounds_[0] = start;
  for (;;) {
    if (++work_ > nextLook_ && IsStopped()) return false;
    const bool goesOn = Step(thread) && TakeUnits(thread);
    See(thread.position);
    if (goesOn) {
      if (thread.place == kNowhere) return true;
    } else if (!BackTrack(thread)) {
      return false;
    }
  }
}

/// Runs the instructions up to the next one that does more than take a unit.
bool RegexMatcher::TakeUnits(Thread& thread) const {
  if (thread.place == kNowhere) return true;
  for (const Instruction* next = &program_.code[static_cast<std::size_t>(thread.place)];; ++next) {
    if (next->op != Op::Unit && next->op != Op::Set) break;
    const int at = next->backward ? thread.position - 1 : thread.position;
    if (at < 0 || at >= length_) return false;
    const char16_t unit = text_[static_cast<std::size_t>(at)];
    if (next->op == Op::Unit ? unit != next->unit : !next->set->Contains(unit)) return false;
    thread.position += next->backward ? -1 : 1;
    ++thread.place;
  }
  return true;
}

/// Notes that the match has looked at the text up to `position`. The unit there counts, too: an instruction
/// that gets there may look at it.
void RegexMatcher::See(int position) {
  seen_ = std::max(seen_, std::min(position, length_));
}

/// Checks whether the match must end without a result, and turns on the memory of failures when it is time.
bool RegexMatcher::IsStopped() {
  if (context_.isCancelled && context_.isCancelled()) stopped_ = MatchOutcome::Cancelled;
  if (stack_.size() > kMostEntries || savedValues_.size() > kMostSavedValues)
    stopped_ = MatchOutcome::TooLarge;
  const long long ordinary = 10'000 + kWorkPerUnitBeforeRemembering * length_;
  if (!memory_.IsOn() && work_ > ordinary)
    memory_.TurnOn(program_.memoryRows, static_cast<std::size_t>(length_) + 1);
  nextLook_ = work_ + kWorkBetweenLooks;
  if (!memory_.IsOn()) nextLook_ = std::min(nextLook_, ordinary);
  return stopped_ != MatchOutcome::NoMatch;
}

/// Runs one instruction; false if it does not match. Place kNowhere means the end of the program.
bool RegexMatcher::Step(Thread& thread) {
  const Instruction& instruction = program_.code[static_cast<std::size_t>(thread.place)];
  switch (instruction.op) {
    case Op::Unit:
    case Op::Set:
      return TakeUnits(thread);
    case Op::Repeat:
      return Repeat(instruction, thread);
    case Op::Split:
      return Split(instruction, thread);
    case Op::Jump:
      thread.place = instruction.target;
      return true;
    case Op::Assert:
      ++thread.place;
      if (instruction.assertion == AssertionKind::EndOfTextOrLastBreak) See(thread.position + 2);
      return Holds(instruction.assertion, thread.position);
    case Op::MarkPosition:
      SetRegister(instruction.index, thread.position);
      break;
    case Op::Capture:
      Capture(instruction, thread.position);
      break;
    case Op::ExitIfEmpty:
      if (registers_[static_cast<std::size_t>(instruction.index)] != thread.position) break;
      if (instruction.other != kNowhere &&
          registers_[static_cast<std::size_t>(instruction.other)] < instruction.min)
        break;
      thread.place = instruction.target;
      return true;
    case Op::ResetCounter:
      SetRegister(instruction.index, 0);
      break;
    case Op::CountedLoop:
      return CountedLoop(instruction, thread);
    case Op::BackReference:
      return BackReference(instruction, thread);
    case Op::Look:
    case Op::Atomic:
      RaiseBarrier(instruction, thread);
      break;
    case Op::LookEnd:
      return LookEnd(instruction, thread);
    case Op::AtomicEnd:
      DropChoices(registers_[static_cast<std::size_t>(instruction.index)]);
      break;
    case Op::Call:
      return Call(instruction, thread);
    case Op::Return:
      return Return(instruction, thread);
    case Op::IfGroup: {
      const bool tookPart = bounds_[2 * static_cast<std::size_t>(instruction.index) + 1] >= 0;
      thread.place = tookPart ? instruction.target : instruction.other;
      return true;
    }
    case Op::Match:
      bounds_[1] = thread.position;
      if (program_.backward) std::swap(bounds_[0], bounds_[1]);
      thread.place = kNowhere;
      return true;
  }
  ++thread.place;
  return true;
}

// --- units ---

bool RegexMatcher::BackReference(const Instruction& instruction, Thread& thread) {
  const int start = bounds_[2 * static_cast<std::size_t>(instruction.index)];
  const int end = bounds_[2 * static_cast<std::size_t>(instruction.index) + 1];
  const int size = end - start;
  const int at = instruction.backward ? thread.position - size : thread.position;
  if (end >= 0) See(at + size);
  if (end < 0 || at < 0 || at > length_ - size) return false;
  const auto text = [this, size](int from) {
    return text_.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(size));
  };
  const bool same = instruction.ignoreCase ? std::ranges::equal(text(start), text(at), {}, FoldCase, FoldCase)
                                           : text(start) == text(at);
  thread.position = instruction.backward ? at : at + size;
  ++thread.place;
  return same;
}

bool RegexMatcher::Holds(AssertionKind kind, int position) const {
  const auto at = static_cast<std::size_t>(position);
  const auto isBreakBefore = [&] {  // CR, LF and CR LF as one
    return position > 0 && (text_[at - 1] == u'\n' ||
                            (text_[at - 1] == u'\r' && (position == length_ || text_[at] != u'\n')));
  };
  const auto isBreakAfter = [&] {
    return position < length_ &&
           (text_[at] == u'\r' || (text_[at] == u'\n' && (position == 0 || text_[at - 1] != u'\r')));
  };
  const auto isWordBoundary = [&] {
    const bool before = position > 0 && IsWordUnit(text_[at - 1]);
    return before != (position < length_ && IsWordUnit(text_[at]));
  };
  switch (kind) {
    case AssertionKind::StartOfText:
      return position == 0;
    case AssertionKind::EndOfText:
      return position == length_;
    case AssertionKind::EndOfTextOrLastBreak:
      return position == length_ ||
             (isBreakAfter() && (position + 1 == length_ || text_.substr(at) == u"\r\n"));
    case AssertionKind::LineStart:
      return position == 0 || isBreakBefore();
    case AssertionKind::LineEnd:
      return position == length_ || isBreakAfter();
    case AssertionKind::WordBoundary:
      return isWordBoundary();
    case AssertionKind::NoWordBoundary:
      return !isWordBoundary();
    case AssertionKind::PreviousEnd:
      return position == (context_.previousEnd >= 0 ? context_.previousEnd : scanStart_);
  }
  return false;
}

// --- choices ---

/// The row of a choice at `position`: a different one for every set of enclosing loops whose iteration has
/// taken nothing yet, since those must not repeat.
int RegexMatcher::Row(const Instruction& instruction, int position) const {
  int row = 0;
  const int* mark = program_.marks.data() + instruction.firstMark;
  for (int i = 0; i < instruction.markCount; ++i, ++mark) {
    if (registers_[static_cast<std::size_t>(*mark)] == position) row += 1 << i;
  }
  return instruction.memory + row;
}

/// A look at the next unit decides most choices. A loop is remembered even then; otherwise a text without an
/// end for it would be scanned again from every start.
bool RegexMatcher::Split(const Instruction& instruction, Thread& thread) {
  const bool canGo = CanComeNext(instruction.first, instruction.backward, thread.position);
  const bool isChoice = canGo && CanComeNext(instruction.otherFirst, instruction.backward, thread.position);
  if (IsRemembered(instruction) && (isChoice || instruction.isLoop)) {
    const int row = Row(instruction, thread.position);
    if (memory_.HasFailed(row, thread.position)) return false;
    Push(EntryKind::Failure, row, thread.position);
  }
  if (isChoice) Push(EntryKind::Alternative, instruction.other, thread.position);
  thread.place = canGo ? instruction.target : instruction.other;
  return true;
}

bool RegexMatcher::CountedLoop(const Instruction& instruction, Thread& thread) {
  const int count = registers_[static_cast<std::size_t>(instruction.index)];
  const bool mayLeave = count >= instruction.min;
  const bool mayGoOn = instruction.max == kUnlimited || count < instruction.max;
  const bool leavesFirst = mayLeave && (instruction.mode == RepeatMode::Lazy || !mayGoOn);
  if (mayLeave && mayGoOn) {
    if (leavesFirst) {
      Push(EntryKind::NextIteration, thread.place, thread.position);
    } else {
      Push(EntryKind::Alternative, instruction.target, thread.position);
    }
  }
  if (leavesFirst) {
    thread.place = instruction.target;
    return true;
  }
  if (mayGoOn) SetRegister(instruction.index, count + 1);
  ++thread.place;
  return mayGoOn;
}

/// Goes back to the last open choice; false if there is none.
bool RegexMatcher::BackTrack(Thread& thread) {
  while (!stack_.empty()) {
    const Entry entry = stack_.back();
    stack_.pop_back();
    if (Resume(entry, thread)) return true;
  }
  return false;
}

/// Handles an entry taken from the stack; true if the program continues there.
bool RegexMatcher::Resume(const Entry& entry, Thread& thread) {
  switch (entry.kind) {
    case EntryKind::Alternative:
      thread = {entry.a, entry.b};
      return true;
    case EntryKind::FewerUnits:
      return ResumeFewer(entry, thread);
    case EntryKind::MoreUnits:
      return ResumeMore(entry, thread);
    case EntryKind::NextIteration: {
      const int counter = program_.code[static_cast<std::size_t>(entry.a)].index;
      SetRegister(counter, registers_[static_cast<std::size_t>(counter)] + 1);
      thread = {entry.a + 1, entry.b};
      return true;
    }
    case EntryKind::Barrier: {
      const int otherwise = program_.code[static_cast<std::size_t>(entry.a)].other;
      thread = {otherwise, entry.b};
      return otherwise != kNowhere;
    }
    case EntryKind::Failure:
      memory_.Remember(entry.a, entry.b);
      return false;
    case EntryKind::RestoreGroup:
    case EntryKind::RestoreRegister:
    case EntryKind::RestoreFrame:
      Restore(entry);
      return false;
  }
  return false;
}

void RegexMatcher::Restore(const Entry& entry) {
  if (entry.kind == EntryKind::RestoreGroup) {
    bounds_[2 * static_cast<std::size_t>(entry.a)] = entry.b;
    bounds_[2 * static_cast<std::size_t>(entry.a) + 1] = entry.c;
  }
  if (entry.kind == EntryKind::RestoreRegister) registers_[static_cast<std::size_t>(entry.a)] = entry.b;
  if (entry.kind != EntryKind::RestoreFrame) return;
  frame_ = entry.a;
  if (static_cast<std::size_t>(entry.b) < frames_.size()) {
    savedValues_.resize(frames_[static_cast<std::size_t>(entry.b)].saved);
    frames_.resize(static_cast<std::size_t>(entry.b));
  }
}

/// Changes without a choice below them need not be undone.
void RegexMatcher::SetGroup(int group, int start, int end) {
  int& oldStart = bounds_[2 * static_cast<std::size_t>(group)];
  int& oldEnd = bounds_[2 * static_cast<std::size_t>(group) + 1];
  if (!stack_.empty() && (oldStart != start || oldEnd != end))
    Push(EntryKind::RestoreGroup, group, oldStart, oldEnd);
  oldStart = start;
  oldEnd = end;
}

void RegexMatcher::SetRegister(int index, int value) {
  int& current = registers_[static_cast<std::size_t>(index)];
  if (!stack_.empty() && current != value) Push(EntryKind::RestoreRegister, index, current);
  current = value;
}

void RegexMatcher::Capture(const Instruction& instruction, int position) {
  const int begin = registers_[static_cast<std::size_t>(instruction.other)];
  SetGroup(instruction.index, std::min(begin, position), std::max(begin, position));
}

}  // namespace quorvantis
