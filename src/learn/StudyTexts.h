// SPDX-License-Identifier: MIT
// What a study of a paper has found, in words.
#pragma once

#include "learn/PaperStudy.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The questions whose answer is not known.
int QuestionsWithoutKey(const ReadPaper& paper);

/// What must be known before an import, in one line: how many questions there are, how many of them have no
/// answer, and what is left out; or why the paper cannot be read by the rules.
std::u16string StudyHeadline(const PaperStudy& study, const StringTable& strings);

/// What was understood and how sure that is, and the marks that are not followed: one line each.
std::vector<std::u16string> StudyLines(const PaperStudy& study, const StringTable& strings);

/// A part of a paper in one short line.
std::u16string ShortText(const Paper& paper, TextSpan span);

}  // namespace quorvantis
