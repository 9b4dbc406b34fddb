// SPDX-License-Identifier: MIT
#include "cli/DrawnExam.h"

#include "bank/near/OpenedContent.h"
#include "bank/near/QuestionContentKey.h"
#include "cli/CommandError.h"
#include "editor/WorkCopies.h"
#include "model/ExamFields.h"
#include "taking/CopiedQuestions.h"
#include "taking/OtherExam.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <map>
#include <memory>
#include <string>
#include <system_error>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

/// The exams from which questions are taken. Their attached files are unpacked as long as this lives.
class SourceExams {
 public:
  explicit SourceExams(BankSession& bank)
      : bank_(bank), workRoot_(AttachmentWorkRoot(bank.session.services.applicationFolder)) {}

  WholeQuestion Take(const BankQuestion& question) {
    TakenQuestions taken = Of(question.exam.path).Take({question.number});
    if (!taken.problem.empty()) throw CommandError(Utf16ToUtf8(taken.problem));
    const QuestionContent now = OpenedContent(taken.questions.front().question, bank_.digest);
    if (QuestionContentKey(now, bank_.digest) != question.key)
      throw CommandError(question.exam.path.string() + ": has changed meanwhile; draw again");
    return std::move(taken.questions.front());
  }

 private:
  const OtherExam& Of(const fs::path& exam) {
    std::unique_ptr<OtherExam>& open = exams_[exam];
    if (!open)
      open = std::make_unique<OtherExam>(bank_.session.services, workRoot_, exam,
                                         static_cast<int>(exams_.size()));
    return *open;
  }

  BankSession& bank_;
  fs::path workRoot_;
  std::map<fs::path, std::unique_ptr<OtherExam>> exams_;
};

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
  SourceExams sources(bank);
  std::vector<CopiedQuestion> copied;
  copied.reserve(questions.size());
  for (const BankQuestion& question : questions)
    copied.push_back({static_cast<int>(copied.size()) + 1, sources.Take(question)});
  if (const auto error = WriteQuestionsFile(bank.session.services, TitleFor(target), copied, target))
    throw CommandError(target.string() + ": cannot be written: " + error.message());
}

}  // namespace quorvantis::cli
