// SPDX-License-Identifier: MIT
#include "exchange/markup/TagReader.h"

#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kTagBlanks = u" \t\r\n\f/";  // a slash separates like a blank
constexpr std::size_t kMostAttributes = 40;

bool IsAsciiLetter(char16_t unit) {
  return AsciiLower(unit) >= u'a' && AsciiLower(unit) <= u'z';
}

bool IsNameUnit(char16_t unit) {
  return IsAsciiLetter(unit) || IsDigit(unit) || unit == u'-' || unit == u':' || unit == u'_';
}

}  // namespace

std::u16string_view ReadTag::Value(std::u16string_view attribute) const {
  for (const auto& [attributeName, value] : attributes) {
    if (attributeName == attribute) return value;
  }
  return {};
}

std::optional<ReadTag> TagReader::At(std::size_t place) {
  if (noneEnds_) return std::nullopt;
  ReadTag tag;
  std::size_t at = place + 1;
  tag.isEnd = at < text_.size() && text_[at] == u'/';
  if (tag.isEnd) ++at;
  if (at >= text_.size() || !IsAsciiLetter(text_[at])) return std::nullopt;
  const std::size_t name = at;
  while (at < text_.size() && IsNameUnit(text_[at])) ++at;
  tag.name = text_.substr(name, at - name);
  if (!ReadAttributes(tag, at)) {
    noneEnds_ = true;
    return std::nullopt;
  }
  tag.length = at - place;
  return tag;
}

/// False if the text ends before the tag does.
bool TagReader::ReadAttributes(ReadTag& tag, std::size_t& at) const {
  while (at < text_.size()) {
    SkipBlanks(at);
    if (at >= text_.size()) return false;
    if (text_[at] == u'>') {
      ++at;
      return true;
    }
    const std::size_t name = at++;  // any character may begin a name, so this always goes on
    at = std::min(text_.find_first_of(u" \t\r\n\f=>/", at), text_.size());
    std::u16string attribute = AsciiLower(text_.substr(name, at - name));
    SkipBlanks(at);
    std::u16string value;
    if (at < text_.size() && text_[at] == u'=') value = ReadValue(++at);
    if (tag.attributes.size() < kMostAttributes)
      tag.attributes.emplace_back(std::move(attribute), std::move(value));
  }
  return false;
}

std::u16string TagReader::ReadValue(std::size_t& at) const {
  at = std::min(text_.find_first_not_of(u" \t\r\n\f", at), text_.size());
  if (at >= text_.size()) return {};
  const char16_t quote = text_[at];
  const bool isQuoted = quote == u'"' || quote == u'\'';
  const std::size_t begin = isQuoted ? at + 1 : at;
  const std::size_t end = isQuoted ? text_.find(quote, begin) : text_.find_first_of(u" \t\r\n\f>", begin);
  const std::size_t length = std::min(end, text_.size()) - begin;
  at = std::min(begin + length + (isQuoted ? 1 : 0), text_.size());
  return ResolveEntities(text_.substr(begin, length));
}

void TagReader::SkipBlanks(std::size_t& at) const {
  at = std::min(text_.find_first_not_of(kTagBlanks, at), text_.size());
}

std::u16string ResolveEntities(std::u16string_view text) {
  std::u16string resolved;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t ampersand = std::min(text.find(u'&', at), text.size());
    resolved += text.substr(at, ampersand - at);
    at = ampersand;
    if (at == text.size()) break;
    if (const auto entity = ReadEntity(text.substr(at))) {
      AppendCodePoint(resolved, entity->codePoint);
      at += entity->length;
    } else {
      resolved.push_back(text[at++]);
    }
  }
  return resolved;
}

}  // namespace quorvantis
