// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <vector>

namespace quorvantis {

class FrameSetExam;
class LongAnswerFlags;

/// Checks an exam by all rules (check/CheckRules.h). The findings come by question, those of the exam as a
/// whole first, then the worst first; their texts are in the language of the exam's services. Reads the ends
/// of the attached files. `flags` are those that a save would use.
std::vector<Finding> CheckExam(const FrameSetExam& exam, const LongAnswerFlags& flags);

/// How many findings are that bad.
int CountOf(const std::vector<Finding>& findings, Severity severity);

}  // namespace quorvantis
