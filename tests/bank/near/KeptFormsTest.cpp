// SPDX-License-Identifier: MIT
#include "bank/near/QuestionContentKey.h"
#include "bank/near/QuestionSketch.h"
#include "platform/digest/OpenSslDigest.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

// What is kept in files must stay the same. Both worked out by another program, from docs/BANK-QUESTIONS.md.

TEST(QuestionSketch, IsTheSameEverywhere) {
  const struct {
    std::u16string text;
    std::string digest;
    std::uint64_t firstKey;
  } rows[] = {
      {u"which metal conducts best", "aede5a45ba2e3364d946356073cb4499d6bd0a628e9f2d0a24755f9ab6aae7b3",
       0x87fa5369da1da1acU},
      {u"海水为什么是咸的", "79e60d8661f3677302289dd20079b458b800c88c1d05f70d918d1f031fac73f0",
       0xf04c4a2e610765a8U},
      {u"ph", "a5c4b79976f236c5769bc7b55b036e52989d86b4e2991c806a4443249294dbfb", 0xe80040a72cce902bU}};
  for (const auto& row : rows) {
    const QuestionSketch sketch{Shingles(row.text)};
    EXPECT_EQ(OpenSslDigest().OfBytes(sketch.Bytes()), row.digest);
    EXPECT_EQ(BandKeys(sketch).front(), row.firstKey);
    EXPECT_EQ(QuestionSketch::FromBytes(sketch.Bytes()), sketch);
  }
  EXPECT_FALSE(QuestionSketch::FromBytes("short"));
  EXPECT_TRUE(BandKeys(QuestionSketch()).empty());
  EXPECT_EQ(EstimateSimilarity(QuestionSketch(), QuestionSketch()), 0);
}

TEST(QuestionContentKey, IsThatOfTheContentOnly) {
  const OpenSslDigest digest;
  const QuestionContent content{QuestionKind::Choice,
                                u"Which metal conducts best?",
                                {u"Iron", u"copper", u"zinc."},
                                {u"copper"},
                                {u"b2", u"a1"}};
  const std::string key = QuestionContentKey(content, digest);
  EXPECT_EQ(key, "bd83c84845fe80e512a38ea5a9eb3bf5");
  EXPECT_TRUE(IsContentKey(key));
  EXPECT_FALSE(IsContentKey(key + "0"));
  QuestionContent same = content;
  same.text = u"<b>which</b>  metal conducts best";
  same.options = {u"zinc", u"copper", u"iron"};
  same.files = {u"a1", u"b2"};
  EXPECT_EQ(QuestionContentKey(same, digest), key);
  for (auto change :
       {+[](QuestionContent& it) { it.kind = QuestionKind::Oral; },
        +[](QuestionContent& it) { it.text += u" a"; }, +[](QuestionContent& it) { it.options.pop_back(); },
        +[](QuestionContent& it) { it.answers = {u"iron"}; },
        +[](QuestionContent& it) { it.files.clear(); }}) {
    QuestionContent other = content;
    change(other);
    EXPECT_NE(QuestionContentKey(other, digest), key);
  }
}

}  // namespace
}  // namespace quorvantis::test
