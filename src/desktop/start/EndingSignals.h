// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"

#include <QObject>

#include <csignal>
#include <vector>

namespace quorvantis {

/// Turns the signals of a terminal and of a shutdown (SIGINT, SIGTERM, SIGHUP) into a signal of Qt, so that
/// the program can end properly. Only the first time: a second signal ends the process at once, in case that
/// takes too long. Signals that were ignored stay so. There is one of these at a time.
class EndingSignals : public QObject {
  Q_OBJECT

 public:
  EndingSignals();
  ~EndingSignals() override;

 signals:
  void Arrived();

 private:
  struct Replaced {
    int signal;
    struct sigaction before;
  };

  FileDescriptor reading_;  ///< of the pipe that the handler writes into
  FileDescriptor writing_;
  std::vector<Replaced> replaced_;
};

}  // namespace quorvantis
