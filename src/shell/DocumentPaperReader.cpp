// SPDX-License-Identifier: MIT
#include "shell/DocumentPaperReader.h"

#include "editor/ExamFileCommands.h"
#include "editor/WorkCopies.h"
#include "platform/ExamServices.h"

namespace quorvantis {

DocumentPaperReader::DocumentPaperReader(const ExamServices& services, WordReader& documents)
    : text_(services.codePage), word_(documents, AttachmentWorkRoot(services.applicationFolder)) {}

PaperOutcome DocumentPaperReader::Read(const std::filesystem::path& document, const PaperReading& reading) {
  return LowerExtension(document) == u"txt" ? text_.Read(document, reading) : word_.Read(document, reading);
}

}  // namespace quorvantis
