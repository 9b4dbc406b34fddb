// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ExamJson.h"
#include "platform/WholeFile.h"

#include <string>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

/// "question-007"
std::string QuestionFolder(int number) {
  const std::string digits = std::to_string(number);
  return "question-" + std::string(3 - digits.size(), '0') + digits;
}

/// Creates a real folder: a link could lead out of the requested folder.
void MakeFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(fs::symlink_status(folder, error))) {
    throw CommandError(folder.string() + ": cannot be made as a folder; choose another target");
  }
}

/// A link in place of the file would lead out of the folder, too.
void CopyInto(const fs::path& folder, const fs::path& file, Files& files) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return;  // an attachment without content
  MakeFolder(folder);
  const fs::path target = folder / file.filename();
  if (fs::is_symlink(fs::symlink_status(target, error))) fs::remove(target, error);
  if (const auto failure = CopyWholeFile(files, file, target))
    throw CommandError(target.string() + ": cannot be written: " + failure.message());
}

void CopyAll(const fs::path& folder, const AttachmentList& names, const AttachmentList& paths, Files& files) {
  for (const AttachedFile& file : AttachedFiles(names, paths)) CopyInto(folder, file.path, files);
}

}  // namespace

void Unpack(Console& console, const CommonOptions& options, const fs::path& exam, const fs::path& folder) {
  ExamSession session(console, options);
  session.Load(exam);
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder, error)) {
    throw CommandError(folder.string() + ": cannot be made as a folder; choose another target");
  }
  CopyAll(folder / "exam", session.exam.examAttachmentNames, session.exam.examAttachmentPaths,
          session.services.files);
  for (int number = 1; number <= session.exam.questionCount; ++number) {
    const ExamQuestion& question = session.exam.Question(number);
    CopyAll(folder / QuestionFolder(number), question.attachmentNames, question.attachmentPaths,
            session.services.files);
  }
  session.RequireUnpacked(exam);
}

}  // namespace quorvantis::cli
