// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/InputFile.h"
#include "platform/StringTable.h"
#include "platform/TextNumbers.h"
#include "shell/commands/ExportCommand.h"
#include "text/PathText.h"
#include "text/Utf.h"

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

WordFormat FormatNamed(const fs::path& target) {
  const std::u16string extension = ExtensionOrPath(PathToText(target.extension()));
  if (extension == u"doc") return WordFormat::Doc;
  if (extension == u"docx") return WordFormat::Docx;
  if (extension == u"pdf") return WordFormat::Pdf;
  throw CommandError(target.string() + ": is no name of a document; let it end in .doc, .docx or .pdf");
}

}  // namespace

void Export(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& target) {
  const WordFormat format = FormatNamed(target);
  RefuseToOverwrite(exam, target);
  ExamSession session(console, options);
  session.Load(exam);
  if (const auto failure = ExportCommand(session.exam, session.writer, nullptr).Write(target, format)) {
    throw CommandError(Utf16ToUtf8(*failure));
  }
  // The message names the one format that the window writes.
  if (format == WordFormat::Doc) session.dialogs.ShowDone(session.services.strings.Text(text_id::kExported));
}

}  // namespace quorvantis::cli
