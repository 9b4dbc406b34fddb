// SPDX-License-Identifier: MIT
#include "desktop/FieldText.h"

#include <gtest/gtest.h>

namespace quorvantis {
namespace {

using namespace std::string_literals;

TEST(FindChange, IsTheSmallestOneAndNeverCountsAUnitTwice) {
  const auto check = [](std::u16string_view before, std::u16string_view after, TextChange expected) {
    const TextChange change = FindChange(before, after);
    EXPECT_EQ(change.start, expected.start);
    EXPECT_EQ(change.removed, expected.removed);
    EXPECT_EQ(change.added, expected.added);
  };
  check(u"abc", u"abc", {3, 0, 0});
  check(u"abc", u"aXc", {1, 1, 1});
  check(u"aa", u"aaa", {2, 0, 1});
  check(u"aaa", u"aa", {2, 1, 0});
  check(u"", u"ab", {0, 0, 2});
}

TEST(FieldText, ShowsEveryLineEndAlikeAndKeepsThemApart) {
  FieldText text(FieldLines::Many);
  text.Load(u"a\rb\nc\r\nd\n\re");
  EXPECT_EQ(text.Shown(), u"a\u2029b\u2029c\u2029d\u2029\u2029e");
  EXPECT_EQ(text.Edited(u"a\u2029b\u2029c\u2029d\u2029\u2029eX"), u"a\rb\nc\r\nd\n\reX");
  EXPECT_EQ(text.Edited(u"a\u2029b\u2029c\u2029XX\u2029\u2029e"), u"a\rb\nc\r\nXX\n\re");
  EXPECT_EQ(text.Edited(u"a\u2029b\u2029\u2029c\u2029d\u2029\u2029e"), u"a\rb\n\r\nc\r\nd\n\re");
}

TEST(FieldText, LoneLineEndsThatMeetStayTwo) {
  FieldText text(FieldLines::Many);
  text.Load(u"a\rb\nc");
  EXPECT_EQ(text.Edited(u"a\u2029\u2029c"), u"a\r\n\nc");
  text.Set(u"a\r\n\nc");
  EXPECT_EQ(text.Shown(), u"a\u2029\u2029c");
}

TEST(FieldText, UnitsThatAFieldCannotHoldStayInTheText) {
  FieldText text(FieldLines::Many);
  text.Load(u"\xFDD0 nul\0 \xDC00\u00A0\u2028"s);
  EXPECT_EQ(text.Shown(), u"\uFFFD nul\0 \xDC00\u00A0\u2028"s);
  EXPECT_EQ(text.Edited(u"X" + text.Shown()), u"X\xFDD0 nul\0 \xDC00\u00A0\u2028"s);
}

TEST(FieldText, IsTheLoadedTextAgainWhenAllEditsAreTakenBack) {
  FieldText text(FieldLines::Many);
  text.Load(u"a\nb");
  text.Set(text.Edited(u"ab"));
  EXPECT_EQ(text.Edited(u"a\u2029b"), u"a\nb");
  EXPECT_EQ(text.Edited(u"a\u2029bc"), u"a\r\nbc");
}

TEST(FieldText, OneLineTakesLineEndsAsBlanksButKeepsItsOwn) {
  FieldText text(FieldLines::One);
  text.Load(u"a\r\nb");
  EXPECT_EQ(text.Shown(), u"a\r\nb");
  EXPECT_EQ(text.Edited(u"a\r\nbc\nd\u2029"), u"a\r\nbc d ");
}

}  // namespace
}  // namespace quorvantis
