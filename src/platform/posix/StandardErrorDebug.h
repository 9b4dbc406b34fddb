// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DebugOutput.h"

namespace quorvantis {

/// Debug lines on standard error.
class StandardErrorDebug : public DebugOutput {
 public:
  explicit StandardErrorDebug(bool enabled) : enabled_(enabled) {}

  void Line(std::u16string_view text) override;

 private:
  bool enabled_;
};

/// Whether the environment asks for debug lines: QV_DEBUG=1.
bool DebugAskedFor();

}  // namespace quorvantis
