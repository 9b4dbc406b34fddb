// SPDX-License-Identifier: MIT
#pragma once

#include "versions/plan/VersionPlan.h"
#include "versions/plan/VersionRequest.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A file in a folder of versions.
struct MadeFile {
  std::u16string name;
  std::string digest;  ///< SHA-256 in hexadecimal
  int pages = 0;       ///< of a PDF file; else 0

  bool operator==(const MadeFile&) const = default;
};

/// What "plan.json" says of a folder of versions: by this they can be verified, and made again.
struct PlanRecord {
  std::u16string source;     ///< the path of the exam, seen from the folder
  std::string sourceDigest;  ///< SHA-256 of the exam file
  VersionRequest request;    ///< its names are those of the versions
  VersionPlan plan;
  std::vector<std::string> codes;  ///< by version: what stands on its sheets beside the name
  std::vector<MadeFile> files;     ///< all but the plan itself
  std::string program = {};        ///< the version of the program that has planned; may be empty
  int languageId = 0;              ///< of the report; 0 for the built-in texts

  bool operator==(const PlanRecord&) const = default;
};

/// The form of "plan.json".
class PlanForm {
 public:
  virtual ~PlanForm() = default;

  /// The bytes of the file. They are the same for equal records, and include a digest of themselves.
  virtual std::string Write(const PlanRecord& record) const = 0;

  /// The record in the bytes of a file; nothing if a single one of them has changed since they were written.
  virtual std::optional<PlanRecord> Read(std::string_view bytes) const = 0;
};

}  // namespace quorvantis
