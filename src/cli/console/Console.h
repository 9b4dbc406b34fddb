// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace quorvantis::cli {

/// The three streams of a command. Errors and messages are one line each on `err`.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;

  /// Writes "quorvantis-cli: " and the text, with line breaks and other control characters as blanks.
  void Complain(std::string_view text) const;

  /// Writes a line on `err` that is no complaint, likewise.
  void Tell(std::string_view text) const;
};

}  // namespace quorvantis::cli
