// SPDX-License-Identifier: MIT
// pdf, key, and the sheets of print.
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/InputFile.h"
#include "cli/KindNames.h"
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

/// A key in one line between tabs.
std::string InOneLine(const std::u16string& key) {
  std::u16string line = WithLineEnds(key, u" ");
  std::ranges::replace(line, u'\t', u' ');
  return Utf16ToUtf8(line);
}

}  // namespace

void PrintSheet(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& folder,
                const SheetChoice& choice) {
  ExamSession::RequireReadable(exam);
  CommonOptions inFolder = options;
  inFolder.appFolder = folder;
  ExamSession session(console, inFolder);
  session.Load(exam);
  session.exam.CountQuestions();
  WriteSheet(session.exam,
             {choice.sheet.value_or(Sheet::Paper), {}, choice.largePrint, IsRightToLeft(session.languageId)});
  session.RequireWrittenPages();
  session.RequireUnpacked(exam);
}

void MakePdf(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& target,
             const SheetChoice& choice) {
  RefuseToOverwrite(exam, target);
  ExamSession session(console, options);
  session.Load(exam);  // tells what is missing from it
  PaperJob job{exam, target, choice.sheet.value_or(Sheet::Paper)};
  job.largePrint = choice.largePrint;
  PdfProgram program(PdfProgram::Find(), options.language.value_or(0));
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

}  // namespace quorvantis::cli
