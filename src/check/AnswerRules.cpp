// SPDX-License-Identifier: MIT
#include "check/AnswerRules.h"

#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cstdint>

namespace quorvantis {
namespace {

bool IsUnderscore(char16_t unit) {
  return unit == u'_' || unit == u'\uFF3F';
}

bool IsBlankToFill(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\u00A0' || unit == u'\u3000';
}

/// Where the run of underscores at `begin` ends. Single ones with a blank between them are one run.
std::size_t EndOfUnderscores(std::u16string_view text, std::size_t begin) {
  std::size_t end = begin;
  while (end < text.size() && IsUnderscore(text[end])) ++end;
  const auto goesOn = [&text](std::size_t at) {
    const bool isNext = at + 1 < text.size() && text[at] == u' ' && IsUnderscore(text[at + 1]);
    return isNext && (at + 2 == text.size() || !IsUnderscore(text[at + 2]));
  };
  while (end - begin == 1 || text[end - 2] == u' ') {
    if (!goesOn(end)) break;
    end += 2;
  }
  return end;
}

/// Before a bracket, "f( )" or "list[ ]", such a unit makes it code.
bool IsInName(char16_t unit) {
  return IsDigit(unit) || (AsciiLower(unit) >= u'a' && AsciiLower(unit) <= u'z');
}

/// The end of blanks alone between what opens at `begin` and what closes; 0 if there is something else.
std::size_t EndOfFrame(std::u16string_view text, std::size_t begin) {
  struct Frame {
    std::u16string_view opens, closes;
  };
  constexpr Frame kFrames[] = {
      {u"(", u")"}, {u"\uFF08", u"\uFF09"}, {u"[", u"]"}, {u"<u>", u"</u>"}, {u"<U>", u"</U>"}};
  if (begin > 0 && IsInName(text[begin - 1])) return 0;
  for (const Frame& frame : kFrames) {
    if (!text.substr(begin).starts_with(frame.opens)) continue;
    std::size_t end = begin + frame.opens.size();
    while (end < text.size() && IsBlankToFill(text[end])) ++end;
    const bool isBlank = end > begin + frame.opens.size();
    if (isBlank && text.substr(end).starts_with(frame.closes)) return end + frame.closes.size();
  }
  return 0;
}

/// No-break blanks as authors may write them.
std::u16string WithPlainBlanks(std::u16string_view text) {
  constexpr std::u16string_view kEntity = u"&nbsp;";
  std::u16string plain;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t entity = std::min(text.find(kEntity, at), text.size());
    plain.append(text.substr(at, entity - at));
    if (entity < text.size()) plain += u' ';
    at = std::min(entity + kEntity.size(), text.size());
  }
  return plain;
}

}  // namespace

std::size_t CountBlanks(std::u16string_view text) {
  const std::u16string plain = WithPlainBlanks(text);
  const std::u16string_view view = plain;
  std::size_t blanks = 0;
  for (std::size_t at = 0; at < view.size();) {
    const bool isRun = IsUnderscore(view[at]);
    const std::size_t end = isRun ? EndOfUnderscores(view, at) : EndOfFrame(view, at);
    const bool isBlank = isRun ? end > at + 1 : end > 0;
    if (isBlank) ++blanks;
    at = std::max(end, at + 1);
  }
  return blanks;
}

void FillInWithoutAnswer::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (question.answer.fillIn && AnswersOf(question.question.answerText).empty())
    findings.Add({question.number, ExamFieldName::FillInAnswer});
}

void EssayWithoutAnswer::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (question.answer.essay && WithoutBlanks(question.question.essayAnswer).empty())
    findings.Add({question.number, ExamFieldName::EssayAnswer});
}

void BlanksAndAnswers::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (!question.answer.fillIn) return;
  const std::size_t answers = AnswersOf(question.question.answerText).size();
  const std::size_t blanks = answers > 0 ? CountBlanks(question.text) : 0;
  if (blanks == 0 || blanks == answers) return;
  const auto digits = [](std::size_t number) { return FormatInteger(static_cast<std::int64_t>(number)); };
  findings.Add({question.number, ExamFieldName::FillInAnswer}, {digits(blanks), digits(answers)});
}

}  // namespace quorvantis
