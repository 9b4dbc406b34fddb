// SPDX-License-Identifier: MIT
#include "platform/posix/InterruptWatch.h"

namespace quorvantis {
namespace {

volatile std::sig_atomic_t interrupts = 0;  // global, because a signal handler can be given nothing

void NoteInterrupt(int) {
  interrupts = 1;
}

}  // namespace

InterruptWatch::InterruptWatch() {
  interrupts = 0;
  ::sigaction(SIGINT, nullptr, &before_);
  if (before_.sa_handler == SIG_IGN) return;
  struct sigaction note {};
  note.sa_handler = NoteInterrupt;
  note.sa_flags = SA_RESTART;
  ::sigaction(SIGINT, &note, nullptr);
}

InterruptWatch::~InterruptWatch() {
  ::sigaction(SIGINT, &before_, nullptr);
}

bool InterruptWatch::HasCome() const {
  return interrupts != 0;
}

}  // namespace quorvantis
