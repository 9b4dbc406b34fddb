// SPDX-License-Identifier: MIT
#include "learn/PaperStudy.h"

#include <algorithm>
#include <utility>

namespace quorvantis {

PaperStudy::PaperStudy(Paper paper, CancelHook isCancelled)
    : paper_(std::make_shared<const Paper>(std::move(paper))), isCancelled_(std::move(isCancelled)) {
  now_.roles = {{{0, paper_->source.Size()}, PaperRole::None, -1}};
}

bool PaperStudy::Learn() {
  StudyOutcome outcome = WorkOutRules(*paper_, Marks(), isCancelled_);
  if (outcome.WasCancelled()) return false;
  states_[place_].ownRules.reset();
  states_[place_].number = ++numbers_;
  Take(std::move(outcome));
  return true;
}

void PaperStudy::SetRules(ImportSettings rules) {
  NoteRules(std::move(rules));
  Take(TryRules(*paper_, *State().ownRules, isCancelled_));
}

void PaperStudy::NoteRules(ImportSettings rules, bool goesOn) {
  std::vector<PaperMark> marks = Marks();
  if (goesOn && HasOwnRules() && CanUndo()) --place_;
  Push(std::move(marks), std::move(rules));
}

void PaperStudy::Take(StudyOutcome outcome) {
  now_ = std::move(outcome);
  taken_ = State();
}

void PaperStudy::ReturnToTaken() {
  const auto isTaken = [this](const StudyState& state) { return state.number == taken_.number; };
  const auto found = std::find_if(states_.begin(), states_.end(), isTaken);
  if (found == states_.end()) {
    states_[place_] = taken_;
  } else {
    place_ = static_cast<std::size_t>(found - states_.begin());
  }
}

void PaperStudy::AddMark(PaperMark mark) {
  std::vector<PaperMark> marks = Marks();
  std::erase_if(marks, [&mark](const PaperMark& other) { return other.span.Overlaps(mark.span); });
  marks.push_back(mark);
  Push(std::move(marks));
}

void PaperStudy::RemoveMark(std::size_t index) {
  if (index >= Marks().size()) return;
  std::vector<PaperMark> marks = Marks();
  marks.erase(marks.begin() + static_cast<std::ptrdiff_t>(index));
  Push(std::move(marks));
}

void PaperStudy::Undo() {
  if (CanUndo()) --place_;
}

void PaperStudy::Redo() {
  if (CanRedo()) ++place_;
}

void PaperStudy::Push(std::vector<PaperMark> marks, std::optional<ImportSettings> ownRules) {
  states_.resize(place_ + 1);
  states_.push_back({std::move(marks), std::move(ownRules), ++numbers_});
  ++place_;
}

}  // namespace quorvantis
