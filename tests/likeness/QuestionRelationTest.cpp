// SPDX-License-Identifier: MIT
#include "likeness/QuestionRelation.h"
#include "text/SeededRandom.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

using enum QuestionRelation;
using Texts = std::vector<std::u16string>;

QuestionContent Asked(const std::u16string& text, const Texts& options = {}, const Texts& files = {}) {
  return {QuestionKind::Choice, text, options, {}, files};
}

TEST(QuestionRelation, IsWhatATeacherWouldSay) {
  const Texts metals{u"iron", u"copper", u"zinc"};
  SeededRandom random(1);
  std::u16string passage;
  for (int i = 0; i < 900; ++i) passage += static_cast<char16_t>(u'a' + random.Below(26));
  const std::u16string longText =
      u"Which of these is right about the conductors in the circuit of the picture above?";
  const std::u16string picture = u"What does the picture show?";
  const struct {
    QuestionContent a, b;
    QuestionRelation relation;
  } rows[] = {
      {Asked(u"Which metal conducts best?", metals),
       Asked(u"which <b>metal</b>  conducts best", {u"Zinc", u"iron", u"copper"}), Equal},
      {Asked(u"Which of these metals conducts electricity best?", metals),
       Asked(u"Which of the metals conducts electricity best?", metals), NearlyEqual},
      {Asked(u"How much do you get when you multiply 17 by 23?"),
       Asked(u"How much do you get when you multiply 17 by 24?"), OtherNumbers},
      {Asked(u"احسب ناتج ضرب العددين التاليين ثم اكتب الجواب ١٧ في ٢٣ من فضلك"),
       Asked(u"احسب ناتج ضرب العددين التاليين ثم اكتب الجواب ١٧ في ٢٤ من فضلك"), OtherNumbers},
      {Asked(picture, {}, {u"a1"}), Asked(picture, {}, {u"b2"}), OtherFiles},
      {Asked(u"Which of these is right?", metals),
       Asked(u"Which of these is right?", {u"Paris", u"Rome", u"Bern"}), Different},
      {Asked(longText, {u"yes", u"no"}), Asked(longText, {u"all", u"one"}), OtherOptions},
      {Asked(passage + u"\r\nWho speaks?"), Asked(passage + u"\nWhy is it dark?"), OtherText},
      {Asked(u"", {}, {u"a1", u"b2"}), Asked(u" ", {}, {u"b2", u"a1"}), Equal},
      {Asked(u"", {}, {u"0a1b2c3d4e5f"}), Asked(u"", {}, {u"f5e4d3c2b1a0"}), Different},
      {Asked(u""), Asked(u""), Different},
      {Asked(u"Why?"), Asked(u"why"), Equal},
      {Asked(u"海水为什么是咸的？"), Asked(u"海水为什么是咸的"), Equal},
  };
  for (const auto& row : rows) {
    const ComparedQuestion a(row.a);
    const ComparedQuestion b(row.b);
    EXPECT_EQ(RelationOf(a, b), row.relation) << &row - rows;
    EXPECT_EQ(RelationOf(b, a), row.relation) << &row - rows;
    EXPECT_EQ(ShinglesOf(row.a), a.All());
  }
}

}  // namespace
}  // namespace quorvantis::test
