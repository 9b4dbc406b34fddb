// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ClassRegistry.h"

namespace quorvantis {

/// A system on which programs do not register components: pages embed what every system of their readers has.
class NoClassRegistry : public ClassRegistry {
 public:
  std::optional<std::filesystem::path> InprocServer(std::u16string_view) const override {
    return std::nullopt;
  }
};

}  // namespace quorvantis
