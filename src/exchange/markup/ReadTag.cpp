// SPDX-License-Identifier: MIT
#include "exchange/markup/ReadTag.h"

#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/PageTokens.h"

#include <cstddef>

namespace quorvantis {
namespace {

constexpr std::size_t kMostAttributes = 40;

}  // namespace

std::u16string_view ReadTag::Value(std::u16string_view attribute) const {
  for (const auto& [attributeName, value] : attributes) {
    if (attributeName == attribute) return value;
  }
  return {};
}

ReadTag ReadTagAt(std::u16string_view text, const PageToken& token) {
  ReadTag tag{token.name.Of(text), token.kind == PageTokenKind::EndTag};
  PageAttributes attributes(text, token.name.end);
  while (tag.attributes.size() < kMostAttributes) {
    const auto attribute = attributes.Next();
    if (!attribute) break;
    tag.attributes.emplace_back(AsciiLower(attribute->name.Of(text)),
                                ResolveEntities(attribute->value.Of(text)));
  }
  return tag;
}

}  // namespace quorvantis
