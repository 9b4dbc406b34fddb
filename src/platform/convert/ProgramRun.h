// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace quorvantis {

/// Another program and what it is told; no shell is in between.
struct ProgramOrder {
  QString program;  ///< full path; empty where the program is not installed
  QStringList arguments;
  std::chrono::milliseconds limit{30'000};
};

/// `succeeded`: the program ended by itself within its time and reported success. `output` is its standard
/// output.
using ProgramDone = std::function<void(bool succeeded, const QByteArray& output)>;

/// Runs a program in the background, at low priority, in a process group of its own, so that its children end
/// with it when its time is over or when `owner` goes. `done` is called once, later, on the thread of
/// `owner`; never after `owner` has gone.
void RunProgram(QObject& owner, const ProgramOrder& order, ProgramDone done);

}  // namespace quorvantis
