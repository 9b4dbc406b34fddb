// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The options that the cell of the right ones names.
struct NamedOptions {
  enum class Doubt {
    None,
    Ambiguous,  ///< it could name others as well
    Partly,     ///< it names options that are not there, too
    NotRead,    ///< it names none
  };
  std::vector<bool> rights;
  Doubt doubt = Doubt::None;
};

/// Which options are right, given the texts of all: a cell has letters ("AC", "a, c") or numbers ("1, 3"), or
/// the texts of options. If it could be both, a single letter or number is what it says, and anything longer
/// is the text; but in a table that this program wrote, letters as it writes them are letters.
NamedOptions NamedRights(std::u16string_view cell, const std::vector<std::u16string>& options, bool isOurs);

}  // namespace quorvantis
