// SPDX-License-Identifier: MIT
#include "recovery/RecoveredExam.h"

#include "editor/WorkCopies.h"
#include "examfile/AttachmentName.h"
#include "examfile/SavingLosses.h"
#include "examfile/WorkFolder.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/FolderEntries.h"
#include "platform/SecondNames.h"
#include "platform/WholeFile.h"
#include "recovery/ExamSnapshot.h"
#include "recovery/RecoveryFolder.h"
#include "text/PathText.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kLargestFile = std::size_t{256} * 1024 * 1024;

std::optional<RecoveryFile> ReadRecoveryFile(const fs::path& folder) {
  const auto bytes = ReadWholeFile(RecoveryFilePath(folder), kLargestFile);
  return bytes ? ParseRecoveryFile(*bytes) : std::nullopt;
}

/// Nobody would miss settings alone.
bool HasAnything(const FrameSetExam& exam) {
  return !exam.title.empty() || !exam.examAttachmentPaths[0].empty() ||
         std::ranges::any_of(exam.questions, [](const auto& question) { return HasAnything(question); });
}

std::optional<RecoveryCopy> ReadCopy(const fs::path& folder, ExamServices& services) {
  const auto file = ReadRecoveryFile(folder);
  if (!file) return std::nullopt;
  FrameSetExam exam(services);
  const auto place = ReadSnapshot(file->content, exam);
  if (!place) return std::nullopt;
  return RecoveryCopy{folder,     file->time,         TextToPath(place->fileName),
                      exam.title, exam.questionCount, HasAnything(exam)};
}

bool IsNumber(const std::string& name) {
  return std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

std::vector<fs::path> FoldersOf(const fs::path& root) {
  std::vector<fs::path> folders;
  for (const fs::path& entry : EntriesOf(root)) {
    if (IsFolder(entry) && IsNumber(entry.filename().string())) folders.push_back(entry);
  }
  return folders;
}

/// Makes work copies from the links of a recovery copy, and replaces the old paths by theirs. An old path is
/// never used itself: it may name any file on this machine.
class Attachments {
 public:
  Attachments(FrameSetExam& exam, const fs::path& folder, const RecoveryLinks& links)
      : links_(links),
        withoutContent_(std::exchange(exam.pathsWithoutContent, {})),
        nowWithoutContent_(exam.pathsWithoutContent),
        freeNames_(WorkFolder(exam, exam.Services().applicationFolder)) {
    for (const auto& [path, number] : links) {
      const fs::path copy = freeNames_.PathFor(FileNameOf(path));
      if (LinkOrCopy(RecoveryLinkPath(folder, number), copy)) copies_[path] = PathToText(copy);
    }
  }

  void Restore(std::u16string& path, const std::u16string& name) {
    if (path.empty()) return;
    const auto known = copies_.find(path);
    if (known == copies_.end() && links_.contains(path)) lost.push_back(name);
    const bool hasContent = !withoutContent_.contains(path);
    path = known != copies_.end() ? known->second : PathToText(freeNames_.PathFor(FileNameOf(path)));
    if (!hasContent) nowWithoutContent_.insert(path);
  }

  std::vector<std::u16string> lost;  ///< names of files whose link is missing

 private:
  const RecoveryLinks& links_;
  const std::set<std::u16string> withoutContent_;  ///< old paths
  std::set<std::u16string>& nowWithoutContent_;
  FreeNames freeNames_;
  std::map<std::u16string, std::u16string> copies_;  ///< by their old paths
};

std::vector<std::u16string> RestoreAttachments(FrameSetExam& exam, const fs::path& folder,
                                               const RecoveryLinks& links) {
  PrepareWorkFolder(exam, exam.Services().applicationFolder, {});
  Attachments attachments(exam, folder, links);
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    std::u16string& path = exam.examAttachmentPaths[i];
    if (exam.IsPath(path)) attachments.Restore(path, exam.examAttachmentNames[i]);
    for (int n = 1; n <= kMaxQuestions; ++n) {
      ExamQuestion& question = exam.Question(n);
      attachments.Restore(question.attachmentPaths[i], question.attachmentNames[i]);
    }
  }
  exam.examFilesUnpacked = exam.questionFilesUnpacked = 1;
  RecordCopies(exam);
  return std::move(attachments.lost);
}

}  // namespace

FoundRecoveryCopies FindRecoveryCopies(ExamServices& services) {
  FoundRecoveryCopies found;
  for (const fs::path& folder : FoldersOf(RecoveryRoot(services.applicationFolder))) {
    std::error_code ignored;
    const bool isCopy = fs::exists(fs::symlink_status(RecoveryFilePath(folder), ignored));
    const auto copy = isCopy ? ReadCopy(folder, services) : std::nullopt;
    if (!isCopy || (copy && !copy->hasAnything)) {
      RemoveRecoveryCopy(folder);
    } else if (copy) {
      found.copies.push_back(*copy);
    } else {
      found.damaged.push_back(folder);
    }
  }
  std::ranges::sort(found.copies, std::greater(), &RecoveryCopy::time);
  return found;
}

fs::path SetAside(const fs::path& damaged) {
  for (int number = 0;; ++number) {
    fs::path aside = damaged;
    aside += "-damaged" + (number == 0 ? "" : "-" + std::to_string(number));
    std::error_code error;
    if (fs::exists(fs::symlink_status(aside, error))) continue;
    fs::rename(damaged, aside, error);
    return error ? damaged : aside;
  }
}

std::optional<std::vector<std::u16string>> RestoreExam(const fs::path& copy, ExamEditor& editor) {
  editor.files.EmptyExam();
  FrameSetExam exam = editor.state.document;
  const auto file = ReadRecoveryFile(copy);
  const auto place = file ? ReadSnapshot(file->content, exam) : std::nullopt;
  if (!place) return std::nullopt;
  auto lost = RestoreAttachments(exam, copy, file->links);
  exam.Services().longAnswerFlags.SetWhereNeeded(exam);
  editor.changes.Replace(std::move(exam));
  editor.state.SetFileName(TextToPath(place->fileName));
  editor.questions.ShowQuestion(place->currentQuestion);
  editor.state.MarkModified();
  return lost;
}

}  // namespace quorvantis
