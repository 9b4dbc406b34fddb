// SPDX-License-Identifier: MIT
#include "learn/PaperStudy.h"

#include <algorithm>
#include <utility>

namespace quorvantis {

PaperStudy::PaperStudy(Paper paper, CancelHook isCancelled)
    : paper_(std::move(paper)), isCancelled_(std::move(isCancelled)) {
  Read();
}

bool PaperStudy::Learn() {
  LearnedRules learned = LearnRules(paper_, Marks(), {isCancelled_});
  if (learned.wasCancelled) return false;
  learned_ = std::move(learned);
  hasOwnRules_ = false;
  Read();
  return true;
}

void PaperStudy::SetRules(ImportSettings rules) {
  learned_.rules = std::move(rules);
  hasOwnRules_ = true;
  Read();
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

void PaperStudy::Read() {
  reading_ = ReadByRules(paper_, learned_.rules, isCancelled_);
  roles_ = RolesOf(paper_, reading_);
  warnings_ = WarningsOf(paper_, learned_.rules, reading_);
}

void PaperStudy::Push(std::vector<PaperMark> marks) {
  states_.resize(place_ + 1);
  states_.push_back(std::move(marks));
  ++place_;
}

}  // namespace quorvantis
