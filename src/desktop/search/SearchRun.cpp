// SPDX-License-Identifier: MIT
#include "desktop/search/SearchRun.h"

#include <utility>

namespace quorvantis {

void SearchRun::Start(Job job) {
  Drop();
  cancelled_ = std::make_shared<std::atomic_bool>(false);
  thread_ = std::thread([this, job = std::move(job), cancelled = cancelled_, number = ++number_] {
    Finish finish = job([cancelled] { return cancelled->load(std::memory_order_relaxed); });
    QMetaObject::invokeMethod(
        this, [this, number, finish = std::move(finish)] { End(number, finish); }, Qt::QueuedConnection);
  });
  emit Changed();
}

void SearchRun::Cancel() {
  if (cancelled_) *cancelled_ = true;
}

void SearchRun::Drop() {
  Cancel();
  ++number_;
  if (!thread_.joinable()) return;
  thread_.join();
  emit Changed();
}

/// Of a run that was dropped in the meantime, nothing is wanted.
void SearchRun::End(int number, const Finish& finish) {
  if (number != number_) return;
  thread_.join();
  emit Changed();
  finish();
}

}  // namespace quorvantis
