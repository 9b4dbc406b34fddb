// SPDX-License-Identifier: MIT
#include "exchange/exam/HeldParts.h"

#include "exchange/form/Points.h"
#include "exchange/markup/Markup.h"
#include "model/AnswerLetters.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kRiskyInNames = u"&<>\"`|':\\/";
constexpr std::u16string_view kNoAnswer = u"\u2013";  // a dash, in a list of answers

/// Reduces one question after the other to what a format holds.
class Reduction {
 public:
  Reduction(const HeldParts& held, ExchangeNotes& notes) : held_(held), notes_(notes) {}

  /// False if nothing of it can be held.
  bool Reduce(ExchangedQuestion& question) {
    if (IsEmpty(question)) return Refuse(text_id::kExchangeEmptyQuestion);
    std::erase_if(question.options, [](const ExchangedOption& option) { return option.text.empty(); });
    if (!ReduceKind(question)) return false;
    question.text = QuestionText(question.text);
    for (ExchangedOption& option : question.options) option.text = Text(option.text);
    for (BlankAnswers& blank : question.blanks) {
      for (std::u16string& answer : blank) answer = Answer(answer);
      if (!held_.equalAnswers) MergeEqual(blank);
    }
    question.modelAnswer = Text(question.modelAnswer);
    ReduceRest(question);
    return !question.text.empty() || held_.noText || Refuse(text_id::kExchangeEmptyQuestion);
  }

  std::u16string Plain(const std::u16string& text, HeldText held) {
    if (held == HeldText::Markup) return text;
    if (HasTags(text)) notes_.Tell(text_id::kExchangeMarkupLeftOut);
    std::u16string plain = ExamTextToPlain(text);
    if (held == HeldText::OneLine) {
      if (plain.find(u'\n') != plain.npos) notes_.Tell(text_id::kExchangeLinesJoined);
      plain = WithLineEnds(plain, u" ");
    }
    return PlainToExamText(plain);
  }

 private:
  std::u16string Text(const std::u16string& text) { return Plain(text, held_.texts); }

  std::u16string QuestionText(const std::u16string& text) {
    std::u16string held = Text(text);
    if (held_.misreads == nullptr || !held_.misreads(ExamTextToPlain(held))) return held;
    notes_.Tell(text_id::kExchangeDashInFront);
    return u"- " + held;
  }

  void MergeEqual(BlankAnswers& answers) {
    BlankAnswers kept;
    for (std::u16string& answer : answers) {
      if (std::ranges::find(kept, answer) != kept.end()) {
        notes_.Tell(text_id::kExchangeEqualAnswers, {Excerpt(answer)});
      } else {
        kept.push_back(std::move(answer));
      }
    }
    answers = std::move(kept);
  }

  std::u16string Answer(const std::u16string& answer) {
    std::u16string text = Plain(answer, HeldText::OneLine);
    for (std::size_t at = text.find(u"->"); !held_.arrows && at != text.npos; at = text.find(u"->")) {
      text.replace(at, 2, 1, u'\u2192');
      notes_.Tell(text_id::kExchangeArrowReplaced);
    }
    return text;
  }

  static bool IsEmpty(const ExchangedQuestion& question) {
    return question.text.empty() && question.options.empty() && question.blanks.empty() &&
           question.files.empty();
  }

  bool Refuse(int text) {
    notes_.Tell(text);
    return false;
  }

  bool ReduceKind(ExchangedQuestion& question) {
    switch (question.kind) {
      case QuestionKind::Choice:
        return ReduceChoice(question);
      case QuestionKind::FillIn:
        return ReduceFillIn(question);
      case QuestionKind::Essay:
        return held_.essay || Refuse(text_id::kExchangeEssayLeftOut);
      case QuestionKind::Oral:
        if (held_.oral) return true;
        if (!held_.essay) return Refuse(text_id::kExchangeOralLeftOut);
        question.kind = QuestionKind::Essay;
        notes_.Tell(text_id::kExchangeOralBecomesEssay);
        return true;
    }
    return false;
  }

  bool ReduceChoice(ExchangedQuestion& question) {
    const auto rights = std::ranges::count_if(question.options, &ExchangedOption::isRight);
    const std::size_t fewest = held_.unanswered ? 0 : held_.fewestOptions;
    if (question.options.size() < fewest) {
      if (!held_.essay) return Refuse(text_id::kExchangeNoOptions);
      const bool isEmpty = question.options.empty();
      return MakeEssay(question, isEmpty ? text_id::kExchangeNoOptionsBecomesEssay
                                         : text_id::kExchangeOneOptionBecomesEssay);
    }
    if (rights == 0 && !held_.noneRight) {
      if (!held_.essay) return Refuse(text_id::kExchangeNoneRight);
      return MakeEssay(question, text_id::kExchangeNoneRightBecomesEssay);
    }
    return rights <= 1 || held_.severalRight || Refuse(text_id::kExchangeSeveralRight);
  }

  /// The options are lines of its text then, and a right one is its model answer.
  bool MakeEssay(ExchangedQuestion& question, int text) {
    question.kind = QuestionKind::Essay;
    for (std::size_t i = 0; i < question.options.size(); ++i) {
      const ExchangedOption& option = question.options[i];
      question.text.append(question.text.empty() ? u"" : u"\r\n").push_back(OptionLetter(i));
      question.text.append(u". ").append(option.text);
      if (option.isRight) question.modelAnswer = option.text;
    }
    question.options.clear();
    notes_.Tell(text);
    return true;
  }

  bool ReduceFillIn(ExchangedQuestion& question) {
    if (!held_.fillIn) return Refuse(text_id::kExchangeFillInLeftOut);
    const bool hasNone = question.blanks.empty() && !held_.unanswered;
    const bool hasTooMany = question.blanks.size() > 1 && !held_.severalBlanks;
    const bool hasGaps = question.blanks.size() > 1 && !held_.emptyBlanks &&
                         std::ranges::any_of(question.blanks, &BlankAnswers::empty);
    if (!hasNone && !hasTooMany && !hasGaps) return true;
    notes_.Tell(hasNone      ? text_id::kExchangeNoAnswerBecomesEssay
                : hasTooMany ? text_id::kExchangeBlanksBecomeEssay
                             : text_id::kExchangeEmptyBlankBecomesEssay);
    question.kind = QuestionKind::Essay;
    for (const BlankAnswers& blank : question.blanks) {
      if (!question.modelAnswer.empty()) question.modelAnswer += u"\r\n";
      question.modelAnswer += blank.empty() ? kNoAnswer : blank.front();
    }
    question.blanks.clear();
    return true;
  }

  void ReduceRest(ExchangedQuestion& question) {
    if (!held_.files && !question.files.empty()) {
      notes_.Tell(text_id::kExchangeFilesLeftOut,
                  {FormatInteger(static_cast<std::int64_t>(question.files.size()))});
      question.files.clear();
    }
    for (ExchangedFile& file : question.files) ReduceFileName(file);
    if (!held_.modelAnswer && !question.modelAnswer.empty()) {
      notes_.Tell(text_id::kExchangeModelAnswerLeftOut);
      question.modelAnswer.clear();
    }
    if (!held_.scores) question.score.reset();
    if (!held_.blankScores && question.blanks.size() > 1) TellBlankScores(question);
  }

  void TellBlankScores(const ExchangedQuestion& question) {
    if (!question.score) return;
    const auto blanks = static_cast<int>(question.blanks.size());
    const int score = blanks * WholeBlankScore(*question.score, question.blanks.size());
    if (score != *question.score) notes_.Tell(text_id::kExchangeBlankScores, {FormatInteger(score)});
  }

  /// Slashes would lead to another folder; two dots in a row would, too, where names stay as they are.
  void ReduceFileName(ExchangedFile& file) {
    const std::u16string_view risky = held_.fileNames ? u"/\\" : kRiskyInNames;
    std::u16string name;
    for (const char16_t unit : file.name) {
      const bool isRisky = unit < u' ' || risky.find(unit) != risky.npos;
      if (held_.fileNames || unit != u'.' || !name.ends_with(u'.')) name.push_back(isRisky ? u'_' : unit);
    }
    if (name == file.name) return;
    notes_.Tell(text_id::kExchangeFileRenamed, {file.name, name});
    file.name = name;
  }

  const HeldParts& held_;
  ExchangeNotes& notes_;
};

}  // namespace

ExchangedExam HeldExam(const HeldParts& held, ExchangedExam exam, ExchangeNotes& notes) {
  Reduction reduction(held, notes);
  notes.Begin(0);
  if (!held.title && !exam.title.empty()) {
    notes.Tell(text_id::kExchangeTitleLeftOut);
    exam.title.clear();
  }
  exam.title = reduction.Plain(exam.title, HeldText::OneLine);
  const auto hasScore = [](const ExchangedQuestion& question) { return question.score.has_value(); };
  if (!held.scores && std::ranges::any_of(exam.questions, hasScore))
    notes.Tell(text_id::kExchangeScoresLeftOut);
  if (!held.shuffle && exam.shufflesOptions) {
    notes.Tell(text_id::kExchangeShuffleLeftOut);
    exam.shufflesOptions = false;
  }
  std::vector<ExchangedQuestion> kept;
  for (ExchangedQuestion& question : exam.questions) {
    notes.Begin(question.number);
    if (reduction.Reduce(question)) kept.push_back(std::move(question));
  }
  exam.questions = std::move(kept);
  notes.Begin(0);
  return exam;
}

}  // namespace quorvantis
