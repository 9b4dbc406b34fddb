// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/index/BankUpdate.h"
#include "cli/ExamSession.h"
#include "platform/digest/OpenSslDigest.h"

#include <filesystem>

namespace quorvantis::cli {

/// The bank while a command runs.
class BankSession {
 public:
  /// `file` is the index; empty for the user's own. Throws CommandError if it cannot be used, and tells when
  /// it is made anew.
  BankSession(Console& console, const CommonOptions& options, const std::filesystem::path& file);

  /// Throws CommandError for a problem.
  void Require(const BankProblem& problem) const;

  /// Brings the index up to date and tells what has changed.
  void Update();

  ExamSession session;
  OpenSslDigest digest;
  BankIndex index;

 private:
  BankIndex OpenIndex(const std::filesystem::path& file);
};

}  // namespace quorvantis::cli
