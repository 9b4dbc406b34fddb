// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <vector>

namespace quorvantis {

/// Runs a few jobs at a time; the others wait in the order they arrived. A job that hangs blocks its own lane
/// and no other.
class JobQueue {
 public:
  /// Starts the work, which continues after this returns. The job owns its lane until `Leave`.
  using Job = std::function<void(int lane)>;

  /// Lanes are numbered from 0.
  explicit JobQueue(int lanes);

  /// Starts `job`, at once if a lane is free.
  void Add(Job job);

  /// The job on `lane` is done.
  void Leave(int lane);

 private:
  std::vector<int> free_;
  std::deque<Job> waiting_;
};

}  // namespace quorvantis
