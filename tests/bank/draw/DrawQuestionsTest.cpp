// SPDX-License-Identifier: MIT
#include "bank/draw/DrawQuestions.h"
#include "text/SeededRandom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace quorvantis::test {
namespace {

using std::chrono::sys_days;

sys_days Day(int day) {
  return sys_days(std::chrono::days(20'000 + day));
}

/// Questions of a bank with their texts.
struct Bank {
  std::vector<DrawCandidate> candidates;
  std::vector<QuestionContent> contents;

  void Add(const std::string& key, const std::u16string& text, const DrawCandidate& candidate) {
    contents.push_back({candidate.kind, text, {}, {}, {}});
    candidates.push_back(candidate);
    candidates.back().key = key;
    candidates.back().sketch = QuestionSketch(ShinglesOf(contents.back()));
  }
  ComparedAt Compared() const {
    return [this](std::size_t candidate) { return ComparedQuestion(contents[candidate]); };
  }
  DrawOutcome Draw(const DrawRequest& request) const {
    return DrawQuestions(candidates, request, Compared());
  }
};

std::u16string RandomText(SeededRandom& random) {
  std::u16string text;
  for (int i = 0; i < 60; ++i) text += static_cast<char16_t>(u'a' + random.Below(26));
  return text;
}

std::vector<std::string> Keys(const Bank& bank, const DrawOutcome& outcome) {
  std::vector<std::string> keys;
  for (const DrawnQuestion& question : outcome.questions)
    keys.push_back(bank.candidates[question.candidate].key);
  return keys;
}

TEST(DrawQuestions, PrefersNone) {
  constexpr std::size_t kQuestions = 8;
  constexpr std::size_t kDrawn = 3;
  constexpr int kSeeds = 8'000;
  SeededRandom random(1);
  Bank bank;
  for (std::size_t i = 0; i < kQuestions; ++i) {
    const std::u16string text = RandomText(random);
    for (std::size_t exam = 0; exam <= i; ++exam) bank.Add(std::to_string(i), text, {});
  }
  std::map<std::string, int> seen;
  DrawRequest request;
  request.wishes = {{.count = kDrawn, .kind = {}, .tags = {}, .withoutTags = {}}};
  for (int seed = 0; seed < kSeeds; ++seed) {
    request.seed = static_cast<std::uint64_t>(seed);
    for (const std::string& key : Keys(bank, bank.Draw(request))) ++seen[key];
  }
  constexpr double kShare = double{kDrawn} / kQuestions;
  double chiSquare = 0;
  for (const auto& [key, count] : seen) {
    const double surplus = count - kSeeds * kShare;
    chiSquare += surplus * surplus / (kSeeds * kShare * (1 - kShare)) * (kQuestions - 1) / kQuestions;
  }
  EXPECT_EQ(seen.size(), kQuestions);
  EXPECT_LT(chiSquare, 24.3);  // one in a thousand fair draws is beyond, with 7 degrees of freedom
}

class RandomDraw {
 public:
  explicit RandomDraw(std::uint64_t seed) : random_(seed) {
    for (std::size_t i = 0; i < 24; ++i) AddQuestion(i);
    for (std::size_t i = 1 + random_.Below(4); i > 0; --i) AddWish();
    if (random_.Below(2) == 0) request.notUsedSince = Day(5);
    request.openExam.emplace_back(bank.contents[random_.Below(bank.contents.size())]);
    request.rejected = {std::to_string(random_.Below(24))};
    request.seed = seed;
  }

  bool IsAllowed(std::size_t candidate, const DrawWish& wish) const {
    const DrawCandidate& it = bank.candidates[candidate];
    const auto isUsed = [&](const DrawCandidate& other) {
      return other.key == it.key && request.notUsedSince && other.used &&
             *other.used >= *request.notUsedSince;
    };
    const auto isOffered = [&it](const DrawCandidate& other) {
      return other.key == it.key && other.isOffered;
    };
    const auto hasTag = [&it](const std::u16string& tag) {
      return std::find(it.tags.begin(), it.tags.end(), tag) != it.tags.end();
    };
    return (!wish.kind || *wish.kind == it.kind) && std::all_of(wish.tags.begin(), wish.tags.end(), hasTag) &&
           std::none_of(wish.withoutTags.begin(), wish.withoutTags.end(), hasTag) &&
           std::none_of(bank.candidates.begin(), bank.candidates.end(), isUsed) &&
           std::any_of(bank.candidates.begin(), bank.candidates.end(), isOffered) &&
           !request.rejected.contains(it.key) && !AreSame(candidate, request.openExam[0]);
  }
  bool AreSame(std::size_t candidate, const ComparedQuestion& other) const {
    return IsSameQuestion(RelationOf(bank.Compared()(candidate), other));
  }

  Bank bank;
  DrawRequest request;

 private:
  void AddQuestion(std::size_t number) {
    DrawCandidate candidate;
    candidate.kind = static_cast<QuestionKind>(random_.Below(2));
    for (const char16_t* tag : {u"x", u"y", u"z"}) {
      if (random_.Below(2) == 0) candidate.tags.emplace_back(tag);
    }
    if (random_.Below(3) != 0) candidate.used = Day(static_cast<int>(random_.Below(8)));
    candidate.isOffered = random_.Below(5) != 0;
    std::u16string text = RandomText(random_);
    if (number % 4 == 3) text = bank.contents.back().text + u"!?oh";
    bank.Add(std::to_string(number), text, candidate);
    if (random_.Below(4) != 0) return;
    candidate.isOffered = true;
    candidate.used = Day(static_cast<int>(random_.Below(8)));
    bank.Add(std::to_string(number), text, candidate);
  }

  void AddWish() {
    DrawWish wish;
    wish.count = random_.Below(6);
    if (random_.Below(2) == 0) wish.kind = static_cast<QuestionKind>(random_.Below(2));
    if (random_.Below(2) == 0) wish.tags.emplace_back(u"x");
    if (random_.Below(3) == 0) wish.withoutTags.emplace_back(u"y");
    request.wishes.push_back(std::move(wish));
  }

  SeededRandom random_;
};

/// No wish that lacks a question could have one more, neither a free one nor one of another wish that could
/// have another instead.
void ExpectMost(const RandomDraw& random, const DrawOutcome& drawn) {
  std::vector<bool> mayGet(
      random.request.wishes.size());  // wishes that could give a question to one that lacks
  for (std::size_t i = 0; i < mayGet.size(); ++i)
    mayGet[i] = drawn.wishes[i].drawn < random.request.wishes[i].count;
  for (std::size_t round = 0; round < mayGet.size(); ++round) {
    for (const DrawnQuestion& question : drawn.questions) {
      for (std::size_t i = 0; i < mayGet.size(); ++i) {
        if (mayGet[i] && random.IsAllowed(question.candidate, random.request.wishes[i]))
          mayGet[question.wish] = true;
      }
    }
  }
  for (std::size_t candidate = 0; candidate < random.bank.candidates.size(); ++candidate) {
    const bool isOut =
        std::any_of(drawn.questions.begin(), drawn.questions.end(), [&](const DrawnQuestion& each) {
          return random.AreSame(candidate, ComparedQuestion(random.bank.contents[each.candidate]));
        });
    for (std::size_t i = 0; i < mayGet.size() && !isOut; ++i)
      EXPECT_FALSE(mayGet[i] && random.IsAllowed(candidate, random.request.wishes[i])) << candidate;
  }
}

void ExpectFulfilled(const RandomDraw& random, const DrawOutcome& drawn) {
  std::vector<std::size_t> counts(random.request.wishes.size());
  for (const DrawnQuestion& question : drawn.questions) {
    EXPECT_TRUE(random.IsAllowed(question.candidate, random.request.wishes[question.wish]));
    EXPECT_TRUE(random.bank.candidates[question.candidate].isOffered);
    EXPECT_EQ(random.bank.candidates[question.lastUsedIn].used, question.lastUsed);
    ++counts[question.wish];
    for (const DrawnQuestion& other : drawn.questions) {
      if (&other == &question) break;
      EXPECT_FALSE(
          random.AreSame(question.candidate, ComparedQuestion(random.bank.contents[other.candidate])));
    }
  }
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const WishOutcome& wish = drawn.wishes[i];
    EXPECT_EQ(wish.drawn, counts[i]);
    EXPECT_LE(counts[i], random.request.wishes[i].count);
    std::size_t questions = wish.allowed;
    std::size_t elsewhere = 0;
    for (const auto& [obstacle, count] : wish.excluded)
      (obstacle >= DrawObstacle::NearlyDrawn ? elsewhere : questions) += count;
    EXPECT_EQ(questions, 24U);
    const bool lacks = counts[i] < random.request.wishes[i].count;
    EXPECT_EQ(lacks ? wish.allowed : 0, lacks ? counts[i] + elsewhere : 0);
  }
}

TEST(DrawQuestions, FulfilWishesAsFarAsPossible) {
  std::size_t lacking = 0;
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    const RandomDraw random(seed);
    const DrawOutcome drawn = random.bank.Draw(random.request);
    SCOPED_TRACE(seed);
    ExpectFulfilled(random, drawn);
    ExpectMost(random, drawn);
    Bank turned = random.bank;
    std::reverse(turned.candidates.begin(), turned.candidates.end());
    std::reverse(turned.contents.begin(), turned.contents.end());
    EXPECT_EQ(Keys(turned, turned.Draw(random.request)), Keys(random.bank, drawn));
    for (std::size_t i = 0; i < drawn.wishes.size(); ++i)
      lacking += drawn.wishes[i].drawn < random.request.wishes[i].count ? 1 : 0;
  }
  EXPECT_GT(lacking, 50U);
}

TEST(DrawQuestions, CanBeExchangedOneByOne) {
  SeededRandom random(1);
  Bank bank;
  for (std::size_t i = 0; i < 10; ++i) bank.Add(std::to_string(i), RandomText(random), {});
  DrawRequest request;
  request.wishes = {{.count = 4, .kind = {}, .tags = {}, .withoutTags = {}}};
  DrawOutcome drawn = bank.Draw(request);
  std::set<std::string> seen;
  WishOutcome outcome;
  for (std::size_t left = 6; left > 0; --left) {
    std::vector<DrawnQuestion> kept = drawn.questions;
    kept.erase(kept.begin() + 1);
    request.rejected.insert(Keys(bank, drawn)[1]);
    const auto other = DrawOneMore(bank.candidates, request, kept, 0, bank.Compared(), outcome);
    ASSERT_TRUE(other);
    for (const DrawnQuestion& question : kept) EXPECT_NE(question.candidate, other->candidate);
    drawn.questions[1] = *other;
    EXPECT_TRUE(seen.insert(Keys(bank, drawn)[1]).second);
    EXPECT_EQ(outcome.drawn, 4U);
  }
  request.rejected.insert(Keys(bank, drawn)[1]);
  drawn.questions.erase(drawn.questions.begin() + 1);
  EXPECT_FALSE(DrawOneMore(bank.candidates, request, drawn.questions, 0, bank.Compared(), outcome));
  EXPECT_EQ(outcome.drawn, 3U);
  EXPECT_EQ(outcome.excluded.at(DrawObstacle::Rejected), 7U);
}

TEST(DrawQuestions, SpreadOverTags) {
  const DrawWish wish{.count = 8, .kind = QuestionKind::Essay, .tags = {u"a"}, .withoutTags = {}};
  const std::vector<DrawWish> parts = SpreadOver(wish, {u"1", u"2", u"3"});
  ASSERT_EQ(parts.size(), 3U);
  EXPECT_EQ(parts[0].count + 10 * parts[1].count + 100 * parts[2].count, 233U);
  EXPECT_EQ(parts[2].tags, (std::vector<std::u16string>{u"a", u"3"}));
  EXPECT_TRUE(SpreadOver(wish, {}).empty());
}

}  // namespace
}  // namespace quorvantis::test
