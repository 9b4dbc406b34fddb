// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <filesystem>
#include <memory>
#include <optional>

namespace quorvantis {

/// What the program was asked for when it was started. Paths are full ones, empty when not given.
struct CommandLine {
  std::filesystem::path exam;
  std::filesystem::path applicationFolder;
  QString screenshot;           ///< save a picture of the window to this file and end
  std::optional<int> language;  ///< identifier; the language dialog is not shown then
  bool debug = false;
};

/// Makes the application object that the arguments need: without a window for --help and --version, so that
/// they work where there is no display. The arguments must outlive it.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv);

/// Reads the arguments. Ends the program after --help and --version, and on arguments that make no sense.
CommandLine ParseCommandLine(const QCoreApplication& application);

}  // namespace quorvantis
