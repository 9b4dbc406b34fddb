// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/index/BankUpdate.h"
#include "cli/session/ExamSession.h"
#include "likeness/QuestionContent.h"
#include "platform/digest/OpenSslDigest.h"

#include <filesystem>
#include <vector>

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

  /// The questions of an exam file, which need not be in the bank. Throws CommandError if there are none to
  /// read.
  std::vector<QuestionContent> ContentsOf(const std::filesystem::path& exam);

  ExamSession session;
  OpenSslDigest digest;
  BankIndex index;

 private:
  BankIndex OpenIndex(const std::filesystem::path& file);
};

}  // namespace quorvantis::cli
