// SPDX-License-Identifier: MIT
#include "editor/WorkCopies.h"

#include "editor/AttachmentShifts.h"
#include "examfile/WorkFolder.h"
#include "model/WorkFolderNames.h"
#include "model/document/ExamServices.h"
#include "platform/FolderEntries.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr auto kSeparator = static_cast<char16_t>(fs::path::preferred_separator);

/// "photo.jpg" and 3 give "photo~3.jpg"; without a dot the counter goes in front.
std::u16string NumberedName(std::u16string name, int counter) {
  const std::size_t dot = name.rfind(u'.');
  return name.insert(dot == std::u16string::npos ? 0 : dot, u"~" + FormatInteger(counter));
}

/// The folders of a full path as one name: trailing characters that occur in the file name are cut off, which
/// stops at the separator, then separators and colons are removed.
std::u16string SourceFolderKey(const fs::path& source) {
  std::u16string key = PathToText(source);
  const std::u16string name = PathToText(source.filename());
  key.erase(key.find_last_not_of(name) + 1);
  std::erase_if(key, [](char16_t unit) { return unit == kSeparator || unit == u':'; });
  if (key == u"." || key == u"..") key += u'~';  // these would not be folders of their own
  return key;
}

/// The second component of a full path, where the number of a student's folder stands.
std::u16string SecondComponent(std::u16string_view path) {
  const std::size_t first = path.find(kSeparator);
  if (first == std::u16string_view::npos) return {};
  path.remove_prefix(first + 1);
  return std::u16string(path.substr(0, path.find(kSeparator)));
}

/// Deletes the files of a list and empties it up to the first empty entry. Returns the last path deleted.
std::u16string DeleteCopies(AttachmentList& copies) {
  std::u16string last;
  const std::size_t count = CountEntries(copies);
  for (std::size_t i = 0; i < count; ++i) {
    std::error_code ignored;
    const fs::path copy = TextToPath(copies[i]);
    if (!IsFolder(copy)) fs::remove(copy, ignored);
    last = std::exchange(copies[i], {});
  }
  return last;
}

void RememberPaths(const AttachmentList& paths, AttachmentList& copies) {
  std::copy_n(paths.begin(), CountEntries(paths), copies.begin());
}

/// The exam's paths that name a file. Other texts among them are not copies to delete.
AttachmentList PathsOnly(const FrameSetExam& exam) {
  AttachmentList paths;
  std::ranges::copy_if(exam.examAttachmentPaths, paths.begin(),
                       [&exam](const std::u16string& entry) { return exam.IsPath(entry); });
  return paths;
}

/// Creates the folder `name` in `parent`. A link in its place would redirect the copies and is removed.
fs::path MakeOwnFolder(const fs::path& parent, const fs::path& name) {
  const fs::path folder = parent / name;
  std::error_code ignored;
  if (IsLink(folder)) fs::remove(folder, ignored);
  fs::create_directory(folder, ignored);
  return folder;
}

/// The library reports a full disk as any other failure to write.
std::error_code WhyNotCopied(const fs::path& source, const fs::path& copy, std::error_code reported) {
  if (reported != std::errc::io_error) return reported;
  std::error_code error;
  const auto size = fs::file_size(source, error);
  const auto room = error ? fs::space_info{} : fs::space(copy.parent_path(), error);
  return !error && room.available < size ? std::make_error_code(std::errc::no_space_on_device) : reported;
}

void AppendPaths(const AttachmentList& list, std::vector<std::filesystem::path>& files) {
  for (const std::u16string& path : list) {
    if (!path.empty()) files.push_back(TextToPath(path));
  }
}

}  // namespace

fs::path AttachmentWorkRoot(const fs::path& applicationFolder) {
  return applicationFolder / kCopyFolders;
}

void MakeWorkRoot(const fs::path& workRoot) {
  MakeOwnFolder(workRoot.parent_path(), workRoot.filename());
}

std::u16string SourceFolder(const fs::path& source) {
  return FitFileName(SourceFolderKey(source));
}

std::u16string CopyFolder(const fs::path& source, int counter) {
  return FitFileName(NumberedName(PathToText(source.filename()), counter));
}

fs::path MakeWorkCopy(const fs::path& workRoot, const fs::path& source, int counter,
                      std::error_code& failure) {
  MakeWorkRoot(workRoot);
  const fs::path fromFolder = MakeOwnFolder(workRoot, TextToPath(SourceFolder(source)));
  const fs::path copy =
      MakeOwnFolder(fromFolder, TextToPath(CopyFolder(source, counter))) / source.filename();
  std::error_code ignored;
  fs::remove(copy, ignored);
  fs::copy_file(source, copy, failure);
  if (failure) {
    fs::remove(copy, ignored);  // half a file must not pass for a whole one
    failure = WhyNotCopied(source, copy, failure);
  }
  constexpr auto kExecutable = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  fs::permissions(copy, kExecutable, fs::perm_options::remove, ignored);
  fs::permissions(copy, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, ignored);
  return copy;
}

void RecordCopies(FrameSetExam& exam) {
  RememberPaths(PathsOnly(exam), exam.examAttachmentCopies);
  for (int n = 1; n <= kMaxQuestions; ++n) {
    ExamQuestion& question = exam.Question(n);
    RememberPaths(question.attachmentPaths, question.attachmentCopies);
  }
}

void DeleteQuestionCopies(FrameSetExam& exam) {
  std::u16string last;
  for (int n = 1; n <= kMaxQuestions; ++n) {
    const std::u16string deleted = DeleteCopies(exam.Question(n).attachmentCopies);
    if (!deleted.empty()) last = deleted;
  }
  const std::u16string folder = SecondComponent(last);
  if (folder.empty() || folder == u"." || folder == u"..") return;
  RemoveEmptyFolder(exam.Services().applicationFolder / kStudentFolders / TextToPath(folder));
}

void DeleteExamCopies(FrameSetExam& exam) {
  DeleteCopies(exam.examAttachmentCopies);
}

void DeleteUnpackedCopies(FrameSetExam& exam) {
  if (exam.questionFilesUnpacked != 0) DeleteQuestionCopies(exam);
  if (exam.examFilesUnpacked != 0) DeleteExamCopies(exam);
}

std::vector<std::filesystem::path> WorkCopiesOf(const FrameSetExam& exam) {
  std::vector<std::filesystem::path> files;
  for (const std::u16string& entry : exam.examAttachmentPaths) {
    if (!entry.empty() && exam.IsPath(entry)) files.push_back(TextToPath(entry));
  }
  AppendPaths(exam.examAttachmentCopies, files);
  for (const ExamQuestion& question : exam.questions) {
    AppendPaths(question.attachmentPaths, files);
    AppendPaths(question.attachmentCopies, files);
  }
  return files;
}

}  // namespace quorvantis
