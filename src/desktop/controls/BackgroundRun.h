// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

namespace quorvantis {

/// Works beside a window, on a thread of its own, so that what takes long stops nothing. There is one run at
/// a time.
class BackgroundRun : public QObject {
  Q_OBJECT

 public:
  /// Polled by a job; true once it is to end.
  using Cancelled = std::function<bool()>;
  /// What to do in the window's thread once the job has ended.
  using Finish = std::function<void()>;
  /// The work. It runs on the other thread, so everything it uses must be its own, and it must end within
  /// milliseconds once it is cancelled.
  using Job = std::function<Finish(const Cancelled&)>;

  explicit BackgroundRun(QObject* parent);
  ~BackgroundRun() override { Drop(); }

  /// Starts a run. An earlier one that has not ended is cancelled, and never finishes.
  void Start(Job job);

  /// Ends the run, which then finishes with what it has.
  void Cancel();

  /// Ends the run, which never finishes.
  void Drop();

  bool IsRunning() const { return thread_.joinable(); }

 signals:
  /// A run has begun or ended.
  void Changed();
  /// Comes from the other thread, and is handled here.
  void Ended(int number);

 private:
  void End(int number);

  std::shared_ptr<std::atomic_bool> cancelled_;
  std::thread thread_;
  Finish finish_;   ///< written by the other thread, read once it has ended
  int number_ = 0;  ///< counts the runs
};

}  // namespace quorvantis
