// SPDX-License-Identifier: MIT
#pragma once

#include "import/PaperDocuments.h"
#include "model/document/ExamServices.h"
#include "platform/documents/OfficeWordDocuments.h"
#include "platform/documents/OfficeWordWriter.h"
#include "platform/posix/FileRegistry.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/RandomIds.h"
#include "platform/posix/StandardErrorDebug.h"
#include "render/ComposedPages.h"

#include <filesystem>

namespace quorvantis {

/// The services of an exam document on this machine, combined with what the program provides itself.
class ExamHost {
 public:
  /// The program's part. All must outlive the host.
  struct Program {
    const StringTable& strings;
    UserDialogs& dialogs;
    Progress& progress;
    LongAnswerFlags& longAnswerFlags;
  };

  /// `applicationFolder` is a full path, `languageId` that of the language in use.
  ExamHost(const std::filesystem::path& applicationFolder, int languageId, bool debug,
           const Program& program);
  ExamHost(const ExamHost&) = delete;
  ExamHost& operator=(const ExamHost&) = delete;

  ExamServices& Services() { return services_; }
  const ComposedPages& Pages() const { return pages_; }
  /// Reads papers for the Import command.
  WordDocuments& Papers() { return papers_; }
  /// Writes the documents of the Export command.
  WordWriter& Writer() { return writer_; }

 private:
  IconvCodePage codePage_;
  StandardErrorDebug debug_;
  PosixFiles files_;
  RandomIds ids_;
  FileRegistry registry_;
  ComposedPages pages_;
  ExamServices services_;
  OfficeWordDocuments documents_;
  PaperDocuments papers_;
  OfficeWordWriter writer_{files_};
};

}  // namespace quorvantis
