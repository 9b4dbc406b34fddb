// SPDX-License-Identifier: MIT
// Exams for the tests of versions.
#pragma once

#include "model/AnswerLetters.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/NumberText.h"
#include "text/SeededRandom.h"
#include "versions/plan/VersionNames.h"
#include "versions/plan/VersionPlanner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace quorvantis::test {

/// A world with real files.
class VersionsTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  FrameSetExam exam{world.services};

  ExamQuestion& Add(QuestionKind kind, std::u16string text) {
    ExamQuestion& question = exam.Question(++exam.questionCount);
    question.kind = kind;
    question.text = std::move(text);
    return question;
  }

  ExamQuestion& AddChoice(std::u16string text, std::vector<std::u16string> options, std::u16string key) {
    ExamQuestion& question = Add(QuestionKind::Choice, std::move(text));
    std::ranges::move(options, question.options.begin());
    question.answerLetters = std::move(key);
    question.answerMask = AnswerLettersToMask(question.answerLetters);
    return question;
  }

  /// An exam of any questions, some of which are pinned, with ranges of scores or without.
  void FillAtRandom(SeededRandom& random, int most) {
    exam.Reset();
    const int count = 1 + static_cast<int>(random.Below(static_cast<std::uint64_t>(most)));
    for (int i = 1; i <= count; ++i) {
      const std::u16string text = RandomText(random, i);
      const auto kind = static_cast<QuestionKind>(random.Below(5) * random.Below(2));
      if (kind == QuestionKind::Choice) {
        AddRandomChoice(random, text);
      } else {
        Add(kind, text).answerText = kind == QuestionKind::FillIn ? u"one<@>two" : u"";
      }
    }
    exam.scoreMode = random.Below(2) == 0 ? ScoreMode::Same : ScoreMode::Custom;
    for (std::size_t range = 0; range < kScoreRanges; ++range) {
      exam.scoreFrom[range] = static_cast<int>(range) * 7 + 1;
      exam.scoreTo[range] = static_cast<int>(range) * 7 + 6 + static_cast<int>(random.Below(2));
      exam.scoreValue[range] = static_cast<float>(random.Below(3)) + 0.5F;
    }
  }

  static VersionRequest Request(std::size_t count, std::uint64_t seed,
                                QuestionMoves moves = QuestionMoves::Neighbours) {
    return {LetterNames(count), seed, moves};
  }

 private:
  static std::u16string RandomText(SeededRandom& random, int number) {
    constexpr std::u16string_view kTexts[] = {u"What is it?", u"See question 2.",
                                              u"In the picture above, what is it?", u"为什么？"};
    const std::u16string_view text = kTexts[random.Below(3) == 0 ? random.Below(std::size(kTexts)) : 0];
    return std::u16string(text) + u" Text " + FormatInteger(number);
  }

  void AddRandomChoice(SeededRandom& random, const std::u16string& text) {
    std::vector<std::u16string> options(random.Below(kOptionCount + 1));
    std::u16string key;
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (random.Below(8) != 0)
        options[i] = u"option " + FormatInteger(static_cast<std::int64_t>(random.Next() >> 8));
      if (random.Below(12) == 0) options[i] = u"none of the above";
      if (random.Below(3) == 0) key += AsciiLetter(i);
    }
    AddChoice(text, std::move(options), std::move(key));
  }
  static char16_t AsciiLetter(std::size_t option) { return static_cast<char16_t>(u'a' + option); }
};

}  // namespace quorvantis::test
