// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>

namespace quorvantis {

/// How a program that works for long reports progress: by lines of its output that begin with
/// `mark` and are never the same twice running.
struct ProgressSigns {
  QByteArray mark;
  std::chrono::milliseconds patience;  ///< the longest time without a sign
};

/// A path as an argument.
QString FileArgument(const std::filesystem::path& file);

/// Another program and what it is told; no shell is in between.
struct ProgramOrder {
  QString program;  ///< full path; empty where the program is not installed
  QStringList arguments;
  std::chrono::milliseconds limit{30'000};
  std::optional<ProgressSigns> progress{};  ///< where given, the output is read for it and not reported
  QString temporaryFolder{};                ///< for its temporary files; empty for the usual one
};

/// `succeeded`: the program ended by itself within its time and reported success. `output` is its standard
/// output.
using ProgramDone = std::function<void(bool succeeded, const QByteArray& output)>;

/// Runs a program as a ChildProcess in the background of the event loop. It and its children end when its
/// time is over or when `owner` goes; nothing of them runs any more when `done` is called. That happens once,
/// later, on the thread of `owner`; never after `owner` has gone.
void RunProgram(QObject& owner, const ProgramOrder& order, ProgramDone done);

}  // namespace quorvantis
