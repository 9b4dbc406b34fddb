// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <functional>
#include <vector>

namespace quorvantis {

class FrameSetExam;

/// Checks an exam by all rules (check/CheckRules.h). The findings come by question, those of the exam as a
/// whole first, then the worst first; their texts are in the language of the exam's services. Reads the ends
/// of the attached files. `isCancelled`, which may be empty, is polled between rules; then the findings are
/// incomplete.
std::vector<Finding> CheckExam(const FrameSetExam& exam, const std::function<bool()>& isCancelled = {});

/// How many findings are that bad.
int CountOf(const std::vector<Finding>& findings, Severity severity);

}  // namespace quorvantis
