// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis {

class DatabaseError;
class StringTable;

enum class BankTrouble {
  None,
  Busy,         ///< another program has been writing for too long; later it may work
  NoSpace,      ///< the disk, or what the user may have of it, is full
  NotWritable,  ///< no access, or a disk that can only be read
  NotAnIndex,   ///< the file is a database of something else and was left alone
  Damaged,      ///< opening the index anew will rebuild it
  NoFolder,     ///< what was to be added is no folder that can be read
  Other,
};

/// What went wrong with the bank, as a value: its classes do not throw. The index is as it was before.
struct BankProblem {
  BankTrouble trouble = BankTrouble::None;
  std::filesystem::path file = {};
  std::string detail = {};  ///< of the system, in English

  bool IsAnything() const { return trouble != BankTrouble::None; }
};

BankProblem ProblemOf(const DatabaseError& error, const std::filesystem::path& file);

/// What went wrong and what to do, for the user; empty if there is no problem.
std::u16string ProblemText(const BankProblem& problem, const StringTable& strings);

}  // namespace quorvantis
