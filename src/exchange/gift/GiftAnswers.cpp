// SPDX-License-Identifier: MIT
#include "exchange/gift/GiftAnswers.h"

#include "exchange/form/MoodleConventions.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/gift/GiftBraces.h"
#include "exchange/gift/GiftText.h"
#include "exchange/markup/MarkdownText.h"
#include "exchange/markup/MarkupNotes.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kGeneralFeedback = u"####";
constexpr std::u16string_view kPair = u"->";

}  // namespace

GiftTextFormat TakeGiftFormat(std::u16string_view& text, GiftTextFormat otherwise) {
  constexpr std::pair<std::u16string_view, GiftTextFormat> kNames[] = {
      {u"[html]", GiftTextFormat::Html},
      {u"[moodle]", GiftTextFormat::Moodle},
      {u"[plain]", GiftTextFormat::Plain},
      {u"[markdown]", GiftTextFormat::Markdown}};
  text = Trimmed(text);
  for (const auto& [name, format] : kNames) {
    if (!text.starts_with(name)) continue;
    text = Trimmed(text.substr(name.size()));
    return format;
  }
  return otherwise;
}

bool AreGiftPairs(std::u16string_view answers) {
  answers = Trimmed(answers.substr(0, FindUnprotectedWord(answers, kGeneralFeedback)));
  if (!answers.starts_with(u'=') || FindOutsideBraces(answers, u"~") != answers.npos) return false;
  for (std::size_t begin = 0; begin != answers.npos;) {
    const std::size_t end = FindOutsideBraces(answers, u"=", begin + 1);
    const std::u16string_view answer = answers.substr(begin, std::min(end, answers.size()) - begin);
    const std::u16string_view shown = answer.substr(0, FindOutsideBraces(answer, u"#"));
    if (FindUnprotectedWord(shown, kPair) == shown.npos) return false;
    begin = end;
  }
  return true;
}

std::u16string GiftAnswers::FormattedText(std::u16string_view text, GiftTextFormat otherwise) {
  const GiftTextFormat outer = format_;
  format_ = TakeGiftFormat(text, otherwise);
  std::u16string read = Text(text);
  format_ = outer;
  return read;
}

std::u16string GiftAnswers::Text(std::u16string_view text) {
  std::u16string plain = Unprotected(text);
  if (format_ == GiftTextFormat::Plain) return PlainToExamText(plain);
  if (format_ == GiftTextFormat::Markdown) {
    if (HasMarkdownBlocks(plain)) tools_.notes.Tell(text_id::kExchangeMarkdownStays);
    plain = MarkdownToHtml(plain);
  }
  const bool isExamText = format_ == GiftTextFormat::Moodle;
  return TextWithoutFiles(isExamText ? ReadExamText(plain) : ReadHtml(plain), tools_.notes);
}

bool GiftAnswers::Read(std::u16string_view answers, ExchangedQuestion& question) {
  const std::size_t general = FindUnprotectedWord(answers, kGeneralFeedback);
  const std::u16string_view feedback = general == answers.npos
                                           ? std::u16string_view()
                                           : Trimmed(answers.substr(general + kGeneralFeedback.size()));
  answers = Trimmed(answers.substr(0, general));
  if (answers.empty()) {
    question.kind = QuestionKind::Essay;
    question.modelAnswer = FormattedText(feedback, format_);
    return true;
  }
  if (!feedback.empty()) tools_.notes.Tell(text_id::kExchangeFeedback);
  if (answers.front() == u'#') return ReadNumbers(answers.substr(1), question);
  if (FindUnprotected(answers, u"=~") != 0) return ReadTrueFalse(answers, question);
  const std::vector<Answer> list = Cut(answers);
  const bool isChoice = std::ranges::any_of(list, [](const Answer& answer) { return answer.mark == u'~'; });
  if (isChoice) {
    ReadOptions(list, question);
  } else if (!ReadPairs(list, question)) {
    ReadAlternatives(list, question);
  }
  return true;
}

std::optional<GiftBlank> GiftAnswers::ReadBlank(std::u16string_view answers) {
  ExchangedQuestion part;
  if (AreGiftPairs(answers) || Trimmed(answers).empty() || !Read(answers, part)) return std::nullopt;
  if (part.kind == QuestionKind::FillIn && !part.blanks.empty()) return GiftBlank{part.blanks.front()};
  if (part.kind != QuestionKind::Choice) return std::nullopt;
  tools_.notes.Tell(text_id::kExchangeInlineChoices);
  GiftBlank blank{{}, Choices(part.options)};
  for (const ExchangedOption& option : part.options) {
    if (option.isRight) blank.rights.push_back(option.text);
  }
  return blank;
}

std::u16string GiftAnswers::Choices(const std::vector<ExchangedOption>& options) const {
  std::u16string choices;
  for (const ExchangedOption& option : options) {
    const bool isPlain = format_ == GiftTextFormat::Plain;
    const std::u16string text = WithLineEnds(isPlain ? ExamTextToPlain(option.text) : option.text, u" ");
    choices.append(choices.empty() ? u"" : u" / ").append(Protected(text));
  }
  return choices;
}

std::vector<GiftAnswers::Answer> GiftAnswers::Cut(std::u16string_view answers) {
  std::vector<Answer> list;
  for (std::size_t begin = FindOutsideBraces(answers, u"=~"); begin != answers.npos;) {
    const std::size_t end = FindOutsideBraces(answers, u"=~", begin + 1);
    list.push_back(
        ReadAnswer(answers[begin], answers.substr(begin + 1, std::min(end, answers.size()) - begin - 1)));
    begin = end;
  }
  return list;
}

GiftAnswers::Answer GiftAnswers::ReadAnswer(char16_t mark, std::u16string_view text) {
  Answer answer{mark, mark == u'=' ? 100.0 : 0.0, Trimmed(text)};
  const std::size_t end = answer.text.starts_with(u'%') ? answer.text.find(u'%', 1) : answer.text.npos;
  if (end != answer.text.npos &&
      answer.text.substr(1, end - 1).find_first_not_of(u"0123456789.-+ ") == answer.text.npos) {
    answer.fraction = ParseReal(answer.text.substr(1, end - 1));
    answer.text.remove_prefix(end + 1);
  }
  answer.text = WithoutFeedback(answer.text);
  return answer;
}

std::u16string_view GiftAnswers::WithoutFeedback(std::u16string_view text) {
  const std::size_t hash = FindOutsideBraces(text, u"#");
  if (hash != text.npos && !Trimmed(text.substr(hash + 1)).empty())
    tools_.notes.Tell(text_id::kExchangeFeedback);
  return Trimmed(text.substr(0, hash));
}

bool GiftAnswers::ReadTrueFalse(std::u16string_view answers, ExchangedQuestion& question) {
  if (!IsTrueOrFalse(answers)) return false;
  MakeTrueFalse(AsciiUpper(WithoutFeedback(answers)).front() == u'T', tools_.strings, question);
  return true;
}

bool GiftAnswers::ReadNumbers(std::u16string_view answers, ExchangedQuestion& question) {
  question.kind = QuestionKind::FillIn;
  std::vector<Answer> list = Cut(answers);
  if (list.empty()) list.push_back(ReadAnswer(u'=', answers));
  BlankAnswers numbers;
  for (const Answer& answer : list) {
    const std::size_t colon = answer.text.find(u':');
    const std::u16string_view number = Trimmed(answer.text.substr(0, colon));
    const bool hasMargin = colon != answer.text.npos && ParseReal(answer.text.substr(colon + 1)) != 0;
    if (hasMargin || number.find(u"..") != number.npos)
      tools_.notes.Tell(text_id::kExchangeTolerance, {std::u16string(answer.text)});
    const std::u16string text = PlainToExamText(Unprotected(number));
    const bool isNew = !text.empty() && std::ranges::find(numbers, text) == numbers.end();
    if (isNew && Counts(answer)) numbers.push_back(text);
  }
  if (numbers.empty()) return false;
  question.blanks = {numbers};
  return true;
}

bool GiftAnswers::Counts(const Answer& answer) {
  const std::u16string text = PlainToExamText(Unprotected(answer.text));
  if (answer.fraction <= 0) {
    tools_.notes.Tell(text_id::kExchangeWrongAnswer, {Excerpt(text)});
  } else if (answer.fraction < kFullFraction) {
    tools_.notes.Tell(text_id::kExchangePartlyRightAnswer, {Excerpt(text)});
  }
  return answer.fraction > 0;
}

bool GiftAnswers::ReadPairs(const std::vector<Answer>& answers, ExchangedQuestion& question) {
  std::vector<std::pair<std::u16string, std::u16string>> pairs;
  for (const Answer& answer : answers) {
    const std::size_t arrow = FindUnprotectedWord(answer.text, kPair);
    if (arrow == answer.text.npos) return false;
    pairs.emplace_back(Text(Trimmed(answer.text.substr(0, arrow))),
                       Text(Trimmed(answer.text.substr(arrow + kPair.size()))));
  }
  MakeMatching(pairs, question, tools_.notes);
  return true;
}

void GiftAnswers::ReadAlternatives(const std::vector<Answer>& answers, ExchangedQuestion& question) {
  question.kind = QuestionKind::FillIn;
  BlankAnswers alternatives;
  for (const Answer& answer : answers) {
    if (answer.text.empty() || !Counts(answer)) continue;
    std::u16string text =
        WithoutProtectedStars(FormattedText(answer.text, GiftTextFormat::Plain), tools_.notes);
    if (!text.empty()) alternatives.push_back(std::move(text));
  }
  if (!alternatives.empty()) question.blanks = {alternatives};
}

void GiftAnswers::ReadOptions(const std::vector<Answer>& answers, ExchangedQuestion& question) {
  std::vector<double> fractions;
  for (const Answer& answer : answers) {
    if (answer.text.empty()) continue;  // "~=" is only "="
    question.options.push_back({FormattedText(answer.text, format_), false});
    fractions.push_back(answer.fraction);
  }
  DecideRights(fractions, question.options, tools_.notes);
}

}  // namespace quorvantis
