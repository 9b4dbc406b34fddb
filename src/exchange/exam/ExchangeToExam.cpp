// SPDX-License-Identifier: MIT
#include "exchange/exam/ExchangeToExam.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Markup.h"
#include "model/AnswerLetters.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>

namespace quorvantis {
namespace {

std::u16string OneLine(std::u16string_view text) {
  return WithLineEnds(ReadExamText(text).text, u" ");
}

/// A score that each of these questions has.
struct ScoreRun {
  int first = 0;
  int last = 0;
  float score = 0;
};

/// Stores the questions of one exam.
class ExamFilling {
 public:
  ExamFilling(FrameSetExam& exam, ExchangeNotes& notes) : exam_(exam), notes_(notes) {}

  void Store(const ExchangedQuestion& source, int slot) {
    ExamQuestion& question = exam_.Question(slot);
    question.kind = source.kind;
    question.text = ReadExamText(source.text).text;
    StoreOptions(source, question);
    question.answerText = AnswerLine(source);
    exam_.Services().longAnswerFlags.SetIfLong(slot, question.answerText);
    question.essayAnswer = ReadExamText(source.modelAnswer).text;
    StoreFiles(source.files, question);
  }

  void StoreScores(const std::vector<ExchangedQuestion>& questions) {
    const std::vector<ScoreRun> runs = RunsOf(questions);
    if (runs.empty() || (runs.size() == 1 && runs[0].score == 1.0F)) return;
    if (runs.size() > kScoreRanges)
      return notes_.Tell(text_id::kExchangeTooManyScores, {FormatInteger(kScoreRanges)});
    exam_.scoreMode = ScoreMode::Custom;
    exam_.scoreFrom = exam_.scoreTo = {};
    exam_.scoreValue = {};
    for (std::size_t i = 0; i < runs.size(); ++i) {
      exam_.scoreFrom[i] = runs[i].first;
      exam_.scoreTo[i] = runs[i].last;
      exam_.scoreValue[i] = runs[i].score;
    }
  }

 private:
  /// All right options, and of the others the first ones that fit.
  void StoreOptions(const ExchangedQuestion& source, ExamQuestion& question) {
    const auto rights =
        static_cast<std::size_t>(std::ranges::count_if(source.options, &ExchangedOption::isRight));
    std::size_t wrongsThatFit = kOptionCount - std::min(rights, kOptionCount);
    std::size_t slot = 0;
    for (const ExchangedOption& option : source.options) {
      const bool fits = slot < kOptionCount && (option.isRight || wrongsThatFit > 0);
      if (!fits) {
        notes_.Tell(text_id::kExchangeTooManyOptions, {Excerpt(option.text)});
        continue;
      }
      if (!option.isRight) --wrongsThatFit;
      if (option.isRight) question.answerMask += AnswerBoxWeight(slot);
      question.options[slot++] = ReadExamText(option.text).text;
    }
    question.answerLetters = AnswerMaskToLetters(question.answerMask);
  }

  std::u16string AnswerLine(const ExchangedQuestion& source) {
    const bool isByBlank = source.blanks.size() > 1;
    BlankAnswers answers;
    for (const BlankAnswers& blank : source.blanks) {
      if (isByBlank && blank.size() > 1) notes_.Tell(text_id::kExchangeAlternatives, {Excerpt(blank[1])});
      if (isByBlank && blank.empty()) answers.emplace_back();
      const std::size_t count = isByBlank ? std::min<std::size_t>(1, blank.size()) : blank.size();
      for (std::size_t i = 0; i < count; ++i) answers.push_back(WithoutSeparator(OneLine(blank[i])));
    }
    std::u16string line = Joined(answers);
    TellOtherBlanks(source, line);
    return line;
  }

  /// The answers with separators between them. An empty one keeps its place, unless there is no other.
  static std::u16string Joined(const BlankAnswers& answers) {
    const bool hasAnswer = std::ranges::any_of(answers, [](const auto& answer) { return !answer.empty(); });
    std::u16string line;
    for (std::size_t i = 0; hasAnswer && i < answers.size(); ++i) {
      if (i > 0) line += kListSeparator;
      line += answers[i];
    }
    return line;
  }

  /// The name of the character keeps a separator within an answer from dividing it.
  std::u16string WithoutSeparator(std::u16string answer) {
    const std::u16string before = answer;
    for (std::size_t at = answer.find(kListSeparator); at != answer.npos; at = answer.find(kListSeparator))
      answer.replace(at, 1, u"&lt;");
    if (answer != before) notes_.Tell(text_id::kExchangeSeparatorInAnswer, {Excerpt(before)});
    return answer;
  }

  /// Whether answers are alternatives depends in an exam on how many blanks the text has.
  void TellOtherBlanks(const ExchangedQuestion& source, std::u16string_view line) {
    if (source.blanks.empty()) return;
    const std::size_t count = ByBlank(ReadExamText(source.text).text, SplitAnswers(line)).size();
    if (source.blanks.size() > 1 && count <= 1) notes_.Tell(text_id::kExchangeBecameAlternatives);
    if (source.blanks.size() == 1 && count > 1) notes_.Tell(text_id::kExchangeBecameBlanks);
  }

  void StoreFiles(const std::vector<ExchangedFile>& files, ExamQuestion& question) {
    for (std::size_t i = 0; i < files.size(); ++i) {
      if (i >= kMaxAttachments) {
        notes_.Tell(text_id::kExchangeTooManyFiles, {files[i].name});
        continue;
      }
      question.attachmentPaths[i] = PathToText(files[i].path);
      question.attachmentNames[i] = files[i].name;
    }
  }

  static std::vector<ScoreRun> RunsOf(const std::vector<ExchangedQuestion>& questions) {
    std::vector<ScoreRun> runs;
    for (std::size_t i = 0; i < questions.size(); ++i) {
      const auto score = static_cast<float>(questions[i].score.value_or(1.0));
      const int number = static_cast<int>(i + 1);
      if (runs.empty() || runs.back().score != score) runs.push_back({number, number, score});
      runs.back().last = number;
    }
    return runs;
  }

  FrameSetExam& exam_;
  ExchangeNotes& notes_;
};

/// How many are left out is known only if all of them were read.
void TellLeftOut(const ExchangedExam& exchanged, std::size_t room, ExchangeNotes& notes) {
  const std::size_t count = exchanged.questions.size();
  notes.Begin(0);
  if (exchanged.isCutShort) {
    notes.Tell(text_id::kExchangeFarTooMany, {FormatInteger(kMaxReadQuestions)});
  } else if (count > room) {
    notes.Tell(text_id::kExchangeTooManyQuestions, {FormatInteger(static_cast<std::int64_t>(count - room))});
  }
}

}  // namespace

int StoreExchanged(const ExchangedExam& exchanged, FrameSetExam& exam, int firstSlot, ExchangeNotes& notes) {
  ExamFilling filling(exam, notes);
  std::vector<ExchangedQuestion> questions = exchanged.questions;
  const auto room = static_cast<std::size_t>(kMaxQuestions + 1 - firstSlot);
  TellLeftOut(exchanged, room, notes);
  if (questions.size() > room) questions.resize(room);
  int slot = firstSlot;
  for (const ExchangedQuestion& question : questions) {
    notes.Begin(question.number);
    filling.Store(question, slot++);
  }
  notes.Begin(0);
  if (firstSlot == 1) {
    exam.title = OneLine(exchanged.title);
    exam.randomMode = exchanged.shufflesOptions ? RandomMode::Options : RandomMode::Off;
    filling.StoreScores(questions);
  }
  exam.CountQuestions();
  return slot;
}

}  // namespace quorvantis
