// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Sheet.h"

#include <CLI/CLI.hpp>

#include <optional>

namespace quorvantis::cli {

/// Which sheet of an exam is wanted.
struct SheetChoice {
  std::optional<Sheet> sheet;
  bool largePrint = false;
};

/// Adds the flags that choose a sheet; at most one of them may be given. None of them goes with `other`,
/// unless that is null.
void AddSheetChoice(CLI::App& command, SheetChoice& choice, CLI::Option* other);

}  // namespace quorvantis::cli
