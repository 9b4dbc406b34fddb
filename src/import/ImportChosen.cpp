// SPDX-License-Identifier: MIT
// The import of a document by rules that are given, without the dialogs that ask for them.
#include "import/ImportCommand.h"

#include <algorithm>
#include <vector>

namespace quorvantis {

ImportOutcome ImportCommand::ImportChosen(const std::filesystem::path& document, const ImportSettings& rules,
                                          ImportPlace place, std::optional<int> number) {
  Begin();
  isChosen_ = true;
  moveTo_ = number;
  const ImportOutcome outcome = GoToPlace(place) ? ImportDocument(document, rules) : ImportOutcome::Cancelled;
  atWork_.reset();
  return outcome;
}

/// False if the exam was to be saved first and was not.
bool ImportCommand::GoToPlace(ImportPlace place) {
  if (place == ImportPlace::NewExam) return BeginNewExam();
  editor_.questions.StoreCurrentQuestion();
  if (place == ImportPlace::FirstQuestion) editor_.questions.ShowQuestion(1);
  importBase_ = editor_.state.CurrentQuestion();
  if (place == ImportPlace::AfterCurrentQuestion) editor_.questions.GoNext();
  return true;
}

/// A question that says nothing at all, at the end, stays where it is.
void ImportCommand::MoveImported() {
  if (!moveTo_) return;
  const int last = std::min(nextSlot_ - 1, editor_.order.LastQuestion());
  std::vector<int> numbers;
  for (int n = firstSlot_; n <= last; ++n) numbers.push_back(n);
  if (numbers.empty() || !editor_.order.MoveMany(numbers, *moveTo_).IsDone()) return;
  firstSlot_ = *moveTo_;
  nextSlot_ = firstSlot_ + static_cast<int>(numbers.size());
}

/// Whether an answer about pictures or formulas ends the import.
bool ImportCommand::IsGivenUp(ChoiceResult choice) const {
  return choice == ChoiceResult::GiveUp || (isChosen_ && choice == ChoiceResult::None);
}

/// The user has given up: the exam is as it was, whatever the import has done until now.
ImportOutcome ImportCommand::TakeBack() {
  Revert();
  return ImportOutcome::Cancelled;
}

}  // namespace quorvantis
