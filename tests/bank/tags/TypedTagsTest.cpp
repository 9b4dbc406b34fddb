// SPDX-License-Identifier: MIT
#include "bank/tags/TypedTags.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

std::vector<std::u16string> TagsTypedIn(std::u16string_view line) {
  std::vector<std::u16string> tags;
  for (const TextSpan& place : TypedTagsIn(line)) tags.emplace_back(TypedTag(place.Of(line)));
  return tags;
}

TEST(TypedTags, StandBetweenTheSignsOfAllScripts) {
  const struct {
    std::u16string line;
    std::vector<std::u16string> tags;
  } rows[] = {
      {u"", {u""}},
      {u" cells , class:8b,", {u"cells", u"class:8b", u""}},
      {u"a;b\uFF0Cc\u3001d\uFF1Be\u060Cf\u061Bg", {u"a", u"b", u"c", u"d", u"e", u"f", u"g"}},
      {u"\"Smith, J.\" , 1;2", {u"Smith, J.", u"1", u"2"}},
      {u"x, \"Smith, J", {u"x", u"Smith, J"}},
      {u"x, \"", {u"x", u""}},
      {u"\"Hamlet\" act 1, 5\" pipes", {u"\"Hamlet\" act 1", u"5\" pipes"}},
  };
  for (const auto& row : rows) EXPECT_EQ(TagsTypedIn(row.line), row.tags);
}

TEST(TypedTags, AreReadAsTheyWereMeant) {
  std::u16string line;
  std::vector<std::u16string> tags;
  for (const char16_t* tag : {u"Smith, J.", u"cells", u"5\" pipes", u"水、火", u"a;b"}) {
    tags.emplace_back(tag);
    line += (line.empty() ? u"" : u", ") + TypedFormOf(tag);
  }
  EXPECT_EQ(TagsTypedIn(line), tags);
}

}  // namespace
}  // namespace quorvantis::test
