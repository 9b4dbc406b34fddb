// SPDX-License-Identifier: MIT
#include "desktop/search/SearchRun.h"

#include <utility>

namespace quorvantis {

SearchRun::SearchRun(QObject* parent) : QObject(parent) {
  connect(this, &SearchRun::Ended, this, &SearchRun::End, Qt::QueuedConnection);
}

void SearchRun::Start(Job job) {
  Drop();
  cancelled_ = std::make_shared<std::atomic_bool>(false);
  thread_ = std::thread([this, job = std::move(job), cancelled = cancelled_, number = ++number_] {
    finish_ = job([cancelled] { return cancelled->load(std::memory_order_relaxed); });
    emit Ended(number);
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
void SearchRun::End(int number) {
  if (number != number_) return;
  thread_.join();
  const Finish finish = std::exchange(finish_, nullptr);
  emit Changed();
  finish();
}

}  // namespace quorvantis
