// SPDX-License-Identifier: MIT
#include "exchange/moodle/ClozeReading.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "exchange/moodle/ClozeAnswers.h"
#include "exchange/moodle/ClozeText.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/HtmlEscape.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kProtectedInCloze = u"}#~/\"\\";

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
    const std::size_t end = kind && hasEnds_ ? EndOf(rest, second + 1) : rest.npos;
    if (end == rest.npos) {
      hasEnds_ = hasEnds_ && !kind;
      read_.html += u"&#123;";
      return 1;
    }
    if (CaseMattersIn(rest.substr(colon + 1, second - colon - 1))) notes_.Tell(text_id::kExchangeCaseMatters);
    AddBlank(*kind, rest.substr(second + 1, end - second - 1));
    AddScore(colon == 0 ? 1 : ParseReal(rest.substr(0, colon)));
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

  void AddBlank(ClozeKind kind, std::u16string_view source) {
    std::vector<ClozeAnswer> answers;
    std::u16string choices;
    while (!source.empty()) {
      const std::size_t end = std::min(EndOf(source, 0, u'~'), source.size());
      ClozeAnswer answer = ReadOne(source.substr(0, end), kind);
      source.remove_prefix(std::min(end + 1, source.size()));
      if (answer.text.empty()) continue;
      choices += (choices.empty() ? u"" : u" / ") + EscapeHtml(answer.text);
      answers.push_back(std::move(answer));
    }
    read_.html += BlankOfClass(EndingClass());
    if (kind == ClozeKind::Choice || kind == ClozeKind::Choices) {
      read_.html += u" (" + choices + u")";
      notes_.Tell(text_id::kExchangeInlineChoices);
    }
    read_.blanks.push_back(RightAnswers(kind, answers, notes_));
  }

  void AddScore(double score) {
    if (read_.blanks.size() > 1 && score != lastScore_) notes_.Tell(text_id::kExchangeBlankWeights);
    lastScore_ = score;
    read_.score += score;
  }

  /// The class of the span that begins where the text ends so far, or nothing.
  std::u16string_view EndingClass() const {
    constexpr std::u16string_view kBegin = u"<span class=\"";
    constexpr std::size_t kLongest = 60;
    const std::u16string_view html = read_.html;
    const std::u16string_view text = html.substr(html.size() - std::min(kLongest, html.size()));
    const std::size_t begin = text.ends_with(u"\">") ? text.rfind(kBegin) : text.npos;
    if (begin == text.npos) return {};
    const std::u16string_view name =
        text.substr(begin + kBegin.size(), text.size() - begin - kBegin.size() - 2);
    return name.find(u'"') == name.npos ? name : std::u16string_view();
  }

  ClozeAnswer ReadOne(std::u16string_view answer, ClozeKind kind) {
    answer = Trimmed(answer);
    ClozeAnswer read;
    if (answer.starts_with(u'=')) {
      read.fraction = 100;
      answer.remove_prefix(1);
    } else if (answer.starts_with(u'%')) {
      const std::size_t end = std::min(answer.find(u'%', 1), answer.size());
      read.fraction = ParseReal(answer.substr(1, end - 1));
      answer.remove_prefix(std::min(end + 1, answer.size()));
    }
    // "&#39;" is a character, "#" alone begins feedback.
    std::size_t hash = EndOf(answer, 0, u'#');
    while (hash != answer.npos && hash > 0 && answer[hash - 1] == u'&') hash = EndOf(answer, hash + 1, u'#');
    if (hash != answer.npos) notes_.Tell(text_id::kExchangeFeedback);
    read.text = Plain(answer.substr(0, hash));
    const std::size_t margin = kind == ClozeKind::Number ? read.text.find(u':') : read.text.npos;
    if (margin != read.text.npos) {
      if (ParseReal(std::u16string_view(read.text).substr(margin + 1)) != 0)
        notes_.Tell(text_id::kExchangeTolerance, {read.text});
      read.text.resize(margin);
    }
    if (read.text == u"*") read.text.clear();
    return read;
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
  double lastScore_ = 0;
  bool hasEnds_ = true;  ///< whether a brace may close an answer further on
};

}  // namespace

ReadCloze ReadClozeHtml(std::u16string_view html, ExchangeNotes& notes) {
  return ClozeReading(html, notes).Read();
}

}  // namespace quorvantis
