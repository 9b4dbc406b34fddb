// SPDX-License-Identifier: MIT
// Papers made from a known key: however it is written, each letter comes to its question or to none.
#include "import/paper/PaperOutline.h"
#include "import/prepare/StepTest.h"

#include <random>
#include <vector>

namespace quorvantis::test {
namespace {

struct MadeQuestion {
  std::vector<std::u16string> options;
  std::size_t key = 0;
  bool isInKey = true;  ///< in a key at the end, which may have gaps
};

std::u16string Number(std::size_t index) {
  const std::string digits = std::to_string(index + 1);
  return {digits.begin(), digits.end()};
}

/// Makes one paper, its key in a random form.
class MadePaper {
 public:
  explicit MadePaper(unsigned seed) : random_(seed) {
    const std::u16string_view words[] = {u"amber fox",        u"Birch", u"cedar and elm", u"a dune",
                                         u"Egret in a bog",   u"42",    u"Dock",          u"fern; moss",
                                         u"Because it rains", u"x = 3", u"none of these"};
    const std::size_t count = 3 + Below(10);
    const std::size_t options = 3 + Below(3);
    for (std::size_t i = 0; i < count; ++i) {
      MadeQuestion question;
      const std::size_t first = Below(std::size(words));
      for (std::size_t k = 0; k < options; ++k)
        question.options.emplace_back(words[(first + k) % std::size(words)]);
      question.key = Below(options);
      questions.push_back(std::move(question));
    }
    form_ = Below(kForms);
    Write();
  }

  std::u16string text;
  std::vector<MadeQuestion> questions;

  std::size_t Form() const { return form_; }

 private:
  static constexpr std::size_t kForms = 16;

  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::u16string Letter(std::size_t i) const {
    return std::u16string(1, static_cast<char16_t>(u'A' + questions[i].key));
  }

  void Write() {
    const bool isOneLine = Below(2) == 0;
    for (std::size_t i = 0; i < questions.size(); ++i) {
      if (form_ == 12) text += u"(" + Letter(i) + u") ";
      text += Number(i) + u". What is right";
      text += form_ == 13 ? u" ( " + Letter(i) + u" )?\n" : u"?\n";
      for (std::size_t k = 0; k < questions[i].options.size(); ++k) WriteOption(i, k, isOneLine);
      if (form_ == 14) text += u"(" + Letter(i) + u")\n";
      WriteOwnAnswer(i);
    }
    WriteEnd();
  }

  void WriteOption(std::size_t i, std::size_t k, bool isOneLine) {
    const bool isKey = k == questions[i].key;
    if (form_ == 9 && isKey) text += u"*";
    text += static_cast<char16_t>(u'A' + k);
    text += u". " + questions[i].options[k];
    if (form_ == 10 && isKey) text += u" ✓";
    if (form_ == 11 && isKey) text += u" (correct)";
    text += isOneLine && k + 1 < questions[i].options.size() ? u"   " : u"\n";
  }

  void WriteOwnAnswer(std::size_t i) {
    if (form_ != 8 && form_ != 15) return;
    const std::u16string letter = Letter(i);
    const char16_t small[] = {static_cast<char16_t>(letter[0] | 0x20), 0};
    const std::u16string forms[] = {letter,
                                    small,
                                    std::u16string(small) + u") " + questions[i].options[questions[i].key],
                                    letter + u". Because A and D are wrong",
                                    u"Option " + letter,
                                    questions[i].options[questions[i].key],
                                    letter + u"\n\nPart B: Choose A or C"};
    text += u"Answer: " + forms[form_ == 15 ? 0 : Below(std::size(forms))] + u"\n";
  }

  /// A key with gaps, in one of several forms.
  void WriteEnd() {
    if (form_ >= 8) return;
    if (form_ != 7) text += u"\nAnswer key\n";
    std::u16string numbers;
    std::u16string letters;
    for (std::size_t i = 0; i < questions.size(); ++i) {
      const bool mayMiss = form_ != 3 && form_ != 4 && form_ != 7;
      questions[i].isInKey = !mayMiss || i == 0 || Below(5) > 0;
      if (!questions[i].isInKey) continue;
      numbers += (numbers.empty() ? u"" : u"\t") + Number(i);
      letters += (letters.empty() || form_ == 3 || form_ == 4 ? u"" : u"\t") + Letter(i);
      if (form_ == 0) text += Number(i) + u". " + Letter(i) + u"\n";
      if (form_ == 1) text += Number(i) + u"-" + Letter(i) + u", ";
      if (form_ == 2) text += Number(i) + u") " + Letter(i) + u" - because A is wrong, not D\n";
      if (form_ == 6) text += Number(i) + u". " + questions[i].options[questions[i].key] + u"\n";
      if (form_ == 7) text += Number(i) + u". " + Letter(i) + u"  ";
    }
    if (form_ == 3) text += u"1-" + Number(questions.size() - 1) + u" " + letters + u"\n";
    if (form_ == 4) text += letters + u"\n";
    if (form_ == 5) text += numbers + u"\n" + letters + u"\n";
  }

  std::mt19937 random_;
  std::size_t form_ = 0;
};

TEST(KnownKeys, ComeToTheirQuestionsAndNowhereElse) {
  for (unsigned seed = 0; seed < 250; ++seed) {
    const MadePaper made(seed);
    SCOPED_TRACE("form " + std::to_string(made.Form()) + " seed " + std::to_string(seed) + "\n" +
                 Narrow(made.text));
    PaperText prepared;
    prepared.AppendInserted(
        AfterSteps(u"KeyAtEnd, SignedKey, EmphasisedKey, KeyInStem, KeyLetters, Judgement", made.text));
    const PaperOutline outline = OutlineOf(prepared, KeyRules(u""), {});
    ASSERT_EQ(outline.questions.size(), made.questions.size());
    for (std::size_t i = 0; i < outline.questions.size(); ++i) {
      const OutlinedQuestion& question = outline.questions[i];
      const MadeQuestion& original = made.questions[i];
      const std::u16string key(1, static_cast<char16_t>(u'A' + original.key));
      EXPECT_EQ(question.answer.Of(prepared.characters), original.isInKey ? key : u"");
      EXPECT_EQ(question.stem.Of(prepared.characters),
                made.Form() == 13 ? u"What is right (   )?" : u"What is right?");
      ASSERT_TRUE(question.HasOptions());
      ASSERT_EQ(question.options->labels.size(), original.options.size());
      for (std::size_t k = 0; k < original.options.size(); ++k)
        EXPECT_EQ(question.options->labels[k].text.Of(prepared.characters), original.options[k]);
    }
    if (HasFailure()) break;
  }
}

/// Long and odd texts end in time; nobody waits for a key in a novel.
TEST(KnownKeys, EndInTimeOnOddTexts) {
  std::u16string brackets(40'000, u'(');
  std::u16string numbers;
  for (int i = 0; i < 5'000; ++i) numbers += u"1 2 3 ";
  std::u16string answers;
  for (int i = 0; i < 1'500; ++i) answers += u"1. Why?\nAnswers\n1. so\n";
  for (const std::u16string& text :
       {brackets, numbers, answers, std::u16string(40'000, u'_'), std::u16string(40'000, u'*')})
    AfterSteps(u"KeyAtEnd, SignedKey, KeyInStem, KeyLetters, Judgement",
               u"1. One?\nA. a\nB. b\n" + text + u"\n2. Two?\nA. a\nB. b\n");
}

}  // namespace
}  // namespace quorvantis::test
