// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/Format.h"
#include "exchange/markup/Markup.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// How a text in GIFT is meant.
enum class GiftTextFormat {
  Moodle,  ///< markup, and line ends are line breaks: as in an exam
  Html,
  Plain,
  Markdown,
};

/// Cuts a name such as "[html]" off the front of `text`; without one the format is `otherwise`.
GiftTextFormat TakeGiftFormat(std::u16string_view& text, GiftTextFormat otherwise);

/// A blank within a text.
struct GiftBlank {
  BlankAnswers rights;
  std::u16string choices{};  ///< what pupils choose from, as the text in the file would have it; may be empty
};

/// Whether all answers are pairs.
bool AreGiftPairs(std::u16string_view answers);

/// Reads what stands between the braces of one question.
class GiftAnswers {
 public:
  /// `format` is that of the question's text, which its answers have, too.
  GiftAnswers(GiftTextFormat format, ReadingTools& tools) : format_(format), tools_(tools) {}

  /// An exam text from one with backslashes.
  std::u16string Text(std::u16string_view text);

  /// Fills in all but the text of the question. False if this is no answer of any kind.
  bool Read(std::u16string_view answers, ExchangedQuestion& question);

  /// The same as one of several blanks. Nothing if it cannot be one.
  std::optional<GiftBlank> ReadBlank(std::u16string_view answers);

 private:
  /// One of several answers: "=", "~" or, for a number, nothing; how much it is worth; its text.
  struct Answer {
    char16_t mark = u'=';
    double fraction = 0;  ///< in percent
    std::u16string_view text;
  };

  /// The same, with the name of a format in front or not.
  std::u16string FormattedText(std::u16string_view text, GiftTextFormat otherwise);

  std::vector<Answer> Cut(std::u16string_view answers);
  std::u16string Choices(const std::vector<ExchangedOption>& options) const;
  /// Whether a short answer counts, in part or fully; tells of what does not count fully.
  bool Counts(const Answer& answer);
  Answer ReadAnswer(char16_t mark, std::u16string_view text);
  std::u16string_view WithoutFeedback(std::u16string_view text);
  bool ReadTrueFalse(std::u16string_view answers, ExchangedQuestion& question);
  bool ReadNumbers(std::u16string_view answers, ExchangedQuestion& question);
  bool ReadPairs(const std::vector<Answer>& answers, ExchangedQuestion& question);
  void ReadAlternatives(const std::vector<Answer>& answers, ExchangedQuestion& question);
  void ReadOptions(const std::vector<Answer>& answers, ExchangedQuestion& question);

  GiftTextFormat format_;
  ReadingTools& tools_;
};

}  // namespace quorvantis
