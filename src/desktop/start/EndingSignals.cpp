// SPDX-License-Identifier: MIT
#include "desktop/start/EndingSignals.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quorvantis {
namespace {

std::atomic<int> pipeEnd{-1};  // global, because a signal handler can be given nothing

void TellPipe(int) {
  const int error = errno;
  const char byte = 0;
  if (::write(pipeEnd, &byte, 1) < 0) errno = error;  // the pipe already holds a byte then
}

}  // namespace

EndingSignals::EndingSignals() {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  reading_ = FileDescriptor(ends[0]);
  writing_ = FileDescriptor(ends[1]);
  pipeEnd = ends[1];
  auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
    notifier->setEnabled(false);
    emit Arrived();
  });
  struct sigaction action {};
  action.sa_handler = TellPipe;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    Replaced replaced{signal, {}};
    ::sigaction(signal, nullptr, &replaced.before);
    if (replaced.before.sa_handler == SIG_IGN) continue;
    ::sigaction(signal, &action, nullptr);
    replaced_.push_back(replaced);
  }
}

EndingSignals::~EndingSignals() {
  for (const Replaced& replaced : replaced_) ::sigaction(replaced.signal, &replaced.before, nullptr);
}

}  // namespace quorvantis
