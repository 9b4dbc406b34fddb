// SPDX-License-Identifier: MIT
#include "history/SlotScript.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quorvantis {
namespace {

using Questions = std::vector<ExamQuestion>;

/// Differs for most questions that differ, and is quick to make.
std::size_t KeyOf(const ExamQuestion& question) {
  constexpr std::size_t kEnough = 48;
  const auto hash = [](const std::u16string& text) {
    return std::hash<std::u16string_view>()(std::u16string_view(text).substr(0, kEnough)) + text.size();
  };
  std::size_t key = hash(question.text);
  for (const std::u16string& option : question.options) key = key * 31 + hash(option);
  return (key * 31 + hash(question.answerText)) * 31 + hash(question.essayAnswer);
}

std::shared_ptr<const ExamQuestion> ContentOf(const ExamQuestion& question) {
  auto content = std::make_shared<ExamQuestion>(question);
  StoreSlotPart({}, *content);
  return content;
}

/// Walks through two lists of questions side by side.
class SlotWalk {
 public:
  SlotWalk(const Questions& before, const Questions& after) : before_(before), after_(after) {
    end_ = std::min(before.size(), after.size());
    while (begin_ < end_ && SameContent(before[begin_], after[begin_])) ++begin_;
    while (end_ > begin_ && SameContent(before[end_ - 1], after[end_ - 1])) --end_;
    for (std::size_t i = begin_; i < end_; ++i) {
      keysBefore_.push_back(KeyOf(before[i]));
      keysAfter_.push_back(KeyOf(after[i]));
    }
  }

  SlotScript Find() {
    std::size_t i = begin_;
    std::size_t j = begin_;
    while (i < end_ && j < end_) {
      const Gap gap = SameKey(i, j) || SameKey(i + 1, j + 1) ? Gap() : NextGap(i, j);
      for (std::size_t n = 0; n < gap.removed; ++n) Remove(i++, j);
      for (std::size_t n = 0; n < gap.added; ++n) Add(i, j++);
      if (gap.removed + gap.added == 0) Compare(i++, j++);
    }
    while (i < end_) Remove(i++, j);
    while (j < end_) Add(i, j++);
    return std::move(script_);
  }

 private:
  /// How many questions were taken out or put in before the lists go on alike.
  struct Gap {
    std::size_t removed = 0;
    std::size_t added = 0;
  };

  bool SameKey(std::size_t i, std::size_t j) const {
    return i < end_ && j < end_ && keysBefore_[i - begin_] == keysAfter_[j - begin_];
  }

  Gap NextGap(std::size_t i, std::size_t j) const {
    for (std::size_t n = 1; i + n < end_ || j + n < end_; ++n) {
      if (SameKey(i + n, j)) return {n, 0};
      if (SameKey(i, j + n)) return {0, n};
    }
    return {};
  }

  void Remove(std::size_t i, std::size_t j) { script_.push_back({i, j, ContentOf(before_[i]), nullptr, {}}); }

  void Add(std::size_t i, std::size_t j) { script_.push_back({i, j, nullptr, ContentOf(after_[j]), {}}); }

  void Compare(std::size_t i, std::size_t j) {
    if (SameContent(before_[i], after_[j])) return;
    EditFinder finder;
    VisitContent(finder, before_[i], after_[j]);
    script_.push_back({i, j, nullptr, nullptr, std::move(finder.found)});
  }

  const Questions& before_;
  const Questions& after_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::vector<std::size_t> keysBefore_;
  std::vector<std::size_t> keysAfter_;
  SlotScript script_;
};

}  // namespace

SlotScript FindSlotChanges(const Questions& before, const Questions& after) {
  return SlotWalk(before, after).Find();
}

void TakeSlotChanges(const SlotScript& script, Direction direction, Questions& questions) {
  if (script.empty()) return;
  const bool forward = direction == Direction::Forward;
  Questions made;
  made.reserve(questions.size());
  std::size_t next = 0;
  for (const SlotChange& change : script) {
    const std::size_t from = forward ? change.before : change.after;
    while (next < from) made.push_back(std::move(questions[next++]));
    const auto& gone = forward ? change.removed : change.added;
    const auto& come = forward ? change.added : change.removed;
    if (gone) {
      ++next;
    } else if (come) {
      made.push_back(*come);
    } else {
      made.push_back(std::move(questions[next++]));
      VisitContent(EditTaker(change.edits, direction), made.back());
    }
  }
  while (next < questions.size()) made.push_back(std::move(questions[next++]));
  questions = std::move(made);
}

std::size_t SizeOf(const SlotScript& script) {
  std::size_t size = script.size() * sizeof(SlotChange);
  const auto add = [&size](const auto& value) {
    if constexpr (std::is_same_v<decltype(value), const std::u16string&>)
      size += value.size() * sizeof(char16_t);
  };
  for (const SlotChange& change : script) {
    for (const ExamQuestion* whole : {change.removed.get(), change.added.get()}) {
      if (whole == nullptr) continue;
      size += sizeof(ExamQuestion);
      VisitContent(add, *whole);
    }
    size += change.edits.Size();
  }
  return size;
}

}  // namespace quorvantis
