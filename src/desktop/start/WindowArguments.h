// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <filesystem>
#include <memory>
#include <optional>

namespace quorvantis {

/// The command-line arguments of the window program. Paths are full ones, or empty.
struct WindowArguments {
  std::filesystem::path exam;
  std::filesystem::path applicationFolder;
  QString screenshot;           ///< save a screenshot of the window to this file and exit
  std::optional<int> language;  ///< identifier; if set, the language dialog is not shown
  bool debug = false;
};

/// Creates the application object for these arguments: without a window for --help and --version, so that
/// they work without a display. The arguments must outlive it.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv);

/// Reads the arguments. Ends the program after --help and --version, and on invalid arguments.
WindowArguments ParseWindowArguments(const QCoreApplication& application);

}  // namespace quorvantis
