// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/QuestionContent.h"
#include "model/ExamQuestion.h"
#include "platform/FileDigest.h"

namespace quorvantis {

/// The content of a question of an exam whose attached files are unpacked, with its files by digest. Reads
/// these files. One without content, or that cannot be read, counts as an empty file.
QuestionContent OpenedContent(const ExamQuestion& question, const FileDigest& digest);

}  // namespace quorvantis
