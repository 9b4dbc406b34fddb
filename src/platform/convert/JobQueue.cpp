// SPDX-License-Identifier: MIT
#include "platform/convert/JobQueue.h"

#include <utility>

namespace quorvantis {

JobQueue::JobQueue(int lanes) {
  while (lanes > 0) free_.push_back(--lanes);
}

void JobQueue::Add(Job job) {
  if (free_.empty()) return waiting_.push_back(std::move(job));
  const int lane = free_.back();
  free_.pop_back();
  job(lane);
}

void JobQueue::Leave(int lane) {
  if (waiting_.empty()) return free_.push_back(lane);
  const Job next = std::move(waiting_.front());
  waiting_.pop_front();
  next(lane);
}

}  // namespace quorvantis
