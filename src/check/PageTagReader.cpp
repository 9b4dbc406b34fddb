// SPDX-License-Identifier: MIT
#include "check/PageTagReader.h"

#include "text/AsciiCase.h"

#include <cstddef>

namespace quorvantis {
namespace {

std::string NameIn(std::u16string_view text) {
  constexpr std::size_t kLongestName = 16;
  std::string name;
  for (const char16_t unit : text.substr(0, kLongestName))
    name += unit < 0x80 ? static_cast<char>(AsciiLower(unit)) : '?';
  return name;
}

/// What word processors leave behind, which shows nothing and loses nothing.
bool IsHarmlessDeclaration(std::u16string_view declaration) {
  return declaration.starts_with(u"<?xml") || declaration.starts_with(u"<![") ||
         EqualsIgnoringAsciiCase(declaration.substr(0, 9), u"<!doctype");
}

}  // namespace

std::optional<PageTag> PageTagReader::Next() {
  constexpr std::size_t kCommentMark = 4;  // "<!--"
  while (const auto token = tokens_.Next()) {
    if (token->IsTag()) return TakeTag(*token);
    if (token->kind == PageTokenKind::Comment && !token->isClosed)
      Swallow({token->span.begin, token->span.begin + kCommentMark});
    const bool isDeclaration = token->kind == PageTokenKind::Declaration;
    if (isDeclaration && !lost_ && !IsHarmlessDeclaration(token->span.Of(text_))) lost_ = token->span;
  }
  return std::nullopt;
}

PageTag PageTagReader::TakeTag(const PageToken& token) {
  PageTag tag;
  tag.span = token.span;
  tag.name = NameIn(token.name.Of(text_));
  tag.isEnd = token.kind == PageTokenKind::EndTag;
  tag.isClosed = token.isClosed;
  tag.isEmptyElement = token.isClosed && text_[token.span.end - 2] == u'/';
  tag.hasAttributes = token.hasAttributes;
  // Where the page goes on, the next such mark may be far away.
  if (token.openQuote) Swallow({token.span.begin, *token.openQuote + 1});
  const auto content = tokens_.TakePlainContent(token);
  if (content && !content->ends) Swallow(token.span);
  return tag;
}

void PageTagReader::Swallow(const TextSpan& by) {
  if (!swallower_) swallower_ = by;
}

}  // namespace quorvantis
