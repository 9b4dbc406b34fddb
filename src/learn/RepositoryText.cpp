// SPDX-License-Identifier: MIT
#include "learn/RepositoryText.h"

namespace quorvantis {

std::u16string RepositorySection(const Repository& /*repository*/, int /*number*/) {
  return {};
}

AddedRepository AddRepository(std::string_view /*file*/, const Repository& /*repository*/,
                              const CodePage& /*codePage*/) {
  return {};
}

}  // namespace quorvantis
