// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The same loss of several questions.
struct NoteGroup {
  std::u16string text;              ///< what is lost
  std::vector<int> questions = {};  ///< ascending; none: it is about the whole
};

/// What is about the whole comes first, then what is told of the first questions.
std::vector<NoteGroup> GroupNotes(const std::vector<ExchangeNote>& notes, const StringTable& strings);

/// "3, 7-9: its files are left out".
std::u16string GroupLine(const NoteGroup& group, const StringTable& strings);

}  // namespace quorvantis
