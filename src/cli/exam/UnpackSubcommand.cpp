// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/form/ExamJson.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "platform/FolderEntries.h"
#include "platform/WholeFile.h"

#include <string>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

struct UnpackRequest {
  fs::path exam;
  fs::path folder;
};

/// "question-007"
std::string QuestionFolder(int number) {
  const std::string digits = std::to_string(number);
  return "question-" + std::string(3 - digits.size(), '0') + digits;
}

void MakeFolder(const fs::path& folder, bool (*isFolder)(const fs::path&)) {
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  if (!isFolder(folder))
    throw CommandError(folder.string() + ": cannot be made as a folder; choose another target");
}

/// The requested folder itself may be a link.
bool IsFolderOrLink(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

/// A link in place of a folder or file could lead out of the requested folder.
void CopyInto(const fs::path& folder, const fs::path& file, Files& files) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return;  // an attachment without content
  MakeFolder(folder, IsFolder);
  const fs::path target = folder / file.filename();
  if (IsLink(target)) fs::remove(target, error);
  if (const auto failure = CopyWholeFile(files, file, target))
    throw CommandError(target.string() + ": cannot be written: " + failure.message());
}

void CopyAll(const fs::path& folder, const AttachmentList& names, const AttachmentList& paths, Files& files) {
  for (const ListedFile& file : ListedFiles(names, paths)) CopyInto(folder, file.path, files);
}

void Unpack(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& folder) {
  ExamSession session(console, options);
  session.Load(exam);
  MakeFolder(folder, IsFolderOrLink);
  CopyAll(folder / "exam", session.exam.examAttachmentNames, session.exam.examAttachmentPaths,
          session.services.files);
  for (int number = 1; number <= session.exam.questionCount; ++number) {
    const ExamQuestion& question = session.exam.Question(number);
    CopyAll(folder / QuestionFolder(number), question.attachmentNames, question.attachmentPaths,
            session.services.files);
  }
  session.RequireUnpacked(exam);
}

}  // namespace

void AddUnpack(CLI::App& app, CommandContext& context) {
  CLI::App* unpack = AddCommand(app, context, "unpack", "Copy the attached files of an exam into a folder");
  const auto request = std::make_shared<UnpackRequest>();
  AddPath(*unpack, "EXAM", request->exam, "Exam file (.exm)");
  AddPath(*unpack, "DIR", request->folder, "Target folder; created if missing");
  unpack->footer("Files go to DIR/exam and DIR/question-007.");
  unpack->callback(
      [&context, request] { Unpack(context.console, context.common, request->exam, request->folder); });
}

}  // namespace quorvantis::cli
