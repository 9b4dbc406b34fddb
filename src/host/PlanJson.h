// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileDigest.h"
#include "versions/folder/PlanRecord.h"

namespace quorvantis {

/// "plan.json" of a folder of versions. docs/VERSIONS.md tells what stands in it.
class PlanJson : public PlanForm {
 public:
  /// `digest` must outlive this.
  explicit PlanJson(const FileDigest& digest) : digest_(digest) {}

  std::string Write(const PlanRecord& record) const override;
  std::optional<PlanRecord> Read(std::string_view bytes) const override;

 private:
  const FileDigest& digest_;
};

}  // namespace quorvantis
