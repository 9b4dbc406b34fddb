// SPDX-License-Identifier: MIT
#include "import/lines/EndLines.h"

#include "import/labels/LineText.h"
#include "import/lines/LineWords.h"

#include <algorithm>
#include <string>

namespace quorvantis {
namespace {

/// The words of such lines, in small letters.
constexpr std::u16string_view kEndPhrases[] = {
    u"end",
    u"the end",
    u"end of test",
    u"end of the test",
    u"end of exam",
    u"end of the exam",
    u"end of examination",
    u"end of paper",
    u"end of question paper",
    u"end of quiz",
    u"end of questions",
    u"good luck",
    u"best of luck",
    u"all the best",
    u"god bless",
    u"viel erfolg",
    u"viel glück",
    u"ende",
    u"bonne chance",
    u"bon courage",
    u"bon travail",
    u"fin",
    u"fin de l épreuve",
    u"fin del examen",
    u"buena suerte",
    u"suerte",
    u"mucha suerte",
    u"éxitos",
    u"mucho éxito",
    u"fim",
    u"fim da prova",
    u"boa sorte",
    u"boa prova",
    u"bom trabalho",
    u"buon lavoro",
    u"in bocca al lupo",
    u"succes",
    u"veel succes",
    u"succes",
    u"lycka till",
    u"lykke til",
    u"held og lykke",
    u"onnea",
    u"powodzenia",
    u"koniec",
    u"hodně štěstí",
    u"mult succes",
    u"sok sikert",
    u"sretno",
    u"srečno",
    u"удачи",
    u"желаю удачи",
    u"успехов",
    u"желаю успехов",
    u"желаем успеха",
    u"конец",
    u"успіхів",
    u"бажаю успіхів",
    u"успех",
    u"başarılar",
    u"başarılar dilerim",
    u"sukses",
    u"selamat mengerjakan",
    u"hết",
    u"chúc các em làm bài tốt",
    u"καλή επιτυχία",
    u"بالتوفيق",
    u"بالتوفيق للجميع",
    u"مع تمنياتي بالتوفيق",
    u"مع أطيب التمنيات بالتوفيق",
    u"مع تمنياتنا لكم بالنجاح",
    u"مع تمنياتي لكم بالنجاح",
    u"مع تمنياتنا لكم بالتوفيق",
    u"انتهت الأسئلة",
    u"موفق باشید",
    u"בהצלחה",
    u"שאו ברכה",
    u"शुभकामनाएँ",
    u"समाप्त",
    u"ขอให้โชคดี",
    u"完",
    u"试卷结束",
    u"全卷完",
    u"祝你成功",
    u"祝考试顺利",
    u"終わり",
    u"以上",
    u"끝",
    u"수고하셨습니다",
};

/// "------ anything ------"
bool IsBetweenRules(std::u16string_view line) {
  constexpr std::u16string_view kRuleUnits = u"-=*~–—_•·─━－＝＊";
  constexpr std::size_t kShortestRule = 2;
  const std::size_t first = line.find_first_not_of(kRuleUnits);
  const std::size_t last = line.find_last_not_of(kRuleUnits);
  return first != line.npos && first >= kShortestRule && line.size() - 1 - last >= kShortestRule;
}

}  // namespace

bool IsEndLine(std::u16string_view line) {
  constexpr std::size_t kLongestEnd = 60;
  constexpr std::size_t kMostWords = 5;
  line = Trimmed(line, {0, line.size()}).Of(line);
  if (line.empty() || line.size() > kLongestEnd) return false;
  const LineWords words(line);
  if (words.Words().empty() || words.Words().size() > kMostWords || words.Numbers() > 0) return false;
  if (IsBetweenRules(line)) return true;
  std::u16string joined;
  for (const std::u16string& word : words.Words()) joined += (joined.empty() ? u"" : u" ") + word;
  return words.Rest().find_first_of(u"_?？:：") == std::u16string::npos &&
         std::find(std::begin(kEndPhrases), std::end(kEndPhrases), joined) != std::end(kEndPhrases);
}

bool CanBeWish(std::u16string_view line) {
  constexpr std::size_t kLongest = 80;
  constexpr std::size_t kMostWords = 12;
  line = Trimmed(line, {0, line.size()}).Of(line);
  if (line.empty() || line.size() > kLongest) return false;
  const LineWords words(line);
  return !words.Words().empty() && words.Words().size() <= kMostWords && words.Numbers() == 0 &&
         words.Rest().find_first_of(u"_…?？؟:：;[]()（）.。=") == std::u16string::npos;
}

}  // namespace quorvantis
