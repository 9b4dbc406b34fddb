// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/ArrangedDraw.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

DrawnRow RowWithKey(std::size_t key) {
  DrawnRow row;
  row.question.key = std::to_string(key);
  return row;
}

DrawnList ListFrom(std::size_t first, std::size_t count) {
  DrawnList list;
  list.wishes.resize(1);
  for (std::size_t i = 0; i < count; ++i) list.rows.push_back(RowWithKey(first + i));
  return list;
}

/// The keys of the rows, then those that were sent away.
std::vector<std::string> KeysOf(const DrawnList& list) {
  std::vector<std::string> keys;
  for (const DrawnRow& row : list.rows) keys.push_back(row.question.key + (row.isGone ? "gone" : ""));
  keys.emplace_back("|");
  const auto& rejected = list.order.request.rejected;
  keys.insert(keys.end(), rejected.begin(), rejected.end());
  return keys;
}

/// One random command to both; the expected keys are worked out in the plainest way.
void Arrange(std::minstd_rand& random, std::size_t step, ArrangedDraw& drawn,
             std::vector<std::string>& rows) {
  const std::size_t place = random() % rows.size();
  const auto at = rows.begin() + static_cast<std::ptrdiff_t>(place);
  switch (random() % 4) {
    case 0: {
      AnotherDrawn other;
      other.row = RowWithKey(1'000 + step);
      drawn.Exchange(place, other);
      *at = std::to_string(1'000 + step);
      break;
    }
    case 1: {
      const std::size_t to = random() % rows.size();
      const std::string moved = *at;
      drawn.Move(place, to);
      rows.erase(at);
      rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(to), moved);
      break;
    }
    case 2:
      if (rows.size() == 1) break;
      drawn.Remove(place);
      rows.erase(at);
      break;
    default:
      drawn.Put(ListFrom(10 * step, 6));
      rows.clear();
      for (std::size_t i = 0; i < 6; ++i) rows.push_back(std::to_string(10 * step + i));
      break;
  }
}

TEST(ArrangedDraw, GoesBackThroughEveryStep) {
  std::minstd_rand random(3);
  ArrangedDraw drawn;
  drawn.Put(ListFrom(0, 6));
  std::vector<std::string> rows{"0", "1", "2", "3", "4", "5"};
  std::vector<std::vector<std::string>> before;
  for (std::size_t step = 1; step < ArrangedDraw::kMostSteps; ++step) {
    const auto keys = KeysOf(drawn.Now());
    Arrange(random, step, drawn, rows);
    const auto now = KeysOf(drawn.Now());
    ASSERT_EQ(std::vector<std::string>(now.begin(), std::find(now.begin(), now.end(), "|")), rows) << step;
    if (now != keys) before.push_back(keys);
  }
  for (; !before.empty(); before.pop_back()) {
    ASSERT_TRUE(drawn.CanGoBack());
    drawn.GoBack();
    EXPECT_EQ(KeysOf(drawn.Now()), before.back());
  }
}

TEST(ArrangedDraw, KeepsWhatIsGoneFromItsExam) {
  ArrangedDraw drawn;
  drawn.Put(ListFrom(0, 4));
  drawn.Exchange(2, {});
  drawn.TakeInserted({1, 3});
  EXPECT_EQ(KeysOf(drawn.Now()), (std::vector<std::string>{"1gone", "3gone", "|"}));
  EXPECT_EQ(drawn.Now().order.request.openExam.size(), 2U) << "nothing like those that are in the exam comes";
  drawn.GoBack();
  EXPECT_EQ(drawn.Size(), 4U);
}

}  // namespace
}  // namespace quorvantis::test
