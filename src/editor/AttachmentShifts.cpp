// SPDX-License-Identifier: MIT
#include "editor/AttachmentShifts.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The last slot whose lists an insertion moves.
constexpr int kLastShiftedSlot = 100;

void CopyLists(const ExamQuestion& from, ExamQuestion& to) {
  to.attachmentPaths = from.attachmentPaths;
  to.attachmentNames = from.attachmentNames;
}

/// Empties a slot's entries up to the first one without a path; entries after a gap stay.
void EmptyLists(ExamQuestion& question) {
  const std::size_t count = CountEntries(question.attachmentPaths);
  for (std::size_t i = 0; i < count; ++i) {
    question.attachmentPaths[i].clear();
    question.attachmentNames[i].clear();
  }
}

/// Moves the entries after `index` down by one; entry `last` then becomes `replacement`.
void CloseGap(AttachmentList& list, std::size_t index, std::size_t last, std::u16string replacement) {
  for (std::size_t i = index; i < last; ++i) list[i] = list[i + 1];
  list[last] = std::move(replacement);
}

}  // namespace

std::size_t CountEntries(const AttachmentList& list) {
  const auto firstEmpty = std::ranges::find_if(list, [](const auto& entry) { return entry.empty(); });
  return static_cast<std::size_t>(firstEmpty - list.begin());
}

void RemoveQuestionAttachment(ExamQuestion& question, std::size_t index, std::size_t count) {
  if (index >= count || count > kMaxAttachments) return;
  CloseGap(question.attachmentPaths, index, count - 1, {});
  CloseGap(question.attachmentNames, index, count - 1, {});
}

void RemoveExamAttachment(FrameSetExam& exam, std::size_t index, std::size_t count) {
  if (index >= count || count > kMaxAttachments) return;
  const std::size_t last = count - 1;
  std::u16string nextPath;
  std::u16string nextName;
  if (index != last && count == kMaxAttachments) {
    nextPath = exam.examAttachmentNames[index == 0 ? 1 : 0];  // entry 0 as it is after the shift
    nextName = exam.examAttachmentCopies[0];
    exam.displayNamesAmongPaths.push_back(nextPath);
  } else if (index != last) {
    nextPath = exam.examAttachmentPaths[count];
    nextName = exam.examAttachmentNames[count];
  }
  CloseGap(exam.examAttachmentPaths, index, last, std::move(nextPath));
  CloseGap(exam.examAttachmentNames, index, last, std::move(nextName));
}

void RemoveAttachmentLists(ExamPaper& exam, int n) {
  if (!IsQuestionNumber(n)) return;
  for (int slot = n; slot < kMaxQuestions; ++slot) CopyLists(exam.Question(slot + 1), exam.Question(slot));
  EmptyLists(exam.Question(kMaxQuestions));
}

void ShiftAttachmentLists(ExamPaper& exam, int n) {
  if (!IsQuestionNumber(n)) return;
  for (int slot = kLastShiftedSlot; slot > n; --slot) CopyLists(exam.Question(slot - 1), exam.Question(slot));
  EmptyLists(exam.Question(n));
}

}  // namespace quorvantis
