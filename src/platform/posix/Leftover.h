// SPDX-License-Identifier: MIT
// What must not be left behind when a signal ends the process.
#pragma once

#include <atomic>
#include <csignal>
#include <filesystem>
#include <string>
#include <sys/types.h>

namespace quorvantis {

/// From now on the signals of a terminal and of a shutdown (SIGINT, SIGTERM, SIGHUP) remove every leftover
/// before they end the process, with their usual status. Signals that were ignored stay so. Call this once,
/// while the program has one thread.
void RemoveLeftoversOnSignals();

/// Holds those signals back from this thread while something is made and becomes a leftover.
class SignalsHeld {
 public:
  SignalsHeld();
  ~SignalsHeld();
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;

 private:
  sigset_t before_;
};

/// A file, or a folder with its content, that a signal removes as long as this lives; or other programs,
/// which it kills. The newest goes first, so a program is gone before the folder it writes to. Links in
/// folders are removed, not followed. Cannot be copied or moved: the signal handler knows its address.
class Leftover {
 public:
  explicit Leftover(const std::filesystem::path& path);
  /// The process group that a child leads, or is about to lead. The child must not be reaped before this
  /// goes.
  explicit Leftover(pid_t group);
  ~Leftover();
  Leftover(const Leftover&) = delete;
  Leftover& operator=(const Leftover&) = delete;

 private:
  friend class LeftoverList;

  const std::string path_;
  const pid_t group_ = 0;
  std::atomic<Leftover*> next_{nullptr};
};

}  // namespace quorvantis
