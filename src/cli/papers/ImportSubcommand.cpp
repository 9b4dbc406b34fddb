// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/edit/EditSession.h"
#include "cli/options/CommandOptions.h"
#include "cli/papers/PaperSubcommands.h"
#include "cli/papers/RuleOptions.h"
#include "cli/papers/StudiedPaper.h"
#include "cli/session/LossMessages.h"
#include "examfile/ExamFileWriter.h"
#include "import/ImportReport.h"
#include "import/RecognisedShare.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/WholeFile.h"
#include "platform/texts/ImportTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <ostream>
#include <utility>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

/// The arguments of `import`.
struct ImportRequest {
  std::filesystem::path document;
  std::filesystem::path target;
  std::filesystem::path rules;  ///< "ImportExam.ini"
  std::string repository;       ///< the beginning of its name, or "#" and the number of its section
  std::filesystem::path into;   ///< the exam to continue; empty for a new one
  int after = 0;                ///< the question after which to continue
  std::string pictures;         ///< the answer to a question of the import, empty for none; likewise:
  std::string formulas;
  bool mendLineEnds = false;         ///< whether to give imported texts line ends that pages show whole
  std::filesystem::path markedFile;  ///< for the marked text; empty for none
  std::filesystem::path textFile;    ///< for the document's text
  bool learns = false;               ///< whether to work out the rules from the paper
  std::filesystem::path marks;       ///< what a teacher says of the paper, for that; empty for none
};

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

void AddLearning(CLI::App& command, ImportRequest& request) {
  CLI::Option* rules = AddRulesFile(command, request.rules);
  CLI::Option* name = AddRepositoryName(command, request.repository);
  CLI::Option* learn =
      command.add_flag("--learn", request.learns, "Work out the rules from the paper itself");
  learn->excludes(rules)->excludes(name);
  AddMarks(command, request.marks)->needs(learn);
}

void AddImportOptions(CLI::App& command, ImportRequest& request) {
  const std::vector<std::string> answers{"give-up", "ignore", "force"};
  AddLearning(command, request);
  CLI::Option* into = command.add_option("--into", request.into, "Continue in this exam")->type_name("EXAM");
  CLI::Option* after =
      command.add_option("--after", request.after, "The question after which to continue, from 0")
          ->type_name("N")
          ->check(IsDecimal())
          ->check(CLI::Range(0, kMaxQuestions - 1))
          ->needs(into);
  into->needs(after);
  command.add_option("--answer-pictures", request.pictures, "What to do with pictures in answers")
      ->type_name("X")
      ->check(CLI::IsMember(answers));
  command.add_option("--formulas", request.formulas, "What to do with formulas")
      ->type_name("X")
      ->check(CLI::IsMember(answers));
  command.add_flag("--mend-line-ends", request.mendLineEnds,
                   "End the lines of imported texts with CR LF, which pages show whole");
  command.add_option("--marked", request.markedFile, "Also write the marked text")->type_name("FILE");
  command.add_option("--text", request.textFile, "Also write the document's text")->type_name("FILE");
}

}  // namespace

void AddImport(CLI::App& app, CommandContext& context) {
  // clang-format mistakes a line that begins with "import" for a module import.
  CLI::App* command = AddCommand(app, context, "import", "Make an exam from a question paper, by rules");
  const auto request = std::make_shared<ImportRequest>();
  AddPath(*command, "DOCUMENT", request->document, "Question paper: .doc, .docx, .odt, .rtf, .txt or .md");
  AddPath(*command, "OUT", request->target, "Exam file to write");
  AddImportOptions(*command, *request);
  command->footer(
      "X is give-up, ignore (leave out such questions) or force. Prints what was read, and what was not.\n" +
      MarksHelp());
  command->callback([&context, request] {
    const bool hasRules = request->learns || !request->repository.empty();
    if (!hasRules) throw CLI::RequiredError("--repository or --learn");
    Import(context.console, context.common, *request);
  });
}

}  // namespace quorvantis::cli
