// SPDX-License-Identifier: MIT
#include "cli/papers/StudiedPaper.h"

#include "cli/console/CommandError.h"
#include "cli/console/WhyUnreadable.h"
#include "cli/papers/PaperMarksFile.h"
#include "import/DocumentFailureText.h"
#include "import/PaperFile.h"
#include "learn/LearnedTexts.h"
#include "platform/texts/LearnTexts.h"
#include "text/MessageText.h"
#include "text/Utf.h"

#include <utility>

namespace quorvantis::cli {
namespace {

/// In UTF-16 units: many times what any exam holds. Larger texts would take minutes.
constexpr std::size_t kMostStudied = 3'000'000;

void TellLearned(ExamSession& session, const PaperStudy& study) {
  const StringTable& strings = session.services.strings;
  for (const std::u16string& line : LearnedLines(study.Learned(), strings))
    session.console.Tell(Utf16ToUtf8(line));
  for (const std::size_t index : study.Learned().unfollowed) {
    const PaperMark& mark = study.Marks()[index];
    const std::u16string text(mark.span.Of(study.StudiedPaper().source.characters));
    const std::u16string line =
        FillMessage(strings.Text(text_id::kLearnedMarkUnfollowed), {text, RoleName(mark.role, strings)});
    session.console.Complain(Utf16ToUtf8(line));
  }
}

}  // namespace

Paper ReadPaperFile(ExamSession& session, const std::filesystem::path& paper, bool listLabels) {
  PaperFile opened = OpenPaper(session.papers, paper, {}, listLabels);
  if (opened.result == WordResult::CannotAccess)
    throw CommandError(paper.string() + ": cannot be read. " + WhyUnreadable(paper));
  if (opened.result != WordResult::Done)
    throw CommandError(Utf16ToUtf8(DocumentFailureText(opened.result, paper, session.services.strings)));
  const std::size_t size = opened.paper.source.Size();
  if (size > kMostStudied) {
    throw CommandError(paper.string() + ": has " + std::to_string(size) + " characters; at most " +
                       std::to_string(kMostStudied) + " can be studied. Split it");
  }
  return std::move(opened.paper);
}

PaperStudy LearnPaper(ExamSession& session, const std::filesystem::path& paper,
                      const std::filesystem::path& marks) {
  PaperStudy study(ReadPaperFile(session, paper, true));
  if (!marks.empty()) {
    for (const PaperMark& mark : ReadMarks(marks, study.StudiedPaper())) study.AddMark(mark);
  }
  study.Learn();
  if (study.Reading().paper.questions.empty()) {
    throw CommandError(paper.string() + ": " +
                       Utf16ToUtf8(session.services.strings.Text(text_id::kLearnedNothing)));
  }
  TellLearned(session, study);
  TellWarnings(session, study);
  return study;
}

void TellWarnings(ExamSession& session, const PaperStudy& study) {
  for (const ReadingWarning& warning : study.Warnings())
    session.console.Complain(Utf16ToUtf8(WarningText(warning, session.services.strings)));
}

void RequireReading(ExamSession& session, const std::filesystem::path& paper, const PaperStudy& study) {
  const PaperReading& reading = study.Reading();
  if (!reading.HasFailed()) return;
  const ImportFailure& failure = reading.marked.failure ? *reading.marked.failure : *reading.paper.failure;
  throw CommandError(paper.string() + ": " + Utf16ToUtf8(FailureText(failure, session.services.strings)));
}

}  // namespace quorvantis::cli
