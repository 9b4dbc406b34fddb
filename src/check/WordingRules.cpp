// SPDX-License-Identifier: MIT
#include "check/WordingRules.h"

#include "check/Markup.h"
#include "check/wording/OptionWording.h"
#include "check/wording/QuestionWording.h"
#include "check/wording/WordedText.h"
#include "regex/LetterCase.h"

#include <algorithm>
#include <optional>
#include <set>

namespace quorvantis {
namespace {

/// Shows a picture by itself: "<img src=...>".
bool HasInlinePicture(std::u16string_view text) {
  return text.find(u"<img") != text.npos || text.find(u"<IMG") != text.npos;
}

bool HasFilesBefore(const CheckedExam& exam, const CheckedQuestion& question) {
  for (const int named : question.wording.namedQuestions) {
    if (named <= exam.LastQuestion() && exam.questions[static_cast<std::size_t>(named) - 1].hasFiles)
      return true;
  }
  const bool hasBefore = question.number > 1;
  return hasBefore && exam.questions[static_cast<std::size_t>(question.number) - 2].hasFiles &&
         question.wording.followsOn;
}

/// Long enough to say something: "Circuit", but not "a" or "IMG"; of Chinese two characters do.
bool IsTellingWord(std::u16string_view word) {
  constexpr std::size_t kTelling = 4;
  constexpr char16_t kFirstHan = 0x2E80;
  return word.size() >= kTelling || (word.size() >= 2 && word.front() >= kFirstHan);
}

bool SharesWord(const std::u16string& name, const WordedText& text) {
  const WordedText words(std::u16string_view(name).substr(0, name.rfind(u'.')));
  std::set<std::u16string_view> wanted;
  for (std::size_t i = 0; i < words.WordCount(); ++i) {
    if (IsTellingWord(words.Word(i))) wanted.insert(words.Word(i));
  }
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (wanted.contains(text.Word(i))) return true;
  }
  return std::any_of(wanted.begin(), wanted.end(), [&text](std::u16string_view word) {
    return word.front() > u'\u2E80' && text.Folded().find(word) != std::u16string_view::npos;
  });
}

bool IsSentenceEnd(char16_t unit) {
  constexpr char16_t kFirstBeyondAscii = 0x80;
  constexpr std::u16string_view kWideEnds = u"\u3002\uFF01\uFF1F\u061F";
  if (unit >= kFirstBeyondAscii) return kWideEnds.find(unit) != kWideEnds.npos;
  return unit == u'.' || unit == u'!' || unit == u'?' || unit == u'\r' || unit == u'\n';
}

bool IsQuestionMark(char16_t unit) {
  return unit == u'?' || unit == u'\uFF1F' || unit == u'\u061F';
}

/// The sentences in which a text asks.
std::vector<TextSpan> AskingSentences(std::u16string_view text) {
  std::vector<TextSpan> asking;
  TextSpan last;
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t end = begin;
    while (end < text.size() && !IsSentenceEnd(text[end])) ++end;
    const TextSpan sentence{begin, end};
    if (!WithoutBlanks(sentence.Of(text)).empty()) last = sentence;
    if (end < text.size() && IsQuestionMark(text[end])) asking.push_back(sentence);
    begin = end + 1;
  }
  const bool isNew = asking.empty() || asking.back() != last;
  if (isNew && !last.IsEmpty()) asking.push_back(last);
  return asking;
}

/// "不" within words that are no negations: "不同", "不仅".
bool IsPartOfChineseWord(std::u16string_view text, const TextSpan& word) {
  constexpr std::u16string_view kAfter = u"同仅僅断斷但久管论論少过過如锈鏽良妨料顾顧惜禁由足";
  return word.Of(text) == u"不" && word.end < text.size() && kAfter.find(text[word.end]) != kAfter.npos;
}

/// Set off without markup: in capitals, or between stars, lines or brackets.
bool StandsOut(std::u16string_view text, const TextSpan& word) {
  const std::u16string_view letters = word.Of(text);
  const auto isCapital = [](char16_t unit) { return ToLowerCase(unit) != unit; };
  if (std::all_of(letters.begin(), letters.end(), isCapital)) return true;
  constexpr std::u16string_view kFrame = u"*_[\u3010\u300C\u300E\u201C\"";
  return word.begin > 0 && kFrame.find(text[word.begin - 1]) != kFrame.npos;
}

/// `parts` are in ascending order.
bool IsWithin(const std::vector<TextSpan>& parts, const TextSpan& word) {
  const auto isBefore = [](const TextSpan& part, std::size_t place) { return part.end <= place; };
  const auto part = std::lower_bound(parts.begin(), parts.end(), word.begin, isBefore);
  return part != parts.end() && part->Overlaps(word);
}

/// The first negation that is asked with; nothing if one of them stands out.
std::optional<TextSpan> OverlookedNegation(const CheckedQuestion& question) {
  const std::vector<TextSpan>& negations = question.wording.negations;
  if (negations.empty()) return {};
  const std::u16string_view text = question.text;
  const std::vector<TextSpan> emphasised = EmphasisedParts(text);
  std::optional<TextSpan> first;
  auto word = negations.begin();
  for (const TextSpan& sentence : AskingSentences(text)) {
    const auto isSkipped = [&](const TextSpan& each) {
      return each.begin < sentence.begin || IsPartOfChineseWord(text, each);
    };
    word = std::find_if_not(word, negations.end(), isSkipped);
    if (word == negations.end()) break;
    if (!sentence.Contains(word->begin)) continue;
    if (StandsOut(text, *word) || IsWithin(emphasised, *word)) return {};
    if (!first) first = *word;
  }
  return first;
}

}  // namespace

void ShuffledOptionReference::Check(const CheckedExam& exam, FindingList& findings) const {
  if (exam.exam.randomMode != RandomMode::Options) return;
  for (const CheckedQuestion& question : exam.questions) {
    for (unsigned i = 0; i < kOptionCount; ++i) {
      const std::u16string_view option = question.options[i];
      if (!option.empty() && (SpeaksOfTheOthers(option) || NamesOptions(option, question.text)))
        findings.AddIn({question.number, ExamFieldName::Options, i});
    }
    if (question.answer.options && question.wording.namesOptions)
      findings.AddIn({question.number, ExamFieldName::QuestionText});
  }
}

void ShuffledQuestionReference::Check(const CheckedExam& exam, FindingList& findings) const {
  if (exam.exam.randomMode != RandomMode::Sequence) return;
  for (const CheckedQuestion& question : exam.questions) {
    if (question.wording.followsOn || !question.wording.namedQuestions.empty())
      findings.Add({question.number, ExamFieldName::QuestionText});
  }
}

void PictureWithoutFile::Check(const CheckedExam& exam, FindingList& findings) const {
  if (!exam.exam.examAttachmentPaths[0].empty()) return;
  for (const CheckedQuestion& question : exam.questions) {
    if (question.hasFiles || !question.wording.mentionsPicture || HasInlinePicture(question.text)) continue;
    if (!HasFilesBefore(exam, question)) findings.Add({question.number, ExamFieldName::QuestionText});
  }
}

void PictureWithoutWords::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const CheckedFile& file : exam.files) {
    if (file.place.question == 0 || file.kind != FileKind::Picture) continue;
    const CheckedQuestion& question = exam.questions[static_cast<std::size_t>(file.place.question) - 1];
    if (question.wording.mentionsPicture || SharesWord(file.name, WordedText(question.text))) continue;
    findings.Add(file.place, {file.name});
  }
}

void PlainNegation::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (!question.answer.options) return;
  const auto word = OverlookedNegation(question);
  if (word) findings.Add({question.number, ExamFieldName::QuestionText}, {word->Of(question.text)});
}

}  // namespace quorvantis
