// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <vector>

namespace quorvantis {

/// Lets a few jobs be at work at a time; the others wait in the order they came. One that hangs takes one
/// lane and leaves the rest to the others.
class JobQueue {
 public:
  /// Begins the work, which goes on when this has returned, on a lane that is its own until `Leave`.
  using Job = std::function<void(int lane)>;

  /// Lanes have the numbers from 0 on.
  explicit JobQueue(int lanes);

  /// Begins `job`, at once where a lane is free.
  void Add(Job job);

  /// The job on `lane` is done.
  void Leave(int lane);

 private:
  std::vector<int> free_;
  std::deque<Job> waiting_;
};

}  // namespace quorvantis
