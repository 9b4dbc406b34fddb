// SPDX-License-Identifier: MIT
#include "bank/taking/BankSources.h"

#include "bank/near/OpenedContent.h"
#include "bank/near/QuestionContentKey.h"
#include "bank/taking/StillAsShown.h"
#include "taking/OtherExam.h"

#include <utility>

namespace quorvantis {
namespace {

/// The key tells of the files and the answers, but not of punctuation.
bool IsAsShown(const ExamQuestion& now, const BankQuestion& question, const FileDigest& digest) {
  return IsStillSo(now, question) && QuestionContentKey(OpenedContent(now, digest), digest) == question.key;
}

}  // namespace

BankSources::BankSources(const ExamServices& services, const FileDigest& digest,
                         std::filesystem::path workRoot, std::function<int()> takeNumber)
    : services_(services),
      digest_(digest),
      workRoot_(std::move(workRoot)),
      takeNumber_(std::move(takeNumber)) {}

BankSources::~BankSources() = default;

TakenFromBank BankSources::Take(const BankQuestion& question) {
  TakenQuestions taken = Of(question.exam.path).Take({question.number});
  if (!taken.problem.empty()) return {std::nullopt, std::move(taken.problem)};
  if (!IsAsShown(taken.questions.front().question, question, digest_)) return {};
  return {std::move(taken.questions.front())};
}

const OtherExam& BankSources::Of(const std::filesystem::path& exam) {
  std::unique_ptr<OtherExam>& open = exams_[exam];
  if (!open) open = std::make_unique<OtherExam>(services_, workRoot_, exam, takeNumber_());
  return *open;
}

}  // namespace quorvantis
