// SPDX-License-Identifier: MIT
#include "cli/bank/BankSession.h"

#include "bank/index/IndexedExam.h"
#include "cli/console/CommandError.h"
#include "cli/console/WhyUnreadable.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <string>

namespace quorvantis::cli {
namespace fs = std::filesystem;

BankSession::BankSession(Console& console, const CommonOptions& options, const fs::path& file)
    : session(console, options), index(OpenIndex(file)) {}

BankIndex BankSession::OpenIndex(const fs::path& file) {
  const BankPlace place = file.empty() ? UsualBankPlace() : BankPlaceAt(fs::absolute(file));
  BankProblem problem;
  auto opened = BankIndex::Open(place, session.services.files, problem);
  if (!opened) Require(problem);
  const StringTable& strings = session.services.strings;
  switch (opened->Found()) {
    case IndexFound::Whole:
    case IndexFound::Missing:
      break;
    case IndexFound::Older:
      session.console.Complain(Utf16ToUtf8(strings.Text(text_id::kBankOlder)));
      break;
    case IndexFound::Newer:
      session.console.Complain(Utf16ToUtf8(strings.Text(text_id::kBankNewer)));
      break;
    case IndexFound::Damaged:
      session.console.Complain(
          Utf16ToUtf8(FillMessage(strings.Text(text_id::kBankDamaged), {PathToText(place.index)})));
      break;
  }
  return std::move(*opened);
}

void BankSession::Require(const BankProblem& problem) const {
  if (problem.IsAnything()) throw CommandError(Utf16ToUtf8(ProblemText(problem, session.services.strings)));
}

void BankSession::Update() {
  BankUpdate update(index, session.services, digest);
  update.Run();
  const BankUpdateReport& report = update.Report();
  for (const fs::path& folder : report.unreadableFolders)
    session.console.Complain(Utf16ToUtf8(
        FillMessage(session.services.strings.Text(text_id::kBankFolderGone), {PathToText(folder)})));
  session.console.Tell(std::to_string(report.examsFound) + (report.examsFound == 1 ? " exam; " : " exams; ") +
                       std::to_string(report.added) + " added, " + std::to_string(report.changed) +
                       " changed, " + std::to_string(report.removed) + " removed");
  Require(report.problem);
}

std::vector<QuestionContent> BankSession::ContentsOf(const fs::path& file) {
  IndexedExam exam(session.services, digest);
  exam.Read(file);
  if (exam.State() == ExamState::Unreadable)
    throw CommandError(file.string() + ": cannot be opened. " + WhyUnreadable(file));
  if (exam.State() == ExamState::NoExam) throw CommandError(file.string() + ": is not an exam");
  std::vector<QuestionContent> contents;
  contents.reserve(static_cast<std::size_t>(exam.QuestionCount()));
  for (int number = 1; number <= exam.QuestionCount(); ++number)
    contents.push_back(IndexedContent(exam.Question(number), exam.Files(number)));
  return contents;
}

}  // namespace quorvantis::cli
