// SPDX-License-Identifier: MIT
#include "check/PageTagReader.h"

#include "text/AsciiCase.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

constexpr std::u16string_view kTagBlanks = u" \t\r\n\f";

/// Whatever looks like a tag between these and their ends is text.
constexpr std::array<std::string_view, 10> kWithoutMarkup{
    "iframe", "noembed", "noframes", "noscript", "plaintext", "script", "style", "textarea", "title", "xmp"};

bool BeginsName(std::u16string_view text, std::size_t at) {
  return at < text.size() && AsciiLower(text[at]) >= u'a' && AsciiLower(text[at]) <= u'z';
}

std::string NameIn(std::u16string_view text) {
  constexpr std::size_t kLongestName = 16;
  std::string name;
  for (const char16_t unit : text.substr(0, kLongestName))
    name += unit < 0x80 ? static_cast<char>(AsciiLower(unit)) : '?';
  return name;
}

/// Where "</name" stands, in either case, at or after `at`; npos if nowhere.
std::size_t FindEndTag(std::u16string_view text, std::size_t at, std::string_view name) {
  for (at = text.find(u"</", at); at != text.npos; at = text.find(u"</", at + 1)) {
    const std::u16string_view found = text.substr(at + 2, name.size() + 1);
    const bool isWhole = found.size() <= name.size() || (kTagBlanks.find(found.back()) != kTagBlanks.npos ||
                                                         found.back() == u'/' || found.back() == u'>');
    if (isWhole && NameIn(found.substr(0, name.size())) == name) return at;
  }
  return text.npos;
}

/// What word processors leave behind, which shows nothing and loses nothing.
bool IsHarmlessDeclaration(std::u16string_view declaration) {
  return declaration.starts_with(u"<?xml") || declaration.starts_with(u"<![") ||
         EqualsIgnoringAsciiCase(declaration.substr(0, 9), u"<!doctype");
}

}  // namespace

std::optional<PageTag> PageTagReader::Next() {
  for (at_ = text_.find(u'<', at_); at_ < text_.size(); at_ = text_.find(u'<', at_)) {
    if (Skips(at_)) continue;
    PageTag tag = TagAt(at_);
    at_ = tag.span.end;
    SkipContent(tag);
    return tag;
  }
  return std::nullopt;
}

/// Goes over what begins with "<" at `begin` if it is no tag.
bool PageTagReader::Skips(std::size_t begin) {
  const std::u16string_view rest = text_.substr(begin);
  const bool isEnd = rest.starts_with(u"</");
  if (BeginsName(text_, begin + (isEnd ? 2 : 1))) return false;
  if (rest.starts_with(u"<!--")) {
    SkipComment(begin);
  } else if (rest.starts_with(u"<!") || rest.starts_with(u"<?") || (isEnd && rest.size() > 2)) {
    SkipDeclaration(begin);
  } else {
    at_ = begin + 1;
  }
  return true;
}

void PageTagReader::SkipComment(std::size_t begin) {
  constexpr std::size_t kMark = 4;  // "<!--", of which the dashes may be the end, too: "<!-->"
  for (std::size_t at = text_.find(u"--", begin + kMark - 2); at != text_.npos;
       at = text_.find(u"--", at + 1)) {
    const std::u16string_view after = text_.substr(at + 2);
    const bool isOddEnd = after.starts_with(u"!>") && at >= begin + kMark;
    if (!after.starts_with(u">") && !isOddEnd) continue;
    at_ = text_.find(u'>', at) + 1;
    return;
  }
  at_ = text_.size();
  Swallow({begin, begin + kMark});
}

void PageTagReader::SkipDeclaration(std::size_t begin) {
  const std::size_t end = std::min(text_.find(u'>', begin), text_.size() - 1) + 1;
  const TextSpan declaration{begin, end};
  if (!lost_ && !IsHarmlessDeclaration(declaration.Of(text_))) lost_ = declaration;
  at_ = end;
}

/// Deliberate: as browsers do it, "plaintext" never ends.
void PageTagReader::SkipContent(const PageTag& tag) {
  const bool isWithoutMarkup =
      std::find(kWithoutMarkup.begin(), kWithoutMarkup.end(), tag.name) != kWithoutMarkup.end();
  if (tag.isEnd || !tag.isClosed || !isWithoutMarkup) return;
  const std::size_t end = tag.name == "plaintext" ? text_.npos : FindEndTag(text_, at_, tag.name);
  at_ = std::min(end, text_.size());
  if (end == text_.npos) Swallow(tag.span);
}

PageTag PageTagReader::TagAt(std::size_t begin) {
  PageTag tag;
  tag.span.begin = begin;
  tag.isEnd = text_[begin + 1] == u'/';
  const std::size_t name = begin + (tag.isEnd ? 2 : 1);
  const std::size_t nameEnd = std::min(text_.find_first_of(u" \t\r\n\f/>", name), text_.size());
  tag.name = NameIn(text_.substr(name, nameEnd - name));
  tag.span.end = EndOfAttributes(nameEnd, tag);
  tag.isEmptyElement = tag.isClosed && text_[tag.span.end - 2] == u'/';
  return tag;
}

/// A ">" within quotation marks does not end a tag.
std::size_t PageTagReader::EndOfAttributes(std::size_t at, PageTag& tag) {
  constexpr std::u16string_view kEndsWord = u" \t\r\n\f>";
  for (at = text_.find_first_of(u"=>", at); at != text_.npos; at = text_.find_first_of(u"=>", at)) {
    if (text_[at] == u'>') return at + 1;
    tag.hasAttributes = true;
    const std::size_t value = std::min(text_.find_first_not_of(kTagBlanks, at + 1), text_.size());
    const bool isQuoted = value < text_.size() && (text_[value] == u'"' || text_[value] == u'\'');
    at = isQuoted ? text_.find(text_[value], value + 1) : text_.find_first_of(kEndsWord, value);
    // Where the page goes on, the next such mark may be far away.
    if (isQuoted && at == text_.npos) Swallow({tag.span.begin, value + 1});
    if (at == text_.npos) break;
    if (isQuoted) ++at;
  }
  tag.isClosed = false;
  return text_.size();
}

void PageTagReader::Swallow(const TextSpan& by) {
  if (!swallower_) swallower_ = by;
}

}  // namespace quorvantis
