// SPDX-License-Identifier: MIT
#include "exchange/moodle/Languages.h"

#include "exchange/markup/ReadTag.h"
#include "text/AsciiCase.h"
#include "text/PageTokens.h"

#include <cstddef>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBetweenLanguages = u" / ";

bool IsBlankText(std::u16string_view text) {
  return text.find_first_not_of(u" \t\r\n") == text.npos;
}

/// Copies a text, with something else between the same in one language and in the next.
class LanguageText {
 public:
  explicit LanguageText(std::u16string_view text) : text_(text) {}

  /// What is in a language begins at `begin`; its mark, up to `content`, is left out.
  void Begin(std::size_t begin, std::size_t content) {
    const bool follows = end_ && IsBlankText(text_.substr(*end_, begin - *end_));
    if (follows) {
      copy_ += kBetweenLanguages;
    } else {
      copy_ += text_.substr(copied_, begin - copied_);
    }
    copied_ = content;
    ++count_;
  }

  /// It ends at `end`, with a mark up to `after` that is left out.
  void End(std::size_t end, std::size_t after) {
    copy_ += text_.substr(copied_, end - copied_);
    copied_ = after;
    end_ = after;
  }

  std::size_t Count() const { return count_; }
  std::u16string Whole() const { return copy_ + std::u16string(text_.substr(copied_)); }

 private:
  std::u16string_view text_;
  std::u16string copy_;
  std::size_t copied_ = 0;
  std::optional<std::size_t> end_;  ///< of the last one
  std::size_t count_ = 0;
};

bool IsOfLanguage(std::u16string_view html, const PageToken& token) {
  return token.isClosed && ReadTagAt(html, token).Value(u"class").find(u"multilang") != html.npos;
}

std::optional<std::u16string> SpansSideBySide(std::u16string_view html) {
  LanguageText text(html);
  int depth = 0;
  PageTokens tokens(html);
  while (const auto token = tokens.Next()) {
    if (!token->IsTag() || !EqualsIgnoringAsciiCase(token->name.Of(html), u"span")) continue;
    const bool isBegin = token->kind == PageTokenKind::BeginTag;
    if (depth > 0) {
      depth += isBegin ? 1 : -1;
      if (depth == 0) text.End(token->span.end, token->span.end);
    } else if (isBegin && IsOfLanguage(html, *token)) {
      text.Begin(token->span.begin, token->span.begin);
      depth = 1;
    }
  }
  return text.Count() > 1 ? std::optional(text.Whole()) : std::nullopt;
}

std::optional<std::u16string> MarksSideBySide(std::u16string_view html) {
  constexpr std::u16string_view kMark = u"{mlang";
  LanguageText text(html);
  bool isOpen = false;
  for (std::size_t at = html.find(kMark); at != html.npos; at = html.find(kMark, at)) {
    const std::size_t end = html.find(u'}', at);
    if (end == html.npos) break;
    const bool isBegin = !IsBlankText(html.substr(at + kMark.size(), end - at - kMark.size()));
    if (isOpen) text.End(at, end + 1);
    if (isBegin) text.Begin(isOpen ? end + 1 : at, end + 1);
    isOpen = isBegin;
    at = end + 1;
  }
  return text.Count() > 0 ? std::optional(text.Whole()) : std::nullopt;
}

}  // namespace

std::optional<std::u16string> LanguagesSideBySide(std::u16string_view html) {
  const auto spans = SpansSideBySide(html);
  const auto marks = MarksSideBySide(spans ? std::u16string_view(*spans) : html);
  return marks ? marks : spans;
}

}  // namespace quorvantis
