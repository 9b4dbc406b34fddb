// SPDX-License-Identifier: MIT
#include "check/ExamCheck.h"

#include "check/CheckRules.h"
#include "model/document/ExamServices.h"

#include <algorithm>
#include <tuple>

namespace quorvantis {

std::vector<Finding> CheckExam(const FrameSetExam& exam, const std::function<bool()>& isCancelled) {
  const CheckedExam checked(exam);
  std::vector<Finding> findings;
  for (const CheckRuleRow& row : CheckRules()) {
    if (isCancelled && isCancelled()) break;
    FindingList list(row, exam.Services().strings, findings);
    row.rule.Check(checked, list);
  }
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    return std::tie(a.place.question, a.severity) < std::tie(b.place.question, b.severity);
  });
  return findings;
}

int CountOf(const std::vector<Finding>& findings, Severity severity) {
  return static_cast<int>(std::count_if(findings.begin(), findings.end(), [severity](const Finding& finding) {
    return finding.severity == severity;
  }));
}

}  // namespace quorvantis
