// SPDX-License-Identifier: MIT
// preview and print: the window's commands up to the written pages.
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/JsonNode.h"
#include "cli/Responses.h"
#include "cli/UnseenEditor.h"
#include "model/WorkFolderNames.h"
#include "shell/commands/PreviewCommand.h"
#include "shell/commands/PrintCommand.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

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

}  // namespace

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

void Print(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& folder,
           bool afterPreview) {
  ExamSession::RequireReadable(exam);
  ExamSession session(console, In(folder, options));
  session.Load(exam);
  UnseenEditor editor(session.exam);
  if (afterPreview) PreviewCommand(editor.Editor(), nullptr, session.languageId, CheckPages(session)).Run();
  PrintCommand(editor.Editor(), CheckPages(session)).Run();
  session.RequireUnpacked(exam);
}

}  // namespace quorvantis::cli
