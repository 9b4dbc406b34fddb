// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"
#include "versions/folder/PlanRecord.h"
#include "versions/folder/VersionPorts.h"
#include "versions/plan/CopyingChance.h"
#include "versions/plan/VersionRequest.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

/// What versions to make, of which exam, and where.
struct VersionOrder {
  std::filesystem::path exam;    ///< a full path
  std::filesystem::path folder;  ///< a full path
  VersionRequest request;
  bool replaces = false;  ///< whether versions of the same exam may be replaced that were made there before
};

/// What came of it.
struct MadeVersions {
  std::u16string problem;              ///< for the user; empty if the versions have been made
  bool isCancelled = false;            ///< by the user; then `problem` says so
  std::vector<std::u16string> report;  ///< what the teacher should know: see PlanReport
  PlanRecord record = {};
};

/// Makes versions of an exam: exam files, keys, the plan and a report in one folder. They are verified before
/// the folder gets its name; whatever goes wrong, nothing half-made is left.
class VersionMaker {
 public:
  /// `workFolder` is for attached files meanwhile; it is removed at the end. All must outlive this.
  VersionMaker(const ExamServices& services, std::filesystem::path workFolder, const VersionPorts& ports)
      : services_(services), workFolder_(std::move(workFolder)), ports_(ports) {}

  MadeVersions Make(const VersionOrder& given) const;

 private:
  const ExamServices& services_;
  std::filesystem::path workFolder_;
  const VersionPorts& ports_;
};

}  // namespace quorvantis
