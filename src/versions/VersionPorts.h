// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

namespace quorvantis {

class FileDigest;
class PlanForm;

/// What making and verifying versions need beside the services of an exam. All must outlive their users.
struct VersionPorts {
  const FileDigest& digest;
  const PlanForm& form;
  /// Makes something that, as long as it lives, has a folder with its content removed if a signal ends the
  /// program. May be empty.
  std::function<std::shared_ptr<void>(const std::filesystem::path& folder)> guardFolder = {};
};

}  // namespace quorvantis
