// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace quorvantis {

/// Where a picture of a document comes from, and how large the document shows it.
struct PicturePlace {
  std::string source;        ///< id of its relation, later the name of its part; empty if there is no file
  std::uint64_t width = 0;   ///< in hundredths of a millimetre
  std::uint64_t height = 0;  ///< 0 if the document does not say
};

}  // namespace quorvantis
