// SPDX-License-Identifier: MIT
// How the attachment lists of the document move when an entry is removed, or a question is inserted or
// deleted.
#pragma once

#include "model/document/FrameSetExam.h"

namespace quorvantis {

/// Removes entry `index` of the `count` entries of a question's lists and closes the gap.
void RemoveQuestionAttachment(ExamQuestion& question, std::size_t index, std::size_t count);

/// The same for the exam's lists. When all ten entries are in use the last one does not become empty, on
/// purpose: its path becomes the first display name and its name the first work copy. The exam's lists have
/// always done this at their limit.
void RemoveExamAttachment(FrameSetExam& exam, std::size_t index, std::size_t count);

/// Removes the lists of question n and moves the later ones down; slot 500 becomes empty.
void RemoveAttachmentLists(ExamPaper& exam, int n);

/// Makes room for a question inserted at n: the lists from n on move up, but only as far as slot 100, and not
/// at all for n above 99. The limit is deliberate: existing exams rely on lists from question 100 on keeping
/// their numbers. The lists of slot n become empty.
void ShiftAttachmentLists(ExamPaper& exam, int n);

/// Number of entries before the first empty one.
std::size_t CountEntries(const AttachmentList& list);

}  // namespace quorvantis
