// SPDX-License-Identifier: MIT
#include "bank/search/KeptBankMemory.h"

#include <chrono>
#include <utility>

namespace quorvantis {

std::shared_ptr<const BankMemory> KeptBankMemory::For(BankIndex& index,
                                                      const std::function<bool()>& isCancelled) {
  constexpr std::chrono::milliseconds kBetweenPolls(10);
  std::unique_lock lock(making_, std::defer_lock);
  while (!lock.try_lock_for(kBetweenPolls)) {
    if (isCancelled()) return nullptr;
  }
  if (memory_ && memory_->IsUpToDate(index)) return memory_;
  memory_.reset();  // never two at a time
  auto made = std::make_shared<const BankMemory>(index, isCancelled);
  if (isCancelled()) return nullptr;
  memory_ = std::move(made);
  return memory_;
}

void KeptBankMemory::Forget() {
  const std::unique_lock lock(making_, std::try_to_lock);
  if (lock.owns_lock()) memory_.reset();
}

}  // namespace quorvantis
