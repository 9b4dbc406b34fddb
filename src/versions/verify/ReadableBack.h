// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// Whether a text comes back from a printed page as it was written, so that what does not is a fault: it runs
/// from left to right, is not very long, and has no markup but plain marks of type. Pages hold other texts in
/// pieces whose order, and sometimes whose letters, cannot be told.
bool CanBeReadBack(std::u16string_view markup);

}  // namespace quorvantis
