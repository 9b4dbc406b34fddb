// SPDX-License-Identifier: MIT
#include "history/SlotScript.h"

#include <algorithm>
#include <cstdint>
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
    MeasureCommon();
    std::size_t i = begin_;
    std::size_t j = begin_;
    while (i < end_ || j < end_) {
      std::size_t nextI = i;
      std::size_t nextJ = j;
      SkipDifferent(nextI, nextJ);
      while (i < nextI && j < nextJ) Compare(i++, j++);
      while (i < nextI) Remove(i++, j);
      while (j < nextJ) Add(i, j++);
      if (i < end_ && j < end_) Compare(i++, j++);
    }
    return std::move(script_);
  }

 private:
  bool SameKey(std::size_t i, std::size_t j) const {
    return keysBefore_[i - begin_] == keysAfter_[j - begin_];
  }

  /// How many questions the rests of the lists have in common, in the same order.
  std::uint16_t& Common(std::size_t i, std::size_t j) {
    return common_[(i - begin_) * (end_ - begin_ + 1) + j - begin_];
  }

  void MeasureCommon() {
    const std::size_t size = end_ - begin_ + 1;
    common_.assign(size * size, 0);
    for (std::size_t i = end_; i-- > begin_;) {
      for (std::size_t j = end_; j-- > begin_;) {
        const int after = Common(i + 1, j + 1);
        Common(i, j) = SameKey(i, j) ? static_cast<std::uint16_t>(after + 1)
                                     : std::max(Common(i + 1, j), Common(i, j + 1));
      }
    }
  }

  /// Goes on to the next question that both lists have.
  void SkipDifferent(std::size_t& i, std::size_t& j) {
    while (i < end_ && j < end_ && !SameKey(i, j)) Common(i + 1, j) >= Common(i, j + 1) ? ++i : ++j;
    if (i < end_ && j < end_) return;
    i = j = end_;
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
  std::vector<std::uint16_t> common_;
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
