// SPDX-License-Identifier: MIT
// pdf and key: what is printed of an exam beside its pages.
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/form/KindNames.h"
#include "cli/options/CommandOptions.h"
#include "cli/options/SheetChoice.h"
#include "cli/session/ExamSession.h"
#include "platform/PageStore.h"
#include "platform/programs/PdfProgram.h"
#include "render/sheets/KeyTable.h"
#include "render/sheets/SheetPages.h"
#include "shell/language/LanguageId.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

struct PdfRequest {
  fs::path exam;
  fs::path target;
  SheetChoice sheet;
};

struct KeyRequest {
  fs::path exam;
  bool csv = false;
};

/// A key in one line between tabs.
std::string InOneLine(const std::u16string& key) {
  std::u16string line = WithLineEnds(key, u" ");
  std::ranges::replace(line, u'\t', u' ');
  return Utf16ToUtf8(line);
}

void MakePdf(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& target,
             const SheetChoice& choice) {
  RefuseToOverwrite(exam, target);
  ExamSession session(console, options);
  session.Load(exam);  // tells what is missing from it
  PaperJob job{exam, target, choice.sheet.value_or(Sheet::Paper)};
  job.largePrint = choice.largePrint;
  PdfProgram program(PdfProgram::Find(), options.language.value_or(0), options.appFolder);
  if (const auto problem = program.Print({&job, 1}, session.services.progress)) throw CommandError(*problem);
}

void PrintKey(Console& console, const CommonOptions& options, const fs::path& exam, bool asCsv) {
  ExamSession session(console, options);
  session.Load(exam);
  session.exam.CountQuestions();
  const std::vector<KeyRow> rows = KeyTable(session.exam);
  if (asCsv) {
    console.out << KeyCsv(rows);
    return;
  }
  for (const KeyRow& row : rows) {
    console.out << row.number << "\t" << KindName(row.kind) << "\t" << InOneLine(row.key) << "\t"
                << (row.score ? Utf16ToUtf8(ShortScore(*row.score)) : std::string()) << "\n";
  }
}

}  // namespace

void AddPdf(CLI::App& app, CommandContext& context) {
  CLI::App* pdf = AddCommand(app, context, "pdf", "Make a PDF file of an exam: paper, key or answer sheet");
  const auto request = std::make_shared<PdfRequest>();
  AddPath(*pdf, "EXAM", request->exam, "Exam file (.exm)");
  AddPath(*pdf, "OUT", request->target, "PDF file to write");
  AddSheetChoice(*pdf, request->sheet, nullptr);
  pdf->footer("Without a choice, the paper. Needs the program quorvantis-pdf, which comes with the window.");
  pdf->callback([&context, request] {
    MakePdf(context.console, context.common, request->exam, request->target, request->sheet);
  });
}

void AddKey(CLI::App& app, CommandContext& context) {
  CLI::App* key = AddCommand(app, context, "key", "Print the right answers of an exam");
  const auto request = std::make_shared<KeyRequest>();
  AddPath(*key, "EXAM", request->exam, "Exam file (.exm)");
  key->add_flag("--csv", request->csv, "Print a table for spreadsheets");
  key->footer("A line for each question: number, kind, key and score, with tabs between them.");
  key->callback(
      [&context, request] { PrintKey(context.console, context.common, request->exam, request->csv); });
}

}  // namespace quorvantis::cli
