// SPDX-License-Identifier: MIT
#include "exchange/form/MoodleConventions.h"
#include "exchange/gift/GiftFormat.h"
#include "exchange/gift/GiftText.h"
#include "exchange/markup/Markup.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kOfPairs = u"->";  // would make the answers pairs, wherever it stands
constexpr std::u16string_view kGiftFormatNames[] = {u"[html]", u"[moodle]", u"[plain]", u"[markdown]"};

bool BeginsLikeFormat(std::u16string_view text) {
  return std::any_of(std::begin(kGiftFormatNames), std::end(kGiftFormatNames),
                     [text](std::u16string_view name) { return text.starts_with(name); });
}

/// No escape keeps the name of a format in front from being read as one, but only the first is.
std::u16string WithFormatNamed(std::u16string text, std::u16string_view format) {
  return BeginsLikeFormat(text) ? std::u16string(format) + text : text;
}

/// Writes one question.
class GiftQuestion {
 public:
  explicit GiftQuestion(const ExchangedQuestion& question)
      : question_(question), isHtml_(NeedsHtml(question)) {}

  std::u16string Text() const {
    return u"::Q" + FormatInteger(question_.number) + u"::" + (isHtml_ ? u"[html]" : u"") +
           Shown(question_.text) + u" {" + Answers() + u"}\n\n";
  }

 private:
  static bool NeedsHtml(const ExchangedQuestion& question) {
    if (HasTags(question.text) || HasTags(question.modelAnswer)) return true;
    if (BeginsLikeFormat(question.text)) return true;
    return std::ranges::any_of(question.options, [](const ExchangedOption& option) {
      return HasTags(option.text) || option.text.find(kOfPairs) != option.text.npos;
    });
  }

  /// Where no format is named, a text is read like that of an exam.
  std::u16string Shown(const std::u16string& text) const {
    return Protected(isHtml_ ? ExamTextToHtml(text, HtmlDialect::Html) : WithLineEnds(text, u"\n"));
  }

  std::u16string Answers() const {
    switch (question_.kind) {
      case QuestionKind::Choice:
        return Options();
      case QuestionKind::FillIn:
        return Alternatives();
      case QuestionKind::Essay:
      case QuestionKind::Oral:
        break;
    }
    return question_.modelAnswer.empty() ? u"" : u"####" + ShownInAnswers(question_.modelAnswer);
  }

  std::u16string ShownInAnswers(const std::u16string& text) const {
    return WithFormatNamed(Shown(text), isHtml_ ? u"[html]" : u"[moodle]");
  }

  std::u16string Options() const {
    const auto rights =
        static_cast<std::size_t>(std::ranges::count_if(question_.options, &ExchangedOption::isRight));
    // A single option with "=" would be the answer to a fill-in question.
    const bool isPlain = rights == 1 && question_.options.size() > 1;
    std::u16string lines = u"\n";
    for (const ExchangedOption& option : question_.options) {
      const std::u16string text = ShownInAnswers(option.text);
      lines += option.isRight && isPlain ? u"\t=" : u"\t~";
      if (option.isRight && !isPlain) {
        lines.append(u"%").append(Utf8ToUtf16(RightShare(rights))).append(u"%");
      } else if (!option.isRight && rights > 1) {
        lines += u"%-100%";
      } else if (text.starts_with(u'%')) {  // would be a share itself
        lines += option.isRight ? u"%100%" : u"%0%";
      }
      lines += text + u"\n";
    }
    return lines;
  }

  static std::u16string Answer(const std::u16string& answer) {
    return WithFormatNamed(Protected(WithProtectedStars(ExamTextToPlain(answer))), u"[plain]");
  }

  std::u16string Alternatives() const {
    std::u16string lines = u"\n";
    for (const BlankAnswers& blank : question_.blanks) {
      for (const std::u16string& answer : blank) lines += u"\t=%100%" + Answer(answer) + u"\n";
    }
    return lines;
  }

  const ExchangedQuestion& question_;
  bool isHtml_;
};

}  // namespace

std::string GiftWriter::Write(const ExchangedExam& exam, const StringTable&, Progress&) {
  std::u16string text;
  if (!exam.title.empty())
    text = u"$CATEGORY: $course$/top/" + WithoutSlashes(ExamTextToPlain(exam.title)) + u"\n\n";
  for (const ExchangedQuestion& question : exam.questions) text += GiftQuestion(question).Text();
  return Utf16ToUtf8(text);
}

}  // namespace quorvantis
