// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/BankHitText.h"

#include "bank/index/FoldedText.h"
#include "model/AnswerLetters.h"
#include "model/FillInAnswers.h"
#include "model/QuestionKinds.h"
#include "text/HtmlEntities.h"
#include "text/PageTokens.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {
namespace {

constexpr std::size_t kExcerpt = 200;  // UTF-16 units
constexpr std::size_t kBefore = 50;    // of the excerpt, before the first mark
constexpr std::u16string_view kLeftOut = u"…";
constexpr std::u16string_view kBetweenAnswers = u" / ";
constexpr std::u16string_view kTick = u"\u2713 ";

bool IsBlank(char16_t unit) {
  return unit <= u' ' || unit == u'\u00A0' || unit == u'\u3000';
}

/// Tells which places of a text are marked, from front to back.
class PlacesMarked {
 public:
  /// `marks` are in their order and must outlive this.
  explicit PlacesMarked(const std::vector<TextSpan>& marks) : next_(marks.begin()), end_(marks.end()) {}

  bool Has(std::size_t place) {
    while (next_ != end_ && next_->end <= place) ++next_;
    return next_ != end_ && next_->Contains(place);
  }

 private:
  std::vector<TextSpan>::const_iterator next_;
  std::vector<TextSpan>::const_iterator end_;
};

/// Adds texts as pupils see them, and follows the marks.
class Shown {
 public:
  /// `marks` are places in `text`, in their order. Line ends become blanks unless `keepsLines`.
  void Add(std::u16string_view text, const std::vector<TextSpan>& marks, bool keepsLines) {
    AddPart(text, {0, text.size()}, marks, keepsLines);
  }

  /// The same for a line of fill-in answers.
  void AddFillIns(std::u16string_view line, const std::vector<TextSpan>& marks) {
    for (const TextSpan& answer : FillInAnswersIn(line)) {
      if (answer.begin > 0) AddPlain(kBetweenAnswers);
      AddPart(line, answer, marks, false);
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
  void AddPart(std::u16string_view text, const TextSpan& part, const std::vector<TextSpan>& marks,
               bool keepsLines) {
    keepsLines_ = keepsLines;
    PlacesMarked marked(marks);
    PageTokens tokens(text.substr(0, part.end));
    tokens.GoTo(part.begin);
    while (const auto token = tokens.Next()) {
      const std::size_t begin = token->span.begin;
      if (token->kind == PageTokenKind::Text) {
        AddCharacters(text, token->span, marked);
      } else if (!token->isClosed) {
        // Whoever looks for a question wants to read what the page hides behind it.
        AddUnit(text[begin], marked.Has(begin));
        tokens.GoTo(begin + 1);
      } else if (token->IsTag() && PartsWords(token->name.Of(text))) {
        AddUnit(u' ', marked.Has(begin));
      }
    }
  }

  void AddCharacters(std::u16string_view text, const TextSpan& span, PlacesMarked& marked) {
    for (std::size_t at = span.begin; at < span.end;) {
      const auto entity = ReadEntity(text.substr(at, span.end - at));
      std::u16string character;
      AppendCodePoint(character, entity ? entity->codePoint : text[at]);
      for (const char16_t unit : character) AddUnit(unit, marked.Has(at));
      at += entity ? entity->length : 1;
    }
  }

  void AddUnit(char16_t unit, bool isMarked) {
    const bool isLineEnd = unit == u'\n' && keepsLines_;
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
  bool keepsLines_ = false;
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
  const std::u16string_view text = TextOf(hit.question, field, index);
  if (field == ExamFieldName::FillInAnswer) {
    shown.AddFillIns(text, MarksIn(hit, field, index));
  } else {
    shown.Add(text, MarksIn(hit, field, index), false);
  }
  return CutAround(shown.Take());
}

BankHitText WholeTextOf(const BankHit& hit) {
  const BankQuestion& question = hit.question;
  const AnswerParts parts = AnswerOf(question.kind);
  Shown shown;
  shown.Add(question.text, MarksIn(hit, ExamFieldName::QuestionText, 0), true);
  if (parts.options) AddOptions(hit, shown);
  const bool isFillIn = parts.fillIn && !question.answerText.empty();
  const bool isEssay = parts.essay && !question.essayAnswer.empty();
  if (isFillIn || isEssay) shown.AddPlain(std::u16string(u"\n").append(kTick));
  if (isFillIn) shown.AddFillIns(question.answerText, MarksIn(hit, ExamFieldName::FillInAnswer, 0));
  if (isEssay) shown.Add(question.essayAnswer, MarksIn(hit, ExamFieldName::EssayAnswer, 0), true);
  return shown.Take();
}

}  // namespace quorvantis
