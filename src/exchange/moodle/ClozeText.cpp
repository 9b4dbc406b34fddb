// SPDX-License-Identifier: MIT
#include "exchange/moodle/ClozeText.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/MoodleConventions.h"
#include "exchange/markup/Markup.h"
#include "text/HtmlEscape.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

/// Importers end an answer at an ampersand that is written as usual, and take a backslash away before a brace
/// or a number sign only, so numbers of characters stand for all of them.
std::u16string ProtectedAnswer(std::u16string_view plain) {
  constexpr std::u16string_view kNumbered = u"&<>\"'{}#~/\\=%";
  std::u16string text;
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const char16_t unit = plain[i];
    if (kNumbered.find(unit) == kNumbered.npos) {
      text.push_back(unit);
      continue;
    }
    const std::u16string number = u"&#" + FormatInteger(unit) + u";";
    const bool wouldProtect = unit == u'\\' && i + 1 < plain.size() && IsProtectedLate(plain[i + 1]);
    text += wouldProtect ? number + number : number;
  }
  return text;
}

/// A brace of the text itself must not begin an answer.
std::u16string WithoutBraces(std::u16string_view html) {
  std::u16string text;
  for (const char16_t unit : html) {
    if (unit == u'{') {
      text += u"&#123;";
    } else {
      text.push_back(unit);
    }
  }
  return text;
}

}  // namespace

std::u16string ClozeHtml(std::u16string_view examText, const std::vector<BlankAnswers>& blanks,
                         int blankScore) {
  const std::u16string begin = u"{" + FormatInteger(blankScore) + u":SHORTANSWER:";
  const std::u16string html = WithoutBraces(ExamTextToHtml(examText, HtmlDialect::Html));
  std::u16string cloze;
  std::size_t at = 0;
  std::size_t number = 0;
  for (const TextSpan& blank : BlanksIn(html)) {
    if (number == blanks.size()) break;
    const bool isUsual = blank.Size() == kBlank.size();
    cloze.append(html, at, blank.begin - at);
    if (!isUsual)
      cloze.append(u"<span class=\"")
          .append(kBlankClass)
          .append(FormatInteger(static_cast<std::int64_t>(blank.Size())))
          .append(u"\">");
    cloze += begin;
    for (std::size_t i = 0; i < blanks[number].size(); ++i)
      cloze.append(i == 0 ? u"=" : u"~=")
          .append(ProtectedAnswer(WithProtectedStars(ExamTextToPlain(blanks[number][i]))));
    cloze += isUsual ? u"}" : u"}</span>";
    at = blank.end;
    ++number;
  }
  return cloze.append(html, at);
}

}  // namespace quorvantis
