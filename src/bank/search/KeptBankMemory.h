// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankMemory.h"

#include <functional>
#include <memory>
#include <mutex>

namespace quorvantis {

/// A memory of the bank that several threads share. It is made when it is first asked for, and made again
/// when the index holds other questions.
class KeptBankMemory {
 public:
  /// Null if `isCancelled`, which is polled, has said so. Waits while another thread makes the memory.
  std::shared_ptr<const BankMemory> For(BankIndex& index, const std::function<bool()>& isCancelled);

  /// Gives the room back, unless the memory is just being made.
  void Forget();

 private:
  std::timed_mutex making_;
  std::shared_ptr<const BankMemory> memory_;  ///< guarded by making_
};

}  // namespace quorvantis
