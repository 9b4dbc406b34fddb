// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

namespace quorvantis {

class FileDigest;
class PaperPrinter;
class PdfText;
class PlanForm;

/// What making and verifying versions need beside the services of an exam. All must outlive their users.
struct VersionPorts {
  const FileDigest& digest;
  const PlanForm& form;
  PaperPrinter* printer = nullptr;  ///< null if no PDF files are wanted
  PdfText* pdfText = nullptr;       ///< null if there are no PDF files to read
  /// Makes something that, as long as it lives, has a folder with its content removed if a signal ends the
  /// program. May be empty.
  std::function<std::shared_ptr<void>(const std::filesystem::path& folder)> guardFolder = {};
};

}  // namespace quorvantis
