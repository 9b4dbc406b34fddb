// SPDX-License-Identifier: MIT
#include "text/PageTokens.h"

#include "text/AsciiCase.h"

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

/// What looks like markup between these and their ends is text.
constexpr std::u16string_view kPlainElements[] = {u"iframe",    u"noembed", u"noframes", u"noscript",
                                                  u"plaintext", u"script",  u"style",    u"textarea",
                                                  u"title",     u"xmp"};

constexpr std::u16string_view kCommentMark = u"<!--";

constexpr bool BeginsName(char16_t unit) {
  return AsciiLower(unit) >= u'a' && AsciiLower(unit) <= u'z';
}

constexpr bool IsTagBlank(char16_t unit) {
  return unit == u' ' || (unit >= u'\t' && unit <= u'\r' && unit != u'\v');
}

constexpr bool EndsName(char16_t unit) {
  return unit == u'>' || unit == u'/' || IsTagBlank(unit);
}

/// The first place at or after `at` whose unit has the property; the end of the text if there is none.
template <class Property>
std::size_t FindUnit(std::u16string_view text, std::size_t at, Property has) {
  while (at < text.size() && !has(text[at])) ++at;
  return at;
}

/// Where the comment ends whose begin is at `begin`; npos if it does not.
std::size_t EndOfComment(std::u16string_view text, std::size_t begin) {
  // The dashes of its begin may be those of its end, too: "<!-->".
  const std::size_t first = begin + kCommentMark.size() - 2;
  for (std::size_t at = text.find(u"--", first); at != text.npos; at = text.find(u"--", at + 1)) {
    const std::u16string_view after = text.substr(at + 2);
    if (after.starts_with(u'>')) return at + 3;
    if (after.starts_with(u"!>") && at >= begin + kCommentMark.size()) return at + 4;
  }
  return text.npos;
}

}  // namespace

std::optional<PageToken> PageTokens::Next() {
  if (at_ >= text_.size()) return std::nullopt;
  PageToken token;
  token.span = {at_, text_.size()};
  token.kind = MarkupAt(at_).value_or(PageTokenKind::Text);
  switch (token.kind) {
    case PageTokenKind::Text:
      token.span.end = EndOfText(at_);
      break;
    case PageTokenKind::BeginTag:
    case PageTokenKind::EndTag:
      ReadTag(token);
      break;
    case PageTokenKind::Comment:
      ReadComment(token);
      break;
    case PageTokenKind::Declaration:
      if (bracket_ <= at_) bracket_ = text_.find(u'>', at_);
      CloseAt(token, bracket_);
      if (token.isClosed) ++token.span.end;
      break;
  }
  at_ = token.span.end;
  return token;
}

void PageTokens::GoTo(std::size_t place) {
  constexpr std::size_t kMostReadAgain = 16;  // times the text
  readAgain_ += at_ - std::min(place, at_);
  if (readAgain_ / kMostReadAgain > text_.size()) tagsEnd_ = false;
  at_ = place;
}

/// What begins at a "<"; nothing if a browser shows it.
std::optional<PageTokenKind> PageTokens::MarkupAt(std::size_t place) const {
  const std::u16string_view rest = text_.substr(place);
  if (rest.size() < 2 || rest[0] != u'<') return std::nullopt;
  const bool isEnd = rest[1] == u'/' && rest.size() > 2;
  if (BeginsName(rest[isEnd ? 2 : 1])) {
    if (!tagsEnd_) return std::nullopt;
    return isEnd ? PageTokenKind::EndTag : PageTokenKind::BeginTag;
  }
  if (rest.starts_with(kCommentMark)) return PageTokenKind::Comment;
  if (isEnd || rest[1] == u'!' || rest[1] == u'?') return PageTokenKind::Declaration;
  return std::nullopt;
}

std::size_t PageTokens::EndOfText(std::size_t place) const {
  std::size_t end = text_.find(u'<', place + 1);
  while (end != text_.npos && !MarkupAt(end)) end = text_.find(u'<', end + 1);
  return std::min(end, text_.size());
}

/// npos for a token without an end.
void PageTokens::CloseAt(PageToken& token, std::size_t end) const {
  token.isClosed = end != text_.npos;
  token.span.end = std::min(end, text_.size());
}

void PageTokens::ReadTag(PageToken& tag) {
  tag.name.begin = at_ + (tag.kind == PageTokenKind::EndTag ? 2 : 1);
  tag.name.end = FindUnit(text_, tag.name.begin, EndsName);
  PageAttributes attributes(text_, tag.name.end);
  while (attributes.Next()) tag.hasAttributes = true;
  tag.span.end = attributes.End();
  tag.openQuote = attributes.OpenQuote();
  tag.isClosed = tagsEnd_ = attributes.IsClosed();
}

void PageTokens::ReadComment(PageToken& comment) {
  CloseAt(comment, commentsEnd_ ? EndOfComment(text_, at_) : text_.npos);
  commentsEnd_ = comment.isClosed;
}

/// Deliberate: as browsers do it, "plaintext" never ends.
std::optional<PlainContent> PageTokens::TakePlainContent(const PageToken& beginTag) {
  const std::u16string_view name = beginTag.name.Of(text_);
  const auto isOfName = [name](std::u16string_view plain) { return EqualsIgnoringAsciiCase(plain, name); };
  const bool isBegin = beginTag.kind == PageTokenKind::BeginTag && beginTag.isClosed;
  if (!isBegin || std::none_of(std::begin(kPlainElements), std::end(kPlainElements), isOfName))
    return std::nullopt;
  const bool neverEnds = EqualsIgnoringAsciiCase(name, u"plaintext");
  const std::size_t end = neverEnds ? text_.npos : FindEndTag(text_, beginTag.span.end, name);
  at_ = std::min(end, text_.size());
  return PlainContent{{beginTag.span.end, at_}, end != text_.npos};
}

std::optional<PageAttribute> PageAttributes::Next() {
  at_ = FindUnit(text_, at_, [](char16_t unit) { return unit != u'/' && !IsTagBlank(unit); });
  if (at_ >= text_.size()) return std::nullopt;
  if (text_[at_] == u'>') {
    isClosed_ = true;
    ++at_;
    return std::nullopt;
  }
  PageAttribute attribute{{at_, at_}};
  at_ = FindUnit(text_, at_ + 1, [](char16_t unit) { return unit == u'=' || EndsName(unit); });
  attribute.name.end = at_;
  const std::size_t next = FindUnit(text_, at_, [](char16_t unit) { return !IsTagBlank(unit); });
  if (next >= text_.size() || text_[next] != u'=') return attribute;
  at_ = next + 1;
  attribute.value = ReadValue();
  return attribute;
}

TextSpan PageAttributes::ReadValue() {
  at_ = FindUnit(text_, at_, [](char16_t unit) { return !IsTagBlank(unit); });
  const bool isQuoted = at_ < text_.size() && (text_[at_] == u'"' || text_[at_] == u'\'');
  TextSpan value{at_ + (isQuoted ? 1 : 0), text_.size()};
  if (isQuoted) {
    const std::size_t end = text_.find(text_[at_], value.begin);
    if (end == text_.npos) openQuote_ = at_;
    value.end = std::min(end, text_.size());
    at_ = std::min(value.end + 1, text_.size());
  } else {
    value.end = at_ = FindUnit(text_, at_, [](char16_t unit) { return unit == u'>' || IsTagBlank(unit); });
  }
  return value;
}

std::size_t FindEndTag(std::u16string_view text, std::size_t at, std::u16string_view name) {
  for (at = text.find(u"</", at); at != text.npos; at = text.find(u"</", at + 1)) {
    const std::size_t end = at + 2 + name.size();
    const bool isWhole = end >= text.size() || EndsName(text[end]);
    if (isWhole && EqualsIgnoringAsciiCase(text.substr(at + 2, name.size()), name)) return at;
  }
  return text.npos;
}

}  // namespace quorvantis
