// SPDX-License-Identifier: MIT
// Papers that exist in several versions with the questions in different orders, and keys that are for all of
// them: "Version A: 1 B 2 C  Version B: 1 C 2 A".
#pragma once

#include "text/TextSpan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A place that names a version: "Variant 2", "A卷".
struct VersionMark {
  TextSpan place;
  std::u16string name{};  ///< "a", "2"; folded
};

/// All such places within a span, from left to right.
std::vector<VersionMark> VersionMarksIn(std::u16string_view text, TextSpan within);

/// Whether a line has one.
bool HasVersionMark(std::u16string_view line);

/// What of a key is for a paper.
struct VersionChoice {
  TextSpan part{};         ///< of the key
  bool isUnclear = false;  ///< there are several versions, and the paper does not say which one it is
};

/// Chooses the part of `key` that is for the paper, by what stands before its first question, `front`. Where
/// the paper has all these names as titles of its own, `body`, they are parts of it rather than versions.
VersionChoice ChooseVersion(std::u16string_view text, TextSpan front, TextSpan body, TextSpan key);

}  // namespace quorvantis
