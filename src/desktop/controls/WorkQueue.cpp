// SPDX-License-Identifier: MIT
#include "desktop/controls/WorkQueue.h"

#include <utility>

namespace quorvantis {

WorkQueue::WorkQueue(QObject* parent) : QObject(parent) {
  connect(this, &WorkQueue::Ended, this, &WorkQueue::FinishOne, Qt::QueuedConnection);
}

WorkQueue::~WorkQueue() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  wake_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void WorkQueue::Add(Job job) {
  ++unfinished_;
  {
    const std::lock_guard lock(mutex_);
    jobs_.push_back(std::move(job));
  }
  if (!thread_.joinable()) thread_ = std::thread([this] { Run(); });
  wake_.notify_one();
}

void WorkQueue::Run() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return isEnding_ || !jobs_.empty(); });
    if (jobs_.empty()) return;
    const Job job = std::move(jobs_.front());
    jobs_.pop_front();
    lock.unlock();
    Finish finish = job();
    lock.lock();
    finishes_.push_back(std::move(finish));
    emit Ended();
  }
}

void WorkQueue::FinishOne() {
  Finish finish;
  {
    const std::lock_guard lock(mutex_);
    finish = std::move(finishes_.front());
    finishes_.pop_front();
  }
  --unfinished_;
  if (finish) finish();
}

}  // namespace quorvantis
