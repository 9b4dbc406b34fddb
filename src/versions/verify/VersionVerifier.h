// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"
#include "versions/folder/PlanRecord.h"
#include "versions/folder/VersionPorts.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// What verifying a folder of versions has found.
struct VerifiedVersions {
  std::vector<std::u16string> faults;  ///< one line each, for the user; empty if everything is right
  std::vector<std::u16string> notes;   ///< what could not be looked at, likewise; no fault
  std::optional<PlanRecord> record;    ///< the plan, if it can be read
  bool isCancelled = false;            ///< the user has cancelled, so not everything was looked at
};

/// Reads a folder of versions again and checks all that can be wrong: that no byte of a file has changed,
/// that each version is exactly the source in the planned order, and that each key is right. It trusts
/// nothing but the exam: keys are worked out anew from what the files hold.
class VersionVerifier {
 public:
  /// `workFolder` is for attached files meanwhile; it is removed at the end. All must outlive this.
  VersionVerifier(const ExamServices& services, std::filesystem::path workFolder, const VersionPorts& ports);
  ~VersionVerifier();
  VersionVerifier(const VersionVerifier&) = delete;
  VersionVerifier& operator=(const VersionVerifier&) = delete;

  /// `source` is the exam of which the versions were made; empty for where the plan says it is.
  VerifiedVersions Verify(const std::filesystem::path& folder, const std::filesystem::path& source) const;

 private:
  const ExamServices& services_;
  std::filesystem::path workFolder_;
  const VersionPorts& ports_;
};

/// What stands on the sheets of a version beside its name, so that sheets of different shuffles cannot be
/// mixed up: 8 hexadecimal digits.
std::string CodeOfVersion(const FileDigest& digest, const std::string& sourceDigest,
                          const VersionRequest& request, std::u16string_view name);

}  // namespace quorvantis
