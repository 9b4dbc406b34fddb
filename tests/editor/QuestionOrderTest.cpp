// SPDX-License-Identifier: MIT
#include "EditorTest.h"

#include <algorithm>
#include <random>

namespace quorvantis::test {
namespace {

/// What a question is, wherever it stands.
struct Card {
  std::u16string text;
  std::u16string ticks;
  std::u16string fileContent;  ///< of its one attached file; empty if it has none
  int oralFlag = 0;
  bool longAnswer = false;

  bool operator==(const Card&) const = default;
};

class OrderOfQuestions : public EditorTest {
 protected:
  /// Makes questions whose every part tells which one it is; each third has a file.
  void Fill(int count) {
    for (int n = 1; n <= count; ++n) {
      const std::u16string name = u"q" + Digits(n);
      ExamQuestion& question = exam.Question(n);
      question.text = name;
      question.kind = QuestionKind::Oral;  // others lose the flag when they are shown
      question.oralFlag = n % 2;
      question.answerLetters = n % 4 == 0 ? u"ac" : u"b";
      question.answerMask = n % 4 == 0 ? 20 : 8;
      world.longAnswerFlags.Assign(n, n % 5 == 0);
      if (n % 3 == 0) {
        ShowQuestion(n);
        editor.attachments.AttachQuestionFile(WriteBytes(folder / ("f" + std::to_string(n)), AsBytes(name)));
      }
    }
    ShowQuestion(1);
  }

  static std::u16string Digits(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
  }
  static std::string AsBytes(const std::u16string& text) { return {text.begin(), text.end()}; }

  Card CardAt(int n) const {
    const ExamQuestion& question = exam.Question(n);
    const auto content = question.attachmentPaths[0].empty()
                             ? std::string()
                             : ReadBytes(std::filesystem::path(question.attachmentPaths[0]));
    return {question.text,
            question.answerLetters,
            {content.begin(), content.end()},
            question.oralFlag,
            world.longAnswerFlags.IsSet(n)};
  }

  std::vector<Card> Cards() const {
    std::vector<Card> cards;
    for (int n = 1; n <= editor.order.LastQuestion(); ++n) cards.push_back(CardAt(n));
    return cards;
  }

  QuestionOrder& order = editor.order;
};

std::vector<int> SomeNumbers(std::mt19937& random, int last) {
  std::vector<int> numbers;
  const auto odds = 2 + random() % 9;
  for (int n = 1; n <= last; ++n) {
    if (random() % odds == 0) numbers.push_back(n);
  }
  return numbers;
}

std::vector<Card> Extract(std::vector<Card>& cards, const std::vector<int>& numbers) {
  std::vector<Card> taken, left;
  for (int n = 1; n <= static_cast<int>(cards.size()); ++n) {
    const bool isTaken = std::ranges::binary_search(numbers, n);
    (isTaken ? taken : left).push_back(cards[static_cast<std::size_t>(n - 1)]);
  }
  cards = left;
  return taken;
}

TEST_F(OrderOfQuestions, IsThatOfAListOfCards) {
  Fill(12);
  std::vector<Card> cards = Cards();
  for (unsigned seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const int last = static_cast<int>(cards.size());
    if (last > 0) ShowQuestion(1 + static_cast<int>(random() % static_cast<unsigned>(last)));
    const std::u16string shown = editor.questions.Form().text;
    const std::vector<int> numbers = SomeNumbers(random, last);
    std::vector<Card> expected = cards;
    std::vector<Card> taken = Extract(expected, numbers);
    const auto place = static_cast<std::ptrdiff_t>(random() % (expected.size() + 1));
    OrderOutcome outcome;
    switch (random() % (last < 4 ? 2 : 4)) {
      case 0: {
        expected = cards;
        const auto after = numbers.empty() ? 0 : numbers.back();
        expected.insert(expected.begin() + after, taken.begin(), taken.end());
        outcome = order.Duplicate(numbers);
        break;
      }
      case 1: {
        expected = cards;
        expected.insert(expected.begin() + place, taken.begin(), taken.end());
        outcome = order.InsertWhole(order.Copies(numbers), static_cast<int>(place));
        break;
      }
      case 2:
        expected.insert(expected.begin() + place, taken.begin(), taken.end());
        outcome = order.MoveMany(numbers, static_cast<int>(place) + 1);
        EXPECT_EQ(editor.questions.Form().text, shown) << "the same question is shown";
        break;
      default:
        outcome = order.DeleteMany(numbers);
    }
    EXPECT_TRUE(outcome.IsDone());
    cards = Cards();
    ASSERT_EQ(cards, expected);
    if (cards.size() > 40) order.DeleteMany(SomeNumbers(random, 40));
    cards = Cards();
  }
}

TEST_F(OrderOfQuestions, RefusesBeforeAnythingChanges) {
  Fill(6);
  exam.Question(499).text = u"nearly the last";
  ShowQuestion(500);
  Type(FormField::Text, u"typed, not stored");
  Turn();
  const auto before = exam.questions;
  const auto question = [this](int n) { return order.Copies({n}); };
  const std::pair<OrderOutcome, OrderProblem> rows[] = {
      {order.Move(501, 1), OrderProblem::NoSuchQuestion},
      {order.Move(0, 1), OrderProblem::NoSuchQuestion},
      {order.Move(1, 0), OrderProblem::NoSuchQuestion},
      {order.Move(1, 501), OrderProblem::BeyondEnd},
      {order.MoveMany({1, 2, 3}, 499), OrderProblem::BeyondEnd},
      {order.Duplicate({3}), OrderProblem::NoRoom},
      {order.InsertWhole(question(1), 0), OrderProblem::NoRoom},
      {order.InsertWhole(question(1), 501), OrderProblem::NoSuchQuestion},
      {order.DeleteMany({4, 501}), OrderProblem::NoSuchQuestion}};
  for (const auto& [outcome, problem] : rows) {
    EXPECT_EQ(outcome.problem, problem);
    EXPECT_FALSE(OrderProblemText(outcome, world.strings).empty());
  }
  for (int n = 1; n <= kMaxQuestions; ++n)
    EXPECT_EQ(exam.Question(n).text, before[static_cast<std::size_t>(n)].text);
  EXPECT_EQ(editor.questions.Form().text, u"typed, not stored");
  EXPECT_EQ(editor.state.CurrentQuestion(), 500);
}

TEST_F(OrderOfQuestions, EndsWithTheLastContentEvenIfItIsOnlyTyped) {
  EXPECT_EQ(order.LastQuestion(), 0);
  ShowQuestion(7);
  Type(FormField::OptionB, u"typed");
  EXPECT_EQ(order.LastQuestion(), 7);
  EXPECT_EQ(order.Move(7, 8).problem, OrderProblem::BeyondEnd);
  ASSERT_TRUE(order.Move(7, 2).IsDone());
  EXPECT_EQ(editor.state.CurrentQuestion(), 2);
  EXPECT_FALSE(Modified());
  Turn();
  EXPECT_TRUE(Modified()) << "reported as Insert does";
  EXPECT_EQ(exam.Question(2).options[1], u"typed");
}

TEST_F(OrderOfQuestions, LowersTheBoundaryAsSingleDeletesDo) {
  Fill(9);
  for (int boundary = 0; boundary <= 9; ++boundary) {
    exam.boundaryQuestion = boundary;
    ASSERT_TRUE(order.Move(2, 7).IsDone());
    EXPECT_EQ(exam.boundaryQuestion, boundary);
    ASSERT_TRUE(order.DeleteMany({2, 5, 6}).IsDone());
    const int below = (boundary >= 2) + (boundary >= 5) + (boundary >= 6);
    EXPECT_EQ(exam.boundaryQuestion, boundary - below);
    Fill(9);
  }
}

TEST_F(OrderOfQuestions, CopiesEveryFileOrInsertsNothing) {
  Fill(4);
  const std::filesystem::path original(exam.Question(3).attachmentPaths[0]);
  ASSERT_TRUE(order.Duplicate({3}).IsDone());
  const std::filesystem::path copy(exam.Question(4).attachmentPaths[0]);
  EXPECT_NE(copy, original);
  WriteBytes(copy, "changed");
  EXPECT_EQ(ReadBytes(original), "q3") << "each question has a file of its own";

  std::filesystem::remove(original);
  const OrderOutcome refused = order.InsertWhole(order.Copies({1, 3}), 2);
  EXPECT_EQ(refused.problem, OrderProblem::FileNotCopied);
  EXPECT_EQ(refused.file, u"f3");
  EXPECT_EQ(order.LastQuestion(), 5);
  ASSERT_TRUE(order.Duplicate({3}).IsDone());
  editor.questions.ShowQuestion(4);
  EXPECT_TRUE(editor.attachments.QuestionList().missing[0]) << "and so a save reports it";

  exam.pathsWithoutContent.insert(AsText(original));
  ASSERT_TRUE(order.Duplicate({3}).IsDone());
  EXPECT_TRUE(exam.pathsWithoutContent.contains(exam.Question(4).attachmentPaths[0]));
}

}  // namespace
}  // namespace quorvantis::test
