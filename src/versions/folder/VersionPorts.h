// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

class FileDigest;
class FolderGuard;
class PaperPrinter;
class PdfText;
class PlanForm;

/// What making and verifying versions need beside the services of an exam. All must outlive their users.
struct VersionPorts {
  const FileDigest& digest;
  const PlanForm& form;
  PaperPrinter* printer = nullptr;  ///< null if no PDF files are wanted
  PdfText* pdfText = nullptr;       ///< null if there are no PDF files to read
  FolderGuard* guard = nullptr;     ///< null if nothing must be removed after a sudden end
  std::string program = {};         ///< the version of this program, which tells whose plan can be made again
  int languageId = 0;               ///< of the texts in use
};

}  // namespace quorvantis
