// SPDX-License-Identifier: MIT
#include "desktop/controls/BackgroundRun.h"

#include <utility>

namespace quorvantis {

BackgroundRun::BackgroundRun(QObject* parent) : QObject(parent) {
  connect(this, &BackgroundRun::Ended, this, &BackgroundRun::End, Qt::QueuedConnection);
}

void BackgroundRun::Start(Job job) {
  Drop();
  cancelled_ = std::make_shared<std::atomic_bool>(false);
  thread_ = std::thread([this, job = std::move(job), cancelled = cancelled_, number = ++number_] {
    finish_ = job([cancelled] { return cancelled->load(std::memory_order_relaxed); });
    emit Ended(number);
  });
  emit Changed();
}

void BackgroundRun::Cancel() {
  if (cancelled_) *cancelled_ = true;
}

void BackgroundRun::Drop() {
  Cancel();
  ++number_;
  if (!thread_.joinable()) return;
  thread_.join();
  emit Changed();
}

/// Of a run that was dropped in the meantime, nothing is wanted.
void BackgroundRun::End(int number) {
  if (number != number_) return;
  thread_.join();
  const Finish finish = std::exchange(finish_, nullptr);
  emit Changed();
  finish();
}

}  // namespace quorvantis
