// SPDX-License-Identifier: MIT
#include "versions/plan/PinnedParts.h"

#include "check/wording/OptionWording.h"
#include "check/wording/QuestionWording.h"
#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "text/AsciiCase.h"
#include "text/WithoutAround.h"
#include "versions/plan/OptionOrder.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

bool IsCountedQuestion(const ExamQuestion& question) {
  return HoldsText(question.text) || HoldsText(question.answerText) || HoldsText(question.options);
}

std::u16string_view WithoutBlanks(std::u16string_view text) {
  return WithoutAround(text, u" \t\r\n\u00A0\u3000");
}

std::vector<std::size_t> UsedOptions(const ExamQuestion& question) {
  std::vector<std::size_t> used;
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (!question.options[i].empty()) used.push_back(i);
  }
  return used;
}

/// "A" as option A, "B" as option B: what a picture calls them.
bool AreOwnLetters(const ExamQuestion& question, const std::vector<std::size_t>& used) {
  return std::ranges::all_of(used, [&question](std::size_t i) {
    const std::u16string_view text = WithoutBlanks(question.options[i]);
    return text.size() == 1 && AsciiUpper(text.front()) == OptionLetter(i);
  });
}

/// The questions that a question names, in its text and options.
std::vector<int> NamedBy(const ExamQuestion& question) {
  std::vector<int> named = NamedQuestions(question.text);
  if (!AnswerOf(question.kind).options) return named;
  for (const std::u16string& option : question.options) {
    const std::vector<int> more = NamedQuestions(option);
    named.insert(named.end(), more.begin(), more.end());
  }
  return named;
}

/// By question; those of a question first, then those of its options.
bool ComesBefore(const PinnedPart& part, const PinnedPart& other) {
  if (part.question != other.question) return part.question < other.question;
  return IsOfQuestion(part.reason) && !IsOfQuestion(other.reason);
}

}  // namespace

PinnedParts::PinnedParts(const ExamPaper& exam, int questionCount, const TeacherPins& pins)
    : stays_(static_cast<std::size_t>(questionCount) + 1), follows_(stays_.size()), options_(stays_.size()) {
  PinQuestions(exam, pins);
  for (int number = 1; number <= questionCount; ++number) PinOptions(exam.Question(number), number, pins);
  std::ranges::stable_sort(parts_, ComesBefore);
}

void PinnedParts::Pin(const PinnedPart& part) {
  stays_[static_cast<std::size_t>(part.question)] = true;
  parts_.insert(std::ranges::upper_bound(parts_, part, ComesBefore), part);
}

void PinnedParts::PinQuestions(const ExamPaper& exam, const TeacherPins& pins) {
  const auto pin = [this](int number, PinReason reason, int other) {
    stays_[static_cast<std::size_t>(number)] = true;
    const PinnedPart part{number, {}, reason, other};
    if (std::ranges::find(parts_, part) == parts_.end()) parts_.push_back(part);
  };
  for (int number = 1; number <= Count(); ++number) {
    const ExamQuestion& question = exam.Question(number);
    if (pins.questions.contains(number)) pin(number, PinReason::Teacher, 0);
    if (!IsCountedQuestion(question)) pin(number, PinReason::Empty, 0);
    for (const int other : NamedBy(question)) {
      pin(number, PinReason::NamesQuestion, other);
      if (other >= 1 && other <= Count() && other != number) pin(other, PinReason::IsNamed, number);
    }
    if (!quorvantis::FollowsOn(question.text)) continue;
    follows_[static_cast<std::size_t>(number)] = number > 1;
    if (number > 1) parts_.push_back({number, {}, PinReason::FollowsOn, number - 1});
  }
}

/// Whether a question's options stay altogether.
bool PinnedParts::PinAllOptions(const ExamQuestion& question, int number) {
  const std::vector<std::size_t> used = UsedOptions(question);
  const auto all = [&](PinReason reason) {
    parts_.push_back({number, {}, reason, 0});
    return true;
  };
  if (used.size() < 2) return all(PinReason::TooFew);
  if (!CanMoveKey(question)) return all(PinReason::OddKey);
  if (AreOwnLetters(question, used)) return all(PinReason::OwnLetters);
  const auto names = [&question](std::size_t i) { return NamesOptions(question.options[i], question.text); };
  const bool areNamed = NamesOptionsInText(question.text) || std::ranges::any_of(used, names);
  return areNamed && all(PinReason::NamesLetters);
}

/// A hole among the options keeps its place by itself: only those with a text move.
void PinnedParts::PinOptions(const ExamQuestion& question, int number, const TeacherPins& pins) {
  if (!AnswerOf(question.kind).options || PinAllOptions(question, number)) return;
  std::vector<std::size_t> movable;
  for (const std::size_t i : UsedOptions(question)) {
    const bool isTeachers = pins.options.contains({number, i});
    const bool speaks = SpeaksOfTheOthers(question.options[i]);
    if (isTeachers) parts_.push_back({number, i, PinReason::TeacherOption, 0});
    if (speaks) parts_.push_back({number, i, PinReason::SpeaksOfOthers, 0});
    if (!isTeachers && !speaks) movable.push_back(i);
  }
  if (movable.size() > 1) options_[static_cast<std::size_t>(number)] = std::move(movable);
}

}  // namespace quorvantis
