// SPDX-License-Identifier: MIT
#include "platform/posix/Leftover.h"

#include <csignal>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvantis {

/// All leftovers of the process. The handler may interrupt any line here, and it reads the list without the
/// lock: each step leaves a valid list.
class LeftoverList {
 public:
  void Add(Leftover& leftover) {
    const std::lock_guard guard(lock_);
    leftover.next_ = first_.load();
    first_ = &leftover;
  }

  void Remove(Leftover& leftover) {
    const std::lock_guard guard(lock_);
    std::atomic<Leftover*>* link = &first_;
    while (link->load() != &leftover) link = &link->load()->next_;
    *link = leftover.next_.load();
  }

  template <class Action>
  void ForEach(const Action& action) const {
    for (const Leftover* each = first_; each != nullptr; each = each->next_)
      action(each->path_.c_str(), each->group_);
  }

 private:
  static_assert(std::atomic<Leftover*>::is_always_lock_free);

  std::mutex lock_;
  std::atomic<Leftover*> first_{nullptr};
};

namespace {

constinit LeftoverList leftovers;  // global, because a signal handler can be given nothing

// From here down to the handler: only what is allowed in one, so no memory allocation and no streams.

constexpr int kDeepestFolder = 32;

bool IsDots(const char* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

void RemoveTree(int parent, const char* name, int depth);

void RemoveEntries(int folder, int depth) {
  alignas(dirent64) char entries[4096];
  ssize_t size = 0;
  while ((size = ::getdents64(folder, entries, sizeof entries)) > 0) {
    for (ssize_t at = 0; at < size;) {
      const auto* const entry = reinterpret_cast<const dirent64*>(entries + at);
      if (!IsDots(entry->d_name)) RemoveTree(folder, entry->d_name, depth + 1);
      at += entry->d_reclen;
    }
  }
}

void RemoveTree(int parent, const char* name, int depth) {
  if (::unlinkat(parent, name, 0) == 0 || depth > kDeepestFolder) return;
  const int folder = ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (folder < 0) return;
  ::fchmod(folder, S_IRWXU);
  RemoveEntries(folder, depth);
  ::close(folder);
  ::unlinkat(parent, name, AT_REMOVEDIR);
}

/// Waits a moment for all of them to end. There may be nobody to reap the leader's children.
void KillGroup(pid_t leader) {
  constexpr int kTries = 50;
  constexpr timespec kMillisecond{0, 1'000'000};
  ::kill(-leader, SIGKILL);
  ::kill(leader, SIGKILL);  // it may not lead a group yet
  ::waitpid(leader, nullptr, 0);
  for (int i = 0; i < kTries && ::kill(-leader, 0) == 0; ++i) ::nanosleep(&kMillisecond, nullptr);
}

void EndBySignal(int signal) {
  leftovers.ForEach([](const char* path, pid_t group) {
    if (group != 0)
      KillGroup(group);
    else
      RemoveTree(AT_FDCWD, path, 0);
  });
  std::signal(signal, SIG_DFL);
  ::raise(signal);  // delivered when the handler returns
}

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

sigset_t AllSignals() {
  sigset_t all;
  ::sigemptyset(&all);
  for (const int signal : kSignals) ::sigaddset(&all, signal);
  return all;
}

}  // namespace

SignalsHeld::SignalsHeld() : before_() {
  const sigset_t all = AllSignals();
  ::pthread_sigmask(SIG_BLOCK, &all, &before_);
}

SignalsHeld::~SignalsHeld() {
  ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void RemoveLeftoversOnSignals() {
  struct sigaction action {};
  action.sa_handler = EndBySignal;
  action.sa_flags = SA_RESTART;
  action.sa_mask = AllSignals();
  for (const int signal : kSignals) {
    struct sigaction before {};
    ::sigaction(signal, nullptr, &before);
    if (before.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);
  }
}

Leftover::Leftover(const std::filesystem::path& path) : path_(path.string()) {
  leftovers.Add(*this);
}

Leftover::Leftover(pid_t group) : group_(group) {
  leftovers.Add(*this);
}

Leftover::~Leftover() {
  leftovers.Remove(*this);
}

}  // namespace quorvantis
