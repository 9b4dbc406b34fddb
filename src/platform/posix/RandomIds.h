// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdSource.h"

namespace quorvantis {

/// Identifiers from the system's random numbers (version 4 of RFC 4122).
class RandomIds : public IdSource {
 public:
  std::u16string NewId() override;
};

}  // namespace quorvantis
