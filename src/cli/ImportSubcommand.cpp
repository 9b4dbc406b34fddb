// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/EditSession.h"
#include "cli/InputFile.h"
#include "cli/LossMessages.h"
#include "cli/StudiedPaper.h"
#include "examfile/ExamFileWriter.h"
#include "import/ImportReport.h"
#include "import/RecognisedShare.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/TextNumbers.h"
#include "platform/WholeFile.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <ostream>
#include <utility>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

void WriteText(const fs::path& file, std::u16string_view text, PosixFiles& files) {
  if (file.empty()) return;
  if (const auto error = SaveWholeFile(files, file, Utf16ToUtf8(text))) {
    throw CommandError(file.string() + ": cannot be written: " + error.message());
  }
}

ImportAnswers Answers(const ImportRequest& request) {
  ImportAnswers answers;
  answers.document = fs::absolute(request.document);
  answers.repository = Utf8ToUtf16(request.repository);
  answers.target = ImportTarget::Continue;
  answers.pictures = ChoiceNamed(request.pictures);
  answers.formulas = ChoiceNamed(request.formulas);
  return answers;
}

/// The exam to continue is in the session.
void OpenTarget(EditSession& session, const ImportRequest& request, ImportAnswers answers) {
  session.ImportAnswers().Prepare(std::move(answers));
  if (request.into.empty()) return;
  const int errors = session.Dialogs().ErrorCount();
  OpenInput(request.into);  // fails with one line
  session.OpenExam(fs::absolute(request.into));
  if (session.Dialogs().ErrorCount() > errors)
    throw CommandError(request.into.string() + ": was not changed");
}

/// Even if the import fails: that is when the texts are needed most.
void WriteTexts(const ImportRequest& request, const ImportReport& report) {
  if (!report.content) return;
  PosixFiles files;
  WriteText(request.textFile, report.content->text, files);
  WriteText(request.markedFile, report.marked.text, files);
}

/// Imports; throws if nothing was imported.
ImportReport RunImport(EditSession& session, const ImportRequest& request) {
  ImportAnswers answers = Answers(request);
  std::u16string studied;  // the text that marks refer to
  if (request.learns) {
    const PaperStudy study = LearnPaper(session.Session(), request.document, request.marks);
    answers.rules = study.Rules();
    studied = study.StudiedPaper().source.characters;
  }
  OpenTarget(session, request, std::move(answers));
  if (request.into.empty())
    session.Import().ImportQuestions();
  else
    session.Import().ImportQuestionsAfter(request.after);
  ImportReport report = session.ImportAnswers().Report();
  if (report.content && request.learns) report.content->text = std::move(studied);
  WriteTexts(request, report);
  session.ImportAnswers().ThrowIfRefused();
  if (!report.imported)
    throw CommandError(request.target.string() + ": was not written, because the import was given up");
  if (request.mendLineEnds) {
    session.Import().MendLineEnds();
    report.loneLineEnds = 0;
  }
  return report;
}

}  // namespace

void Import(Console& console, const CommonOptions& options, const ImportRequest& request) {
  RefuseSameTarget({request.target, request.markedFile, request.textFile});
  for (const fs::path& target : {request.target, request.markedFile, request.textFile}) {
    RefuseToOverwrite(request.document, target);
    RefuseToOverwrite(request.rules, target);
    RefuseToOverwrite(request.marks, target);
  }
  EditSession session(console, options, request.rules);
  const ImportReport report = RunImport(session, request);
  FrameSetExam exam = session.Editor().state.document;
  exam.Services().longAnswerFlags.SetWhereNeeded(exam);
  if (const auto error = ExamFileWriter(exam, exam.Services()).Write(request.target)) {
    throw CommandError(request.target.string() + ": cannot be written: " + error.message());
  }
  TellSavingLosses(console, request.target, exam);
  for (const std::u16string& line : ImportSummary(report, session.Texts()))
    console.out << Utf16ToUtf8(line) << '\n';
  if (RecognisesLittle(report)) {
    const std::u16string paper = PathToText(request.document);
    console.out << Utf16ToUtf8(FillMessage(session.Texts().Text(text_id::kLearnOnCommandLine), {paper}))
                << '\n';
  }
}

}  // namespace quorvantis::cli
