// SPDX-License-Identifier: MIT
// The keys of versions as tables for spreadsheets, in bytes of UTF-8. Their headings are the same in every
// language, so that the same versions are the same bytes everywhere.
#pragma once

#include "model/ExamPaper.h"
#include "versions/plan/VersionPlan.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The key of a version, whose counted exam is `exam`: a heading, and for each place the number there, that
/// of the question in the source, kind, key and score, which is empty if there is none.
std::string VersionKeyCsv(const ExamPaper& exam, const PlannedVersion& version);

/// The keys of all versions together: for each question of the source, its place and key in each version.
/// `exams` are the counted versions in the order of the plan.
std::string CombinedKeysCsv(const std::vector<ExamPaper>& exams, const VersionPlan& plan);

}  // namespace quorvantis
