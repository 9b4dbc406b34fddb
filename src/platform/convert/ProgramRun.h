// SPDX-License-Identifier: MIT
#pragma once

#include "platform/programs/TimeLimits.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// How a long-running program reports progress: by output lines that begin with `mark`. A repeated line is no
/// progress.
struct ProgressSigns {
  QByteArray mark;
  std::chrono::milliseconds patience;  ///< the longest time without progress
};

/// A path as an argument.
QString FileArgument(const std::filesystem::path& file);

/// Arguments whose bytes may be those of any path.
QStringList ProgramArguments(const std::vector<std::string>& arguments);

/// A program and its arguments; no shell is involved.
struct ProgramOrder {
  QString program;  ///< full path; empty if the program is not installed
  QStringList arguments;
  std::chrono::milliseconds limit = kLongestLook;
  std::optional<ProgressSigns> progress{};  ///< if given, the output is watched for it and not reported
  QString temporaryFolder{};                ///< for its temporary files; empty for the default
};

/// `succeeded`: the program ended by itself in time and reported success. `output` is its standard output.
using ProgramDone = std::function<void(bool succeeded, const QByteArray& output)>;

/// Runs a program as a ChildProcess in the background of the event loop. It and its children are killed when
/// its time is up or `owner` is destroyed; none of them still runs when `done` is called. That happens once,
/// later, on the thread of `owner`; never after `owner` has been destroyed.
void RunProgram(QObject& owner, const ProgramOrder& order, ProgramDone done);

}  // namespace quorvantis
