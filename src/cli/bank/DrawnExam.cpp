// SPDX-License-Identifier: MIT
#include "cli/bank/DrawnExam.h"

#include "bank/taking/BankSources.h"
#include "cli/console/CommandError.h"
#include "editor/WorkCopies.h"
#include "model/ExamFields.h"
#include "taking/CopiedQuestions.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <string>
#include <system_error>
#include <utility>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

WholeQuestion TakeFrom(BankSources& sources, const BankQuestion& question) {
  TakenFromBank taken = sources.Take(question);
  if (taken.whole) return std::move(*taken.whole);
  if (!taken.problem.empty()) throw CommandError(Utf16ToUtf8(taken.problem));
  throw CommandError(question.exam.path.string() + ": has changed meanwhile; draw again");
}

std::u16string TitleFor(const fs::path& target) {
  std::u16string title = PathToText(target.stem()).substr(0, FieldNamed(ExamFieldName::Title).limit);
  if (!title.empty() && IsHighSurrogate(title.back())) title.pop_back();
  return title;
}

}  // namespace

void WriteDrawnExam(BankSession& bank, const std::vector<BankQuestion>& questions, const fs::path& target) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(target, ignored)))
    throw CommandError(target.string() + ": exists already; name a new file for the exam");
  int exams = 0;
  const ExamServices& services = bank.session.services;
  BankSources sources(services, bank.digest, AttachmentWorkRoot(services.applicationFolder),
                      [&exams] { return exams++; });
  std::vector<CopiedQuestion> copied;
  copied.reserve(questions.size());
  for (const BankQuestion& question : questions)
    copied.push_back({static_cast<int>(copied.size()) + 1, TakeFrom(sources, question)});
  if (const auto error = WriteQuestionsFile(services, TitleFor(target), copied, target))
    throw CommandError(target.string() + ": cannot be written: " + error.message());
}

}  // namespace quorvantis::cli
