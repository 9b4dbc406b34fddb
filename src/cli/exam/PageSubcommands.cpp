// SPDX-License-Identifier: MIT
// preview and print: the window's commands up to the written pages.
#include "cli/console/CommandError.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/form/JsonNode.h"
#include "cli/form/Responses.h"
#include "cli/options/CommandOptions.h"
#include "cli/options/SheetChoice.h"
#include "cli/session/ExamSession.h"
#include "cli/session/UnseenEditor.h"
#include "model/WorkFolderNames.h"
#include "platform/PageStore.h"
#include "render/sheets/SheetPages.h"
#include "shell/commands/PreviewCommand.h"
#include "shell/commands/PrintCommand.h"
#include "shell/language/LanguageId.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

/// The arguments of `preview`.
struct PreviewRequest {
  std::filesystem::path exam;
  std::filesystem::path folder;                    ///< the application folder
  std::optional<std::string> student;              ///< number of a student, to write that student's pages
  std::optional<std::filesystem::path> responses;  ///< the student's answers
};

/// The arguments of `print`.
struct PrintRequest {
  fs::path exam;
  fs::path folder;  ///< the application folder
  bool afterPreview = false;
  SheetChoice sheet;
};

/// Temporarily changes the current folder: the paths of a student are relative to it.
class CurrentFolder {
 public:
  explicit CurrentFolder(const fs::path& folder) : before_(fs::current_path()) { fs::current_path(folder); }
  ~CurrentFolder() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
  }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

 private:
  fs::path before_;
};

/// `folder` as the application folder, whatever the other options say.
CommonOptions In(const fs::path& folder, CommonOptions options) {
  options.appFolder = folder;
  return options;
}

/// The writers of pages are silent; a command is not. Instead of showing a page, checks all of them.
ShowPage CheckPages(const ExamSession& session) {
  return [&session](const fs::path&) { session.RequireWrittenPages(); };
}

void LiveAsStudent(FrameSetExam& exam, const std::string& student) {
  exam.locationMode = 0;
  exam.hostMode = 1;
  exam.workFolder = Utf8ToUtf16(student);
  exam.pageRenderer.studentIdText = exam.workFolder;
  exam.attachmentPageWriter.studentIdText = exam.workFolder;
  std::error_code error;
  const fs::path folder = StudentPageFolder(exam.workFolder);
  fs::create_directories(folder, error);
  if (error) throw CommandError(folder.string() + ": cannot be made as a folder: " + error.message());
}

void AnswerExam(FrameSetExam& exam, const fs::path& file, const nlohmann::json& responses) {
  try {
    FillResponses(exam, responses);
  } catch (const CommandError& problem) {
    throw CommandError(file.string() + ": " + problem.what());
  }
}

void Preview(Console& console, const CommonOptions& options, const PreviewRequest& request) {
  ExamSession::RequireReadable(request.exam);
  const fs::path exam = fs::absolute(request.exam);  // before the current folder changes
  const nlohmann::json responses =
      request.responses ? ParseJsonFile(*request.responses) : nlohmann::json::object();
  ExamSession session(console, In(request.folder, options));
  std::optional<CurrentFolder> studentSide;
  if (request.student) {
    studentSide.emplace(session.services.applicationFolder);
    LiveAsStudent(session.exam, *request.student);
  }
  session.Load(exam);
  if (request.responses) AnswerExam(session.exam, *request.responses, responses);
  UnseenEditor editor(session.exam);
  PreviewCommand(editor.Editor(), nullptr, session.languageId, CheckPages(session)).Run();
  session.RequireUnpacked(request.exam);
}

void Print(Console& console, const CommonOptions& options, const PrintRequest& request) {
  ExamSession::RequireReadable(request.exam);
  ExamSession session(console, In(request.folder, options));
  session.Load(request.exam);
  UnseenEditor editor(session.exam);
  if (request.afterPreview)
    PreviewCommand(editor.Editor(), nullptr, session.languageId, CheckPages(session)).Run();
  PrintCommand(editor.Editor(), CheckPages(session)).Run();
  session.RequireUnpacked(request.exam);
}

void PrintSheet(Console& console, const CommonOptions& options, const PrintRequest& request) {
  ExamSession::RequireReadable(request.exam);
  ExamSession session(console, In(request.folder, options));
  session.Load(request.exam);
  session.exam.CountQuestions();
  WriteSheet(session.exam, {request.sheet.sheet.value_or(Sheet::Paper),
                            {},
                            request.sheet.largePrint,
                            IsRightToLeft(session.languageId)});
  session.RequireWrittenPages();
  session.RequireUnpacked(request.exam);
}

}  // namespace

void AddPreview(CLI::App& app, CommandContext& context) {
  CLI::App* preview = AddCommand(app, context, "preview", "Write the pages of an exam's preview");
  const auto request = std::make_shared<PreviewRequest>();
  AddPath(*preview, "EXAM", request->exam, "Exam file (.exm)");
  AddPath(*preview, "DIR", request->folder, "Application folder for the pages; created if missing");
  CLI::Option* student = AddText(*preview, "--student", request->student,
                                 "Write the pages of the student with this number instead", "ID");
  context.mayBeEmpty.insert(student);  // empty means number 0
  preview->add_option("--responses", request->responses, "The student's answers (JSON)")->type_name("FILE");
  preview->footer(
      "Pages go to DIR/TEMP/ExamPreview, those of a student to DIR/~BrelmStudent/ID<number>. Responses are\n"
      "{\"resultScore\": 7.5, \"resultPageOption\": 0, \"responses\": [{\"number\": 1, \"text\": \"ac\", "
      "\"value\": 1}]}.");
  preview->callback([&context, request] { Preview(context.console, context.common, *request); });
}

void AddPrint(CLI::App& app, CommandContext& context) {
  CLI::App* print = AddCommand(app, context, "print", "Write the page for printing an exam");
  const auto request = std::make_shared<PrintRequest>();
  AddPath(*print, "EXAM", request->exam, "Exam file (.exm)");
  AddPath(*print, "DIR", request->folder, "Application folder for DIR/exam_Print.htm; created if missing");
  CLI::Option* after = print->add_flag("--after-preview", request->afterPreview,
                                       "Write the preview first, which the print depends on");
  AddSheetChoice(*print, request->sheet, after);
  print->footer(
      "A sheet goes to DIR/exam_Paper.htm, exam_Key.htm, exam_Answers.htm or exam_Solutions.htm instead.");
  print->callback([&context, request] {
    const bool isSheet = request->sheet.sheet || request->sheet.largePrint;
    (isSheet ? PrintSheet : Print)(context.console, context.common, *request);
  });
}

}  // namespace quorvantis::cli
