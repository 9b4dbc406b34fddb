// SPDX-License-Identifier: MIT
#pragma once

#include "cli/session/ExamSession.h"
#include "learn/PaperStudy.h"

#include <filesystem>

namespace quorvantis::cli {

/// Reads a paper to study it. Throws CommandError if it cannot be read.
Paper ReadPaperFile(ExamSession& session, const std::filesystem::path& paper, bool listLabels);

/// Works out the rules of a paper, with the marks of a file unless that is empty. Tells on standard error
/// what was understood, how sure it is, and what to look at. Throws CommandError if there are no questions.
PaperStudy LearnPaper(ExamSession& session, const std::filesystem::path& paper,
                      const std::filesystem::path& marks);

/// Tells what to look at.
void TellWarnings(ExamSession& session, const PaperStudy& study);

/// Throws CommandError with the reason if the rules could not read the paper.
void RequireReading(ExamSession& session, const std::filesystem::path& paper, const PaperStudy& study);

}  // namespace quorvantis::cli
