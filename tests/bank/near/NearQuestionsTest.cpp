// SPDX-License-Identifier: MIT
#include "bank/near/NearQuestions.h"
#include "likeness/QuestionRelation.h"
#include "text/SeededRandom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace quorvantis::test {
namespace {

using Pairs = std::set<std::pair<std::size_t, std::size_t>>;

/// Writes questions in the letters of a script, from a list of words so that strangers share some.
class QuestionMaker {
 public:
  QuestionMaker(std::uint64_t seed, char16_t firstLetter, std::size_t letters)
      : random_(seed), firstLetter_(firstLetter), letters_(letters) {
    for (int i = 0; i < 400; ++i) words_.push_back(Word());
  }

  std::u16string Text(std::size_t words) {
    std::u16string text;
    for (; words > 0; --words) text += words_[random_.Below(words_.size())] + u' ';
    return text;
  }

  /// The text with some units replaced, so that about `likeness` of the shingles are common.
  std::u16string Changed(std::u16string text, double likeness) {
    const double lost = static_cast<double>(text.size()) * (1 - likeness) / (1 + likeness);
    for (auto changes = static_cast<int>(lost / 4); changes > 0; --changes)
      text[random_.Below(text.size())] = Letter();
    return text;
  }

  SeededRandom& Random() { return random_; }

 private:
  char16_t Letter() { return static_cast<char16_t>(firstLetter_ + random_.Below(letters_)); }
  std::u16string Word() {
    std::u16string word;
    for (std::size_t i = 2 + random_.Below(8); i > 0; --i) word += Letter();
    return word;
  }

  SeededRandom random_;
  char16_t firstLetter_;
  std::size_t letters_;
  std::vector<std::u16string> words_;
};

std::vector<QuestionSketch> SketchesOf(const std::vector<Shingles>& all) {
  return {all.begin(), all.end()};
}

/// Every pair that the result speaks of, those within groups of equal ones included.
Pairs AllPairs(const NearQuestions& found, std::size_t count) {
  std::vector<std::vector<std::size_t>> members(count);
  for (std::size_t i = 0; i < count; ++i) members[i] = {i};
  for (const auto& group : found.equal) members[group.front()] = group;
  Pairs pairs;
  for (const auto& group : found.equal) {
    for (const std::size_t a : group) {
      for (const std::size_t b : group) {
        if (a < b) pairs.emplace(a, b);
      }
    }
  }
  for (const NearPair& pair : found.pairs) {
    for (const std::size_t a : members[pair.first]) {
      for (const std::size_t b : members[pair.second]) pairs.emplace(std::min(a, b), std::max(a, b));
    }
  }
  return pairs;
}

Pairs ExactPairs(const std::vector<Shingles>& all) {
  const auto canBeAlike = [](std::size_t a, std::size_t b) {
    return static_cast<double>(std::min(a, b)) >= kAlike * static_cast<double>(std::max(a, b));
  };
  Pairs pairs;
  for (std::size_t a = 0; a < all.size(); ++a) {
    for (std::size_t b = a + 1; b < all.size(); ++b) {
      if (all[a].IsEmpty() || !canBeAlike(all[a].Values().size(), all[b].Values().size())) continue;
      if (all[a].Likeness(all[b]) >= kAlike) pairs.emplace(a, b);
    }
  }
  return pairs;
}

TEST(NearQuestions, AreThoseOfTheExactCalculation) {
  const std::pair<char16_t, std::size_t> scripts[] = {
      {u'a', 26}, {u'\u0430', 32}, {u'\u4E00', 2'000}, {u'\u0627', 28}};
  std::size_t planted = 0;
  for (std::uint64_t seed = 1; seed <= std::size(scripts); ++seed) {
    const auto [firstLetter, letters] = scripts[seed - 1];
    QuestionMaker maker(seed, firstLetter, letters);
    std::vector<std::u16string> texts;
    while (texts.size() < 2'000) {
      texts.push_back(maker.Text(1 + maker.Random().Below(30)));
      if (maker.Random().Below(3) != 0) continue;
      const double likeness = 0.5 + static_cast<double>(maker.Random().Below(51)) / 100;
      texts.push_back(maker.Changed(texts[maker.Random().Below(texts.size())], likeness));
    }
    texts.emplace_back();
    texts.emplace_back();
    std::vector<Shingles> all(texts.begin(), texts.end());
    const NearQuestions found =
        FindNearQuestions(SketchesOf(all), [&all](std::size_t place) { return all[place]; });
    const Pairs exact = ExactPairs(all);
    EXPECT_EQ(AllPairs(found, all.size()), exact) << "seed " << seed;
    EXPECT_TRUE(found.crowded.empty());
    planted += exact.size();
  }
  EXPECT_GT(planted, 1'000U);
}

TEST(NearQuestions, StayGroupsHoweverManyAreEqual) {
  constexpr std::size_t kQuestions = 50'000;
  const Shingles shingles(u"which of these metals conducts electricity best");
  const std::vector<QuestionSketch> sketches(kQuestions, QuestionSketch(shingles));
  std::size_t asked = 0;
  const NearQuestions found = FindNearQuestions(sketches, [&](std::size_t) {
    ++asked;
    return shingles;
  });
  ASSERT_EQ(found.equal.size(), 1U);
  EXPECT_EQ(found.equal[0].size(), kQuestions);
  EXPECT_TRUE(found.pairs.empty());
  EXPECT_LE(asked, 2 * kQuestions);
}

TEST(NearQuestions, AreNotAllPairedInACrowd) {
  constexpr std::size_t kCrowd = 5'000;
  QuestionMaker maker(1, u'a', 26);
  const std::u16string common = maker.Text(30);
  std::vector<Shingles> all;
  for (std::size_t i = 0; i < kCrowd; ++i)
    all.emplace_back(common + static_cast<char16_t>(0x4E00 + i) + static_cast<char16_t>(0x5E00 + i));
  const std::u16string lone = maker.Text(20);
  all.emplace_back(lone + u" one");
  all.emplace_back(lone + u" two");
  const auto at = [&all](std::size_t place) { return all[place]; };
  const NearQuestions found = FindNearQuestions(SketchesOf(all), at);
  EXPECT_EQ(found.crowded.size(), kCrowd);
  EXPECT_LE(found.pairs.size(), kCrowd * NearQuestions::kMostPartners + 1);
  EXPECT_GE(2 * found.pairs.size(), kCrowd * NearQuestions::kMostPartners);
  EXPECT_EQ(found.pairs.back().first, kCrowd);
  EXPECT_TRUE(FindNearQuestions(SketchesOf(all), at, [] { return true; }).isCancelled);
}

}  // namespace
}  // namespace quorvantis::test
