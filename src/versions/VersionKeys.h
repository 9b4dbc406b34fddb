// SPDX-License-Identifier: MIT
// The keys of versions as tables for spreadsheets. Their headings are the same in every language, so that the
// same versions are the same bytes everywhere.
#pragma once

#include "model/ExamPaper.h"
#include "versions/CsvText.h"
#include "versions/VersionPlan.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What a teacher compares an answer with: "AC", "red | blue", or the model answer.
std::u16string KeyText(const ExamQuestion& question);

/// The key of a version, whose exam is `exam`: a heading, and for each place the number there, that of the
/// question in the source, kind, key and score, which is empty if there is none.
std::vector<CsvRow> KeyTableOf(const ExamPaper& exam, const PlannedVersion& version);

/// The keys of all versions together: for each question of the source, its place and key in each version.
/// `exams` are the versions in the order of the plan.
std::vector<CsvRow> CombinedKeys(const std::vector<ExamPaper>& exams, const VersionPlan& plan);

}  // namespace quorvantis
