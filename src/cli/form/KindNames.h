// SPDX-License-Identifier: MIT
// The kinds of questions as users of the command line write them.
#pragma once

#include "model/QuestionKinds.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis::cli {

/// The name of a kind in JSON; for an unknown kind its number.
std::string KindName(QuestionKind kind);

/// The reverse; nothing if the text is neither.
std::optional<QuestionKind> KindNamed(std::string_view name);

/// "Choice, FillIn, Essay or Oral".
std::string KindNameList();

/// The kind that a script means by "fillin".
std::optional<QuestionKind> KindOfWord(std::string_view word);

/// "choice|fillin|essay|oral"; lasts for the run.
std::string_view KindWords();

}  // namespace quorvantis::cli
