// SPDX-License-Identifier: MIT
#pragma once

#include "import/keys/BracketedKey.h"
#include "text/TextSpan.h"

#include <string_view>

namespace quorvantis {

/// Whether brackets in a question stand where pupils write the answer, as "It is ( B )." and "Who? (B)" do;
/// "vitamin (C)" may be a name. False if it is not sure.
bool StandsAsBlank(std::u16string_view text, TextSpan stem, const BracketedText& pair);

}  // namespace quorvantis
