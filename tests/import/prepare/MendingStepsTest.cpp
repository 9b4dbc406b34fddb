// SPDX-License-Identifier: MIT
#include "import/prepare/StepTable.h"

namespace quorvantis::test {
namespace {

TEST(MixedLetters, AreMendedWithinRunsOfLabels) {
  constexpr std::u16string_view kRows[][2] = {
      // Latin "a", Cyrillic "б".
      {u"1. Кто?|\u0061) я|б) ты|в) он", u"1. Кто?|\u0430) я|б) ты|в) он"},
      // Cyrillic "А", "В" and "С" before a Latin "D".
      {u"\u0410. w|\u0412. x|\u0421. y|D. z", u"A. w|B. x|C. y|D. z"},
      {u"\u0410. w|\u0412. x|\u0421. y", u"A. w|B. x|C. y"},
      {u"A, w|B. x|C. y|D. z", u"A. w|B. x|C. y|D. z"},
      {u"A) w|B) x|I am long|C] y", u"A) w|B) x|I am long|C) y"},
      {u"A w|B. x|C. y", u"A. w|B. x|C. y"},
      // Nothing to mend, or nothing sure.
      {u"А. я|Б. ты|В. он", u"А. я|Б. ты|В. он"},
      {u"A dog barks|A. w|B. x|C. y", u"A dog barks|A. w|B. x|C. y"},
      {u"\u0410 он пришёл|\u0412 доме", u"\u0410 он пришёл|\u0412 доме"},
      {u"1, one|2. two|3. three", u"1, one|2. two|3. three"},
      {u"A. w|B) x", u"A. w|B) x"},
  };
  for (const auto& row : kRows) CheckStep({u"MixedLetters", row[0], row[1]});
}

TEST(OptionColumns, ComeOneBelowTheOther) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. Who?|a. he   c. it|b. she  d. we|2. So", u"1. Who?|a. he|b. she|c. it|d. we|2. So"},
      {u"1. Who?|A) he\tC) it|B) she", u"1. Who?|A) he|B) she|C) it"},
      {u"1. Who?|A. he\tC. it\tE. us|B. she\tD. we", u"1. Who?|A. he|B. she|C. it|D. we|E. us"},
      // In rows, or not surely in columns.
      {u"1. Who?|a. he   b. it|c. she  d. we", u"1. Who?|a. he   b. it|c. she  d. we"},
      {u"1. Who?|a. he   c. it|d. we", u"1. Who?|a. he   c. it|d. we"},
      {u"1. Who?|a. he c. it|b. she d. we", u"1. Who?|a. he c. it|b. she d. we"},
  };
  for (const auto& row : kRows) CheckStep({u"OptionColumns", row[0], row[1]});
}

TEST(NumberedOptions, GetOtherNumbers) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. Who?|1. he|2. she|2. Where?|1. in|2. up|3. out|3. Why?",
       u"1. Who?|① he|② she|2. Where?|① in|② up|③ out|3. Why?"},
      {u"1\tWho?|1\the|2\tshe|3\tit|2\tWhere?|1\tin|2\tup|3\tout",
       u"1\tWho?|①\the|②\tshe|③\tit|2\tWhere?|①\tin|②\tup|③\tout"},
      // Parts that begin anew, and numbers that are told apart by what ends them.
      {u"1. Who?|2. Why?|3. How?|1. Who?|2. Why?|3. How?",
       u"1. Who?|2. Why?|3. How?|1. Who?|2. Why?|3. How?"},
      {u"1. Who?|1) he|2) she|2. Where?|1) in|2) up", u"1. Who?|1) he|2) she|2. Where?|1) in|2) up"},
      {u"1. Who?|1. he|2. she|2. Why?|3. How?|4. So?|5. No?",
       u"1. Who?|1. he|2. she|2. Why?|3. How?|4. So?|5. No?"},
  };
  for (const auto& row : kRows) CheckStep({u"NumberedOptions", row[0], row[1]});
}

TEST(ForgottenNumbers, ArePutIn) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. Who?|A. he|B. she||Where?|A. in|B. up||3. Why?",
       u"1. Who?|A. he|B. she||⟦2⟧ Where?|A. in|B. up||3. Why?"},
      {u"1. Who?|A. he|B. she|and I|Where?|A. in|B. up|3. Why?",
       u"1. Who?|A. he|B. she|and I|⟦2⟧ Where?|A. in|B. up|3. Why?"},
      {u"l. Who?|2. Why?|3, How?|4. So?|S) No?|6. Yes?",
       u"⟦1⟧  Who?|2. Why?|⟦3⟧  How?|4. So?|⟦5⟧  No?|6. Yes?"},
      // Options of a table, another number, and no number that is missing.
      {u"1. Who?|A. he|B. she|A. in|B. up|2. Why?", u"1. Who?|A. he|B. she|A. in|B. up|2. Why?"},
      {u"1. Who?|A. he|B. she||7. Where?|A. in|B. up||2. Why?",
       u"1. Who?|A. he|B. she||7. Where?|A. in|B. up||2. Why?"},
      {u"1. Who?|Z, How?|2. Why?", u"1. Who?|Z, How?|2. Why?"},
  };
  ImportSettings rules = PlainRules();
  rules.m_strPreQuestion = u"\\s*^[1-46]\\.\\s*";
  for (const auto& row : kRows) CheckStep({u"ForgottenNumbers", row[0], row[1]}, rules);
}

TEST(ClozeStems, AreTheirNumbers) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. A. w  B. x  C. y|2.|A. w|B. x|C. y", u"1. (1)|A. w  B. x  C. y|2.|(2)|A. w|B. x|C. y"},
      {u"1. A. w  B. x  C. y|2. Who?|A. w|B. x|C. y", u"1. A. w  B. x  C. y|2. Who?|A. w|B. x|C. y"},
  };
  for (const auto& row : kRows) CheckStep({u"ClozeStems", row[0], row[1]});
}

TEST(Noise, Goes) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. Why?|Page 1 of 2|2. How?|Page 2 of 2|", u"1. Why?|2. How?|"},
      {u"1. 为什么？|第1页 共4页", u"1. 为什么？"},
      {u"1. Why?|- 1 -|Biology, class 4|2. How?|- 2 -|Biology, class 4|3. Who?", u"1. Why?|2. How?|3. Who?"},
      {u"1. Why?|Test 4, page 1|2. How?|Test 4, page 2", u"1. Why?|2. How?"},
      {u"QuestionID 17|1. Why?|QuestionID 18|2. How?|Answer: so|Difficulty: easy",
       u"1. Why?|2. How?|Answer: so"},
      {u"1. Why?|A. x|B. y|(Source: the paper)|2. How?|来源：书", u"1. Why?|A. x|B. y|2. How?"},
      {u"====|1. Why?|----||2. How?|Marks: ____|3. Who?|得分：", u"1. Why?||2. How?|3. Who?"},
      {u"1. Why?|____/5|2. How?|____/5", u"1. Why?|2. How?"},
      {u"1. Why?|Part B: more|2. How?", u"1. Why?|2. How?"},
      {u"1. Why?\r\nPart B: more", u"1. Why?"},
      {u"1. Why?|Correct|Mark 1.00 out of 1.00|Flag question|How?|A. x|B. y|Submit",
       u"1. Why?|How?|A. x|B. y"},
      {u"1. Why?|A. x|B. y||--- THE END ---|Good luck!", u"1. Why?|A. x|B. y|"},
      // What must stay.
      {u"1. Why?|A. x|B. y|C|Submit", u"1. Why?|A. x|B. y|C|Submit"},
      {u"1. What follows \"good luck\"?|Good luck|2. Why?",
       u"1. What follows \"good luck\"?|Good luck|2. Why?"},
      {u"1. 4/10 =|____/5|2. Why?", u"1. 4/10 =|____/5|2. Why?"},
      {u"1. Add:|12|+ 3|----|what?", u"1. Add:|12|+ 3|----|what?"},
      {u"1.|Page 3|2. Why?", u"1.|Page 3|2. Why?"},
      {u"1. Page 3 of 4|2. Why?", u"1. Page 3 of 4|2. Why?"},
      {u"1. Why?|A. page 1|B. page 2", u"1. Why?|A. page 1|B. page 2"},
      {u"1. Why?|True|False|2. How?|True|False", u"1. Why?|True|False|2. How?|True|False"},
      {u"1. Look at page 3 and page 4.|It is on page 3.", u"1. Look at page 3 and page 4.|It is on page 3."},
      {u"1. Why?|________|........", u"1. Why?|________|........"},
      {u"1. Why?|Answer key|Page 1 of 2", u"1. Why?|Answer key|Page 1 of 2"},
  };
  ImportSettings rules = PlainRules();
  rules.m_strTitle = u"^Part [A-Z]:[^\\r\\n]*";
  for (const auto& row : kRows) CheckStep({u"Noise", row[0], row[1]}, rules);
}

TEST(PlainOptions, GetLabels) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. Who?|he|she|2. Where?|here|there|||Part B",
       u"1. Who?|⟦A⟧ he|⟦B⟧ she|2. Where?|⟦A⟧ here|⟦B⟧ there|||Part B"},
      {u"1. Who|- he|- she|2. Where|- here|- there|- -3|3. Why?",
       u"1. Who|⟦A⟧ he|⟦B⟧ she|2. Where|⟦A⟧ here|⟦B⟧ there|⟦C⟧ -3|3. Why?"},
      // A sign for the right one stays where a label can have one.
      {u"1. Who?|☐ he|☑ she|2. Where?|here|*there",
       u"1. Who?|⟦A⟧ he|⟦B⟧ ☑ she|2. Where?|⟦A⟧ here|⟦B⟧ *there"},
      {u"1. Who?|☐ he|☒ she|2. Where?|( ) here|(x) there|3. Which?|+ x|- y",
       u"1. Who?|⟦A⟧ he|⟦B⟧ ☒ she|2. Where?|⟦A⟧ here|⟦B⟧ (x) there|3. Which?|⟦A⟧ + x|⟦B⟧ - y"},
      // Several in a line, and behind the stem.
      {u"1. Who?|□ he\t□ she|☑ it|2. He is □ in  ☑ out|3. The (  ) is ( ) than we.",
       u"1. Who?|⟦A⟧ he|⟦B⟧ she|⟦C⟧ ☑ it|2. He is|⟦A⟧ in|⟦B⟧ ☑ out|3. The (  ) is ( ) than we."},
      // Answers of their own whose label the rules do not name.
      {u"1. Who?|○ he|○ she|Risposta: she|2. Where?|○ here|○ there|Risposta: here",
       u"1. Who?|⟦A⟧ he|⟦B⟧ she|Risposta: she|2. Where?|⟦A⟧ here|⟦B⟧ there|Risposta: here"},
      {u"1. Asks what?|( ) Who?|( ) So.|2. Where?|( ) here|( ) there",
       u"1. Asks what?|⟦A⟧ Who?|⟦B⟧ So.|2. Where?|⟦A⟧ here|⟦B⟧ there"},
      {u"1. It is|big|red|old|2. He is|in|up|out|3. We are|so|no|yes",
       u"1. It is|⟦A⟧ big|⟦B⟧ red|⟦C⟧ old|2. He is|⟦A⟧ in|⟦B⟧ up|⟦C⟧ out|3. We are|⟦A⟧ so|⟦B⟧ no|⟦C⟧ yes"},
      {u"1. Who?||he||she||2. It is ___.|Answer: so|3. Where?||here||there|Answer: here",
       u"1. Who?||⟦A⟧ he||⟦B⟧ she||2. It is ___.|Answer: so|3. Where?||⟦A⟧ here||⟦B⟧ there|Answer: here"},
      {u"1. Who|- he|- she|2. It is ___.|3. Why?|4. Where|- here|- there|5. How?",
       u"1. Who|⟦A⟧ he|⟦B⟧ she|2. It is ___.|3. Why?|4. Where|⟦A⟧ here|⟦B⟧ there|5. How?"},
      // Essays.
      {u"1. Why?|It was|so|2. How?|3. Who?", u"1. Why?|It was|so|2. How?|3. Who?"},
      {u"1. Why?|____|____|2. How?|____|____", u"1. Why?|____|____|2. How?|____|____"},
      {u"1. Read:|- Hello?|- Hi|2. Read:|- Who?|- He", u"1. Read:|- Hello?|- Hi|2. Read:|- Who?|- He"},
      {u"1. Who?|A. he|B. she|2. Why?|So", u"1. Who?|A. he|B. she|2. Why?|So"},
  };
  for (const auto& row : kRows) CheckStep({u"PlainOptions", row[0], row[1]});
}

TEST(Passages, GoToTheNextQuestion) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. Who?|A. he|B. she||Read on.|2. Why?|A. so|B. no",
       u"1. Who?|A. he|B. she|||2. Read on.|Why?|A. so|B. no"},
      {u"1. Who?|A. he|B. she|Answer: A||Read on.|2. Why?|A. so|B. no",
       u"1. Who?|A. he|B. she|Answer: A|||2. Read on.|Why?|A. so|B. no"},
      // A key that was put in stands behind the passage.
      {u"1. Who?|A. he|B. she||Read on.|⟦=⟧ A|2. Why?|A. so|B. no",
       u"1. Who?|A. he|B. she|||⟦=⟧ A|2. Read on.|Why?|A. so|B. no"},
  };
  for (const auto& row : kRows) CheckStep({u"Passages", row[0], row[1]});
}

}  // namespace
}  // namespace quorvantis::test
