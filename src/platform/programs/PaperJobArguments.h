// SPDX-License-Identifier: MIT
// Jobs for the program that makes PDF files, as its arguments.
#pragma once

#include "platform/PaperPrinter.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quorvantis {

/// What the program is started with.
struct PaperOrder {
  std::filesystem::path folder;             ///< for its work files; exists and belongs to it alone
  std::filesystem::path applicationFolder;  ///< it may have languages; empty if there is none
  int languageId;                           ///< of the texts on the pages; 0 for the built-in ones
  std::vector<PaperJob> jobs;
};

std::vector<std::string> PaperArguments(const PaperOrder& order);

/// The order that has these arguments, or nothing.
std::optional<PaperOrder> PaperOrderOf(std::span<const std::string> arguments);

/// What the program writes, a line each: the last job is done; it is still working; why it gave up, which
/// follows the mark.
inline constexpr std::string_view kJobDone = "done";
inline constexpr std::string_view kJobGoesOn = "busy";
inline constexpr std::string_view kJobFailed = "failed ";

}  // namespace quorvantis
