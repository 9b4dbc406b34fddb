// SPDX-License-Identifier: MIT
#include "exchange/moodle/ClozeText.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/MoodleConventions.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/HtmlEscape.h"
#include "text/NumberText.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

constexpr std::u16string_view kProtectedInCloze = u"}#~/\"\\";

/// What importers take a backslash away from when the names of characters have been resolved.
bool IsProtectedLate(char16_t unit) {
  return unit == u'}' || unit == u'#';
}

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

enum class ClozeKind { Words, Number, Choice };

std::optional<ClozeKind> ClozeKindOf(std::u16string_view name) {
  const std::u16string upper = AsciiUpper(name);
  const auto begins = [&upper](std::u16string_view prefix) { return upper.starts_with(prefix); };
  if (begins(u"SHORTANSWER") || upper == u"SA" || begins(u"MW") || upper == u"SAC") return ClozeKind::Words;
  if (upper == u"NUMERICAL" || upper == u"NM") return ClozeKind::Number;
  if (begins(u"MULTICHOICE") || begins(u"MULTIRESPONSE") || begins(u"MC") || begins(u"MR"))
    return ClozeKind::Choice;
  return std::nullopt;
}

/// Reads the answers embedded in one text.
class ClozeReading {
 public:
  ClozeReading(std::u16string_view html, ExchangeNotes& notes) : html_(html), notes_(notes) {}

  ReadCloze Read() {
    for (std::size_t at = 0; at < html_.size();) {
      const std::size_t brace = std::min(html_.find(u'{', at), html_.size());
      read_.html += html_.substr(at, brace - at);
      at = brace == html_.size() ? brace : brace + TakeAnswer(brace);
    }
    return std::move(read_);
  }

 private:
  /// The length of the embedded answer at a brace; of the brace alone if it begins none.
  std::size_t TakeAnswer(std::size_t brace) {
    const std::u16string_view rest = html_.substr(brace + 1);
    const std::size_t colon = std::min(rest.find_first_not_of(u"0123456789"), rest.size());
    const std::size_t second = colon < rest.size() && rest[colon] == u':'
                                   ? rest.substr(0, colon + 40).find(u':', colon + 1)
                                   : rest.npos;
    const auto kind =
        second == rest.npos ? std::nullopt : ClozeKindOf(rest.substr(colon + 1, second - colon - 1));
    const std::size_t end = kind ? EndOf(rest, second + 1) : rest.npos;
    if (end == rest.npos) {
      read_.html += u"&#123;";
      return 1;
    }
    AddBlank(*kind, rest.substr(second + 1, end - second - 1));
    return end + 2;
  }

  static std::size_t EndOf(std::u16string_view text, std::size_t from, char16_t unit = u'}') {
    for (std::size_t i = from; i < text.size(); ++i) {
      if (text[i] == u'\\') {
        ++i;
      } else if (text[i] == unit) {
        return i;
      }
    }
    return text.npos;
  }

  void AddBlank(ClozeKind kind, std::u16string_view answers) {
    BlankAnswers rights;
    std::u16string choices;
    while (!answers.empty()) {
      const std::size_t end = std::min(EndOf(answers, 0, u'~'), answers.size());
      const double fraction = TakeOne(answers.substr(0, end), kind);
      answers.remove_prefix(std::min(end + 1, answers.size()));
      if (text_.empty()) continue;
      if (fraction >= kFullFraction || (fraction > 0 && kind != ClozeKind::Choice))
        rights.push_back(
            PlainToExamText(kind == ClozeKind::Words ? WithoutProtectedStars(text_, notes_) : text_));
      choices += (choices.empty() ? u"" : u" / ") + EscapeHtml(text_);
    }
    read_.html += BlankOfClass(EndingClass());
    if (kind == ClozeKind::Choice) {
      read_.html += u" (" + choices + u")";
      notes_.Tell(text_id::kExchangeInlineChoices);
    }
    read_.blanks.push_back(std::move(rights));
  }

  /// The class of the span that begins where the text ends so far, or nothing.
  std::u16string_view EndingClass() const {
    constexpr std::u16string_view kBegin = u"<span class=\"";
    const std::u16string_view text = read_.html;
    const std::size_t begin = text.ends_with(u"\">") ? text.rfind(kBegin) : text.npos;
    if (begin == text.npos) return {};
    const std::u16string_view name =
        text.substr(begin + kBegin.size(), text.size() - begin - kBegin.size() - 2);
    return name.find(u'"') == name.npos ? name : std::u16string_view();
  }

  /// Reads one of the answers to a blank into `text_`, and returns what it is worth in percent.
  double TakeOne(std::u16string_view answer, ClozeKind kind) {
    answer = Trimmed(answer);
    double fraction = 0;
    if (answer.starts_with(u'=')) {
      fraction = 100;
      answer.remove_prefix(1);
    } else if (answer.starts_with(u'%')) {
      const std::size_t end = std::min(answer.find(u'%', 1), answer.size());
      fraction = ParseReal(answer.substr(1, end - 1));
      answer.remove_prefix(std::min(end + 1, answer.size()));
    }
    // "&#39;" is a character, "#" alone begins feedback.
    std::size_t hash = EndOf(answer, 0, u'#');
    while (hash != answer.npos && hash > 0 && answer[hash - 1] == u'&') hash = EndOf(answer, hash + 1, u'#');
    if (hash != answer.npos) notes_.Tell(text_id::kExchangeFeedback);
    text_ = Plain(answer.substr(0, hash));
    const std::size_t margin = kind == ClozeKind::Number ? text_.find(u':') : text_.npos;
    if (margin != text_.npos) {
      if (ParseReal(std::u16string_view(text_).substr(margin + 1)) != 0)
        notes_.Tell(text_id::kExchangeTolerance, {text_});
      text_.resize(margin);
    }
    if (text_ == u"*") text_.clear();
    return fraction;
  }

  static std::u16string Plain(std::u16string_view answer) {
    const auto isAlways = [](char16_t) { return true; };
    return Unprotected(ExamTextToPlain(ReadHtml(Unprotected(answer, isAlways)).text), IsProtectedLate);
  }

  /// Without the backslashes in front of special characters that satisfy `isMeant`.
  template <class Predicate>
  static std::u16string Unprotected(std::u16string_view text, Predicate isMeant) {
    std::u16string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char16_t next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : u'\0';
      if (kProtectedInCloze.find(next) != kProtectedInCloze.npos && isMeant(next)) ++i;
      plain.push_back(text[i]);
    }
    return plain;
  }

  std::u16string_view html_;
  ExchangeNotes& notes_;
  ReadCloze read_;
  std::u16string text_;
};

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

ReadCloze ReadClozeHtml(std::u16string_view html, ExchangeNotes& notes) {
  return ClozeReading(html, notes).Read();
}

}  // namespace quorvantis
