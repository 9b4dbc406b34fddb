// SPDX-License-Identifier: MIT
#include "desktop/bank/BankHitText.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {
namespace {

constexpr std::size_t kExcerpt = 200;      // UTF-16 units
constexpr std::size_t kBefore = 50;        // of the excerpt, before the first mark
constexpr std::size_t kLongestTag = 2000;  // a "<" that is not closed by then is text
constexpr std::u16string_view kLeftOut = u"…";
constexpr std::u16string_view kTick = u"\u2713 ";

/// The end of the tag that begins at `at`, or `at` if none does.
std::size_t TagEnd(std::u16string_view text, std::size_t at) {
  if (text[at] != u'<' || at + 1 >= text.size()) return at;
  const char16_t next = text[at + 1];
  const bool isTag =
      next == u'/' || next == u'!' || (next >= u'a' && next <= u'z') || (next >= u'A' && next <= u'Z');
  const std::size_t end = isTag ? text.find(u'>', at) : text.npos;
  return end == text.npos || end - at > kLongestTag ? at : end + 1;
}

bool IsBlank(char16_t unit) {
  return unit <= u' ' || unit == u'\u00A0' || unit == u'\u3000';
}

/// Adds texts without their markup, and follows the marks.
class Shown {
 public:
  /// `marks` are places in `text`, in their order. Line ends become blanks unless `keepsLines`.
  void Add(std::u16string_view text, const std::vector<TextSpan>& marks, bool keepsLines) {
    auto mark = marks.begin();
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = TagEnd(text, at);
      if (end > at) {
        at = end;
        continue;
      }
      while (mark != marks.end() && mark->end <= at) ++mark;
      AddUnit(text[at], mark != marks.end() && mark->Contains(at), keepsLines);
      ++at;
    }
  }

  void AddPlain(std::u16string_view text) {
    EndMark();
    shown_.text += text;
  }

  BankHitText Take() {
    EndMark();
    return std::move(shown_);
  }

 private:
  void AddUnit(char16_t unit, bool isMarked, bool keepsLines) {
    const bool isLineEnd = unit == u'\n' && keepsLines;
    const bool isBlank = !isLineEnd && IsBlank(unit);
    const bool wasBlank = shown_.text.empty() || IsBlank(shown_.text.back());
    if ((isBlank || isLineEnd) && wasBlank) return;
    if (isMarked != isMarked_) isMarked ? BeginMark() : EndMark();
    shown_.text += isLineEnd ? u'\n' : isBlank ? u' ' : unit;
  }

  void BeginMark() {
    isMarked_ = true;
    begin_ = shown_.text.size();
  }

  void EndMark() {
    if (isMarked_ && begin_ < shown_.text.size()) shown_.marks.push_back({begin_, shown_.text.size()});
    isMarked_ = false;
  }

  BankHitText shown_;
  bool isMarked_ = false;
  std::size_t begin_ = 0;
};

std::vector<TextSpan> MarksIn(const BankHit& hit, ExamFieldName field, unsigned index) {
  std::vector<TextSpan> marks;
  for (const BankHighlight& highlight : hit.highlights) {
    if (highlight.field == field && highlight.index == index) marks.push_back(highlight.span);
  }
  return marks;
}

std::u16string_view TextOf(const BankQuestion& question, ExamFieldName field, unsigned index) {
  switch (field) {
    case ExamFieldName::Options:
      return index < kOptionCount ? std::u16string_view(question.options[index]) : std::u16string_view();
    case ExamFieldName::FillInAnswer:
      return question.answerText;
    case ExamFieldName::EssayAnswer:
      return question.essayAnswer;
    case ExamFieldName::AttachmentName:
      return index < question.files.size() ? std::u16string_view(question.files[index].name)
                                           : std::u16string_view();
    default:
      return question.text;
  }
}

/// A cut between two units of one character would show neither.
std::size_t CutAt(const std::u16string& text, std::size_t at) {
  return at < text.size() && IsLowSurrogate(text[at]) ? at + 1 : std::min(at, text.size());
}

BankHitText CutAround(const BankHitText& whole) {
  const std::size_t first = whole.marks.empty() ? 0 : whole.marks.front().begin;
  const std::size_t begin = first > kBefore ? CutAt(whole.text, first - kBefore) : 0;
  const std::size_t end = CutAt(whole.text, begin + kExcerpt);
  BankHitText cut;
  if (begin > 0) cut.text.append(kLeftOut);
  const std::size_t shift = cut.text.size();
  cut.text.append(whole.text, begin, end - begin);
  if (end < whole.text.size()) cut.text += kLeftOut;
  for (const TextSpan& mark : whole.marks) {
    const TextSpan kept{std::max(mark.begin, begin), std::min(mark.end, end)};
    if (kept.begin < kept.end) cut.marks.push_back({kept.begin - begin + shift, kept.end - begin + shift});
  }
  return cut;
}

void AddOptions(const BankHit& hit, Shown& shown) {
  const BankQuestion& question = hit.question;
  for (unsigned i = 0; i < kOptionCount; ++i) {
    if (question.options[i].empty()) continue;
    const bool isRight = (question.answerMask & AnswerBoxWeight(i)) != 0;
    shown.AddPlain(u"\n");
    if (isRight) shown.AddPlain(kTick);
    shown.AddPlain(std::u16string(1, OptionLetter(i)) + u". ");
    shown.Add(question.options[i], MarksIn(hit, ExamFieldName::Options, i), false);
  }
}

}  // namespace

BankHitText ExcerptOf(const BankHit& hit) {
  ExamFieldName field = ExamFieldName::QuestionText;
  unsigned index = 0;
  if (!hit.highlights.empty()) {
    field = hit.highlights.front().field;
    index = hit.highlights.front().index;
  }
  Shown shown;
  shown.Add(TextOf(hit.question, field, index), MarksIn(hit, field, index), false);
  return CutAround(shown.Take());
}

BankHitText WholeTextOf(const BankHit& hit) {
  const BankQuestion& question = hit.question;
  const AnswerParts parts = AnswerOf(question.kind);
  Shown shown;
  shown.Add(question.text, MarksIn(hit, ExamFieldName::QuestionText, 0), true);
  if (parts.options) AddOptions(hit, shown);
  const auto addAnswer = [&](const std::u16string& answer, ExamFieldName field) {
    if (answer.empty()) return;
    shown.AddPlain(u"\n");
    shown.AddPlain(kTick);
    shown.Add(answer, MarksIn(hit, field, 0), true);
  };
  if (parts.fillIn) addAnswer(question.answerText, ExamFieldName::FillInAnswer);
  if (parts.essay) addAnswer(question.essayAnswer, ExamFieldName::EssayAnswer);
  return shown.Take();
}

}  // namespace quorvantis
