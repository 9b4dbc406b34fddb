// SPDX-License-Identifier: MIT
// The number that decides what a command does at random, so that it can be repeated.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>
#include <optional>

namespace quorvantis::cli {

/// Adds --seed. `seed` stays empty without it.
void AddSeedOption(CLI::App& command, std::optional<std::uint64_t>& seed, const char* description);

/// A seed that is easy to read out and to type again: nine digits at most.
std::uint64_t RandomSeed();

}  // namespace quorvantis::cli
