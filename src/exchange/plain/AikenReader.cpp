// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/NamedPlaces.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "exchange/plain/AikenFormat.h"
#include "exchange/plain/AikenLine.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kFeedbackLines[] = {u"FEEDBACK:", u"EXPLANATION:"};

bool IsFeedbackLine(std::u16string_view line) {
  return std::any_of(std::begin(kFeedbackLines), std::end(kFeedbackLines), [line](std::u16string_view word) {
    return EqualsIgnoringAsciiCase(line.substr(0, word.size()), word);
  });
}

/// Puts the questions together line by line.
class AikenQuestions {
 public:
  explicit AikenQuestions(ExchangeNotes& notes) : notes_(notes) { notes_.Begin(1); }

  /// `next` is the line below.
  void Take(std::u16string_view line, std::u16string_view next) {
    const bool isBelowBlank = std::exchange(isBlank_, line.empty());
    const bool isBelowAnswer = std::exchange(isAnswer_, false);
    if (line.empty()) return;
    if (const auto answer = AnswerOfLine(line)) return End(line, *answer);
    const auto option = OptionOfLine(line);
    if (isBelowAnswer && !isBelowBlank && IsFeedbackLine(line)) {
      TellFeedback();
    } else if (option && IsOption(*option, next)) {
      options_.push_back({option->letter, std::u16string(option->text)});
    } else {
      // What follows a blank line is the next question, even if this one has no answer.
      if (isBelowBlank && options_.size() > 1) End({}, {});
      Append(line);
    }
  }

  std::vector<ExchangedQuestion> Finish() {
    if (!text_.empty()) notes_.Tell(text_id::kExchangePartNotRead, {Excerpt(text_)});
    notes_.Begin(0);
    return std::move(questions_);
  }

 private:
  struct Option {
    std::size_t letter = 0;
    std::u16string text;
  };

  /// Letters may be missing. A letter that touches its text counts where another option stands next to it.
  bool IsOption(const AikenOption& option, std::u16string_view next) const {
    if (text_.empty()) return false;
    if (options_.empty()) {
      const auto other = option.letter == 0 ? OptionOfLine(next) : std::nullopt;
      return option.letter == 0 && (option.standsApart || (other && other->letter == 1));
    }
    const std::size_t last = options_.back().letter;
    return option.letter == last + 1 || (option.letter > last && option.standsApart);
  }

  void Append(std::u16string_view line) {
    std::u16string& longer = options_.empty() ? text_ : options_.back().text;
    if (longer.size() + line.size() > kMaxReadText) {
      if (!std::exchange(isCut_, true))
        notes_.Tell(text_id::kExchangeTextCut, {FormatInteger(static_cast<std::int64_t>(kMaxReadText))});
      return;
    }
    if (!longer.empty()) longer.push_back(u'\n');
    longer += line;
  }

  void TellFeedback() {
    const int next = notes_.Question();
    notes_.Begin(next - 1);
    notes_.Tell(text_id::kExchangeFeedback);
    notes_.Begin(next);
  }

  /// Ends a question at the line of its answer, or without one.
  void End(std::u16string_view line, std::u16string_view answer) {
    if (options_.size() == 1) DivideLine();
    if (text_.empty() || options_.empty()) {
      notes_.Tell(text_id::kExchangePartNotRead, {Excerpt(text_.empty() ? line : text_)});
    } else {
      AddQuestion(answer);
    }
    text_.clear();
    options_.clear();
    isCut_ = false;
    isAnswer_ = true;
    notes_.Begin(notes_.Question() + 1);
  }

  /// A single option may hold all: "A. yes B. no".
  void DivideLine() {
    for (std::size_t letter = 1; letter < 26; ++letter) {
      std::u16string& last = options_.back().text;
      const auto name = static_cast<char16_t>(u'A' + letter);
      std::size_t at = last.find(std::u16string{u' ', name, u'.', u' '});
      if (at == last.npos) at = last.find(std::u16string{u' ', name, u')', u' '});
      if (at == last.npos) return;
      std::u16string rest(Trimmed(std::u16string_view(last).substr(at + 4)));
      last = std::u16string(Trimmed(std::u16string_view(last).substr(0, at)));
      options_.push_back({letter, std::move(rest)});
    }
  }

  void AddQuestion(std::u16string_view answer) {
    ExchangedQuestion question;
    question.number = notes_.Question();
    question.text = PlainToExamText(text_);
    std::vector<std::size_t> letters;
    for (const Option& option : options_) {
      letters.push_back(option.letter);
      question.options.push_back({PlainToExamText(option.text), false});
    }
    const NamedPlaces places = PlacesIn(answer, letters);
    for (const std::size_t place : places.options) question.options[place].isRight = true;
    TellAnswer(answer, places, letters);
    questions_.push_back(std::move(question));
  }

  void TellAnswer(std::u16string_view answer, const NamedPlaces& places,
                  const std::vector<std::size_t>& letters) {
    if (answer.empty()) return notes_.Tell(text_id::kExchangeNoRightRead);
    if (places.options.empty()) return notes_.Tell(text_id::kExchangeRightNotRead, {Excerpt(answer)});
    if (!places.hasWords && !places.namesOthers) return;
    std::u16string names;
    for (const std::size_t place : places.options)
      names.push_back(static_cast<char16_t>(u'A' + letters[place]));
    notes_.Tell(text_id::kExchangeRightReadPartly, {Excerpt(answer), names});
  }

  ExchangeNotes& notes_;
  std::vector<ExchangedQuestion> questions_;
  std::u16string text_;
  std::vector<Option> options_;
  bool isBlank_ = false;  ///< the line before; likewise:
  bool isAnswer_ = false;
  bool isCut_ = false;  ///< the question that is being read
};

}  // namespace

bool LooksLikeAiken(const ExchangeSource& source) {
  const std::u16string head = HeadText(source);
  bool hasOption = false;
  for (const std::u16string_view line : LinesOf(head)) {
    const auto option = OptionOfLine(Trimmed(line));
    if (option && option->letter == 0) hasOption = true;
    if (hasOption && AnswerOfLine(Trimmed(line))) return true;
  }
  return false;
}

bool IsNoAikenText(std::u16string_view line) {
  return OptionOfLine(line) || AnswerOfLine(line);
}

std::optional<ExchangedExam> AikenReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  const auto text = ReadSourceText(source, tools);
  if (!text) return std::nullopt;
  AikenQuestions questions(tools.notes);
  ExchangedExam exam;
  for (std::u16string_view rest = *text; !rest.empty() && !tools.progress.IsCancelled();) {
    const std::u16string_view line = Trimmed(TakeLine(rest));
    exam.isCutShort = !line.empty() && tools.notes.Question() > static_cast<int>(kMaxReadQuestions);
    if (exam.isCutShort) break;
    questions.Take(line, Trimmed(rest.substr(0, rest.find(u'\n'))));
  }
  exam.questions = questions.Finish();
  return exam;
}

}  // namespace quorvantis
