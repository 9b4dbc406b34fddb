// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace quorvantis {

/// Does what may have to wait, such as writing a file that another program holds, on a thread of its own: one
/// job after the other, in their order. None is dropped: who destroys the queue waits until all have run.
class WorkQueue : public QObject {
  Q_OBJECT

 public:
  /// What to do in the window's thread once the job has run. Nothing if the queue is destroyed before.
  using Finish = std::function<void()>;
  /// The work. It runs on the other thread, so everything it uses must be its own or safe to share.
  using Job = std::function<Finish()>;

  explicit WorkQueue(QObject* parent);
  ~WorkQueue() override;

  void Add(Job job);

  /// Whether every job has run and finished.
  bool IsIdle() const { return unfinished_ == 0; }

 signals:
  /// Comes from the other thread, and is handled here.
  void Ended();

 private:
  void Run();
  void FinishOne();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Job> jobs_;
  std::deque<Finish> finishes_;
  bool isEnding_ = false;
  std::size_t unfinished_ = 0;  ///< jobs; of the window's thread alone
  std::thread thread_;          ///< begins with the first job
};

}  // namespace quorvantis
