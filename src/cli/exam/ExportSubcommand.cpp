// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "platform/StringTable.h"
#include "platform/texts/ProgramTexts.h"
#include "shell/commands/ExportCommand.h"
#include "text/PathText.h"
#include "text/Utf.h"

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

struct ExportRequest {
  fs::path exam;
  fs::path target;
};

WordFormat FormatNamed(const fs::path& target) {
  const std::u16string extension = ExtensionOrPath(PathToText(target.extension()));
  if (extension == u"doc") return WordFormat::Doc;
  if (extension == u"docx") return WordFormat::Docx;
  if (extension == u"pdf") return WordFormat::Pdf;
  throw CommandError(target.string() + ": is no name of a document; let it end in .doc, .docx or .pdf");
}

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

}  // namespace

void AddExport(CLI::App& app, CommandContext& context) {
  CLI::App* command = AddCommand(app, context, "export", "Write an exam as a word-processor document");
  const auto request = std::make_shared<ExportRequest>();
  AddPath(*command, "EXAM", request->exam, "Exam file (.exm)");
  AddPath(*command, "OUT", request->target, "Document to write: .doc, .docx or .pdf");
  command->footer(
      "The document has the title, the scores, and the questions with their options and typed answers.\n"
      "Requires LibreOffice.");
  command->callback(
      [&context, request] { Export(context.console, context.common, request->exam, request->target); });
}

}  // namespace quorvantis::cli
