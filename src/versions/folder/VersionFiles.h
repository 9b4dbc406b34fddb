// SPDX-License-Identifier: MIT
// The files in a folder of versions.
#pragma once

#include "platform/Sheet.h"
#include "versions/plan/VersionPlan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

inline constexpr std::u16string_view kPlanFile = u"plan.json";
inline constexpr std::u16string_view kCombinedKeysFile = u"keys.csv";
inline constexpr std::u16string_view kReportFile = u"report.txt";

/// The largest plan or table that is read, in bytes: several times those of 500 questions in 26 versions.
inline constexpr std::size_t kLargestTable = std::size_t{64} * 1024 * 1024;

inline std::u16string ExamFileOf(std::u16string_view version) {
  return std::u16string(version) + u".exm";
}
inline std::u16string KeyFileOf(std::u16string_view version) {
  return std::u16string(version) + u" key.csv";
}

/// What is printed of each version.
inline constexpr Sheet kVersionSheets[] = {Sheet::Paper, Sheet::Solutions, Sheet::Key, Sheet::Answers};

inline std::u16string SheetFileOf(std::u16string_view version, Sheet sheet) {
  const auto file = [version](std::u16string_view what) { return std::u16string(version).append(what); };
  switch (sheet) {
    case Sheet::Paper:
      return file(u" paper.pdf");
    case Sheet::Solutions:
      return file(u" solutions.pdf");
    case Sheet::Key:
      return file(u" key.pdf");
    case Sheet::Answers:
      break;
  }
  return file(u" sheet.pdf");
}

/// All files of these versions but the plan, in the order in which the plan names them.
inline std::vector<std::u16string> FilesOf(const std::vector<PlannedVersion>& versions, bool areThereSheets) {
  std::vector<std::u16string> files;
  files.reserve(versions.size() * (2 + std::size(kVersionSheets)) +
                2);  // with the combined keys and the report
  for (const PlannedVersion& version : versions) files.push_back(ExamFileOf(version.name));
  for (const PlannedVersion& version : versions) files.push_back(KeyFileOf(version.name));
  files.emplace_back(kCombinedKeysFile);
  for (const PlannedVersion& version : versions) {
    if (!areThereSheets) break;
    for (const Sheet sheet : kVersionSheets) files.push_back(SheetFileOf(version.name, sheet));
  }
  files.emplace_back(kReportFile);
  return files;
}

}  // namespace quorvantis
