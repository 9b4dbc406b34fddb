// SPDX-License-Identifier: MIT
#include "desktop/controls/FieldText.h"

#include <gtest/gtest.h>

namespace quorvantis {
namespace {

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

TEST(FieldText, IsTheLoadedTextAgainWhenAllEditsAreTakenBack) {
  FieldText text(FieldLines::Many);
  text.Load(u"a\nb");
  text.Set(text.Edited(u"ab"));
  EXPECT_EQ(text.Edited(u"a\u2029b"), u"a\nb");
  EXPECT_EQ(text.Edited(u"a\u2029bc"), u"a\r\nbc");
}

}  // namespace
}  // namespace quorvantis
