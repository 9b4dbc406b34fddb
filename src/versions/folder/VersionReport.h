// SPDX-License-Identifier: MIT
// What a plan of versions says to the teacher, in lines of text.
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"
#include "versions/folder/PlanRecord.h"
#include "versions/plan/CopyingChance.h"
#include "versions/plan/VersionPlan.h"
#include "versions/plan/VersionRequest.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Why a part keeps its place, as one sentence.
std::u16string PinText(const PinnedPart& part, const StringTable& strings);

/// What differs from what was asked for, then what keeps its place, then how much can be copied from a
/// neighbour: first by chance, then for each pair of versions. `exam` is the source.
std::vector<std::u16string> PlanReport(const ExamPaper& exam, const VersionRequest& request,
                                       const VersionPlan& plan, const CopyingChance& chance,
                                       const StringTable& strings);

/// Whether papers have different numbers of pages.
bool DoPapersDiffer(const PlanRecord& record);

/// The bytes of "report.txt": the lines of PlanReport, and whether papers differ.
std::string ReportText(const ExamPaper& exam, const PlanRecord& record, const CopyingChance& chance,
                       const StringTable& strings);

}  // namespace quorvantis
