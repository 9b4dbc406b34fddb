// SPDX-License-Identifier: MIT
// RegexMatcher: bodies matched on their own (look-around, atomic groups), and calls of groups.
#include "regex/RegexMatcher.h"

#include <algorithm>

namespace quorvantis {

void RegexMatcher::RaiseBarrier(const Instruction& instruction, const Thread& thread) {
  // The register must be set below the barrier, or dropping the choices would lose its place.
  Push(EntryKind::RestoreRegister, instruction.index,
       registers_[static_cast<std::size_t>(instruction.index)]);
  registers_[static_cast<std::size_t>(instruction.index)] = static_cast<int>(stack_.size());
  Push(EntryKind::Barrier, thread.place, thread.position);
}

/// Removes the barrier and the choices above it, and keeps the values to restore.
void RegexMatcher::DropChoices(int barrier) {
  const auto isChoice = [](const Entry& entry) {
    return entry.kind != EntryKind::RestoreGroup && entry.kind != EntryKind::RestoreRegister &&
           entry.kind != EntryKind::RestoreFrame;
  };
  stack_.erase(std::remove_if(stack_.begin() + barrier, stack_.end(), isChoice), stack_.end());
}

/// Restores everything to when the stack had `size` entries, without trying the open choices.
void RegexMatcher::UnwindTo(int size) {
  while (stack_.size() > static_cast<std::size_t>(size)) {
    const Entry entry = stack_.back();
    stack_.pop_back();
    Restore(entry);
  }
}

bool RegexMatcher::LookEnd(const Instruction& instruction, Thread& thread) {
  const int barrier = registers_[static_cast<std::size_t>(instruction.index)];
  thread = {instruction.target, stack_[static_cast<std::size_t>(barrier)].b};
  if (instruction.target == kNowhere) {
    UnwindTo(barrier);
    return false;
  }
  DropChoices(barrier);
  return true;
}

// --- recursion ---

/// A group that calls itself at the same position would do so forever, so that way fails.
bool RegexMatcher::Call(const Instruction& instruction, Thread& thread) {
  for (int index = frame_; index != kNowhere; index = frames_[static_cast<std::size_t>(index)].caller) {
    const Frame& frame = frames_[static_cast<std::size_t>(index)];
    if (frame.position != thread.position) break;
    if (frame.group == instruction.index) return false;
  }
  Push(EntryKind::RestoreFrame, frame_, static_cast<int>(frames_.size()));
  frames_.push_back({instruction.index, thread.place + 1, thread.position, frame_, savedValues_.size()});
  savedValues_.insert(savedValues_.end(), bounds_.begin(), bounds_.end());
  savedValues_.insert(savedValues_.end(), registers_.begin(), registers_.end());
  frame_ = static_cast<int>(frames_.size()) - 1;
  thread.place = instruction.target;
  return true;
}

/// What groups matched during a call is forgotten when it returns.
bool RegexMatcher::Return(const Instruction& instruction, Thread& thread) {
  ++thread.place;
  if (frame_ == kNowhere || frames_[static_cast<std::size_t>(frame_)].group != instruction.index) return true;
  const Frame frame = frames_[static_cast<std::size_t>(frame_)];
  Push(EntryKind::RestoreFrame, frame_, static_cast<int>(frames_.size()));
  const int* saved = savedValues_.data() + frame.saved;
  for (int group = 0; group < program_.groups; ++group, saved += 2) SetGroup(group, saved[0], saved[1]);
  for (int i = 0; i < static_cast<int>(registers_.size()); ++i) SetRegister(i, *saved++);
  frame_ = frame.caller;
  thread.place = frame.returnPlace;
  return true;
}

}  // namespace quorvantis
