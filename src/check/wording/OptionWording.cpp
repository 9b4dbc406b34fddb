// SPDX-License-Identifier: MIT
#include "check/wording/OptionWording.h"

#include "check/wording/WordedText.h"

#include <optional>

namespace quorvantis {
namespace {

/// In lower case, with single blanks.
constexpr std::u16string_view kOfTheOthers[] = {
    // English
    u"all of the above",
    u"all the above",
    u"all of above",
    u"all above",
    u"none of the above",
    u"none of above",
    u"none of these",
    u"none of them",
    u"none of those",
    u"all of these",
    u"all of them",
    u"all of those",
    u"any of the above",
    u"both of the above",
    u"neither of the above",
    u"either of the above",
    u"all are correct",
    u"all are true",
    u"all are right",
    u"all answers are correct",
    u"all of the options",
    u"none of the options",
    u"none is correct",
    u"none are correct",
    u"two of the above",
    u"more than one of the above",
    u"all of the preceding",
    u"none of the preceding",
    u"all of the following",
    u"none of the following",
    u"no correct answer",
    u"no correct option",
    u"both are correct",
    u"neither is correct",
    u"all options are correct",
    // Chinese
    u"以上都",
    u"以上全",
    u"以上皆",
    u"以上均",
    u"以上选项",
    u"以上答案",
    u"以上說法",
    u"以上说法",
    u"上述都",
    u"上述全",
    u"上述皆",
    u"上述均",
    u"以上全部",
    u"都正确",
    u"都不对",
    u"都不正确",
    u"全部正确",
    u"全都对",
    u"均正确",
    u"均不正确",
    u"都不是",
    u"皆是",
    u"皆非",
    u"以上兩者",
    u"以上两者",
    u"都對",
    u"都不對",
    u"都正確",
    // Arabic
    u"كل ما سبق",
    u"جميع ما سبق",
    u"لا شيء مما سبق",
    u"لا شئ مما سبق",
    u"ليس أي مما سبق",
    u"ليس أيا مما سبق",
    u"ليس مما سبق",
    u"جميع ما ذكر",
    u"كل ما ذكر",
    u"لا شيء مما ذكر",
    u"غير ذلك مما سبق",
    u"جميع الإجابات",
    u"كل الإجابات",
    u"جميع الخيارات",
    u"كل الخيارات",
    u"مما سبق",
    // German, Dutch
    u"alle der genannten",
    u"alle genannten",
    u"keine der genannten",
    u"keines der genannten",
    u"keiner der genannten",
    u"keine der obigen",
    u"alle obigen",
    u"alle antworten",
    u"keine der antworten",
    u"keine antwort",
    u"alle aussagen",
    u"keine der aussagen",
    u"nichts davon",
    u"keines davon",
    u"keine davon",
    u"alles genannte",
    u"beide antworten",
    u"alle bovenstaande",
    u"al het bovenstaande",
    u"geen van bovenstaande",
    u"geen van de bovenstaande",
    u"geen van deze",
    u"alle antwoorden",
    // French
    u"toutes les réponses",
    u"aucune de ces réponses",
    u"aucune des réponses",
    u"toutes ces réponses",
    u"tout ce qui précède",
    u"aucun de ces",
    u"aucune de ces",
    u"toutes les propositions",
    u"aucune des propositions",
    u"rien de tout cela",
    u"tous les précédents",
    u"aucun des précédents",
    // Spanish, Portuguese, Italian, Romanian
    u"todas las anteriores",
    u"ninguna de las anteriores",
    u"todos los anteriores",
    u"ninguno de los anteriores",
    u"todas son correctas",
    u"ninguna es correcta",
    u"todas las respuestas",
    u"ninguna de las respuestas",
    u"ninguna de estas",
    u"todas las opciones",
    u"todo lo anterior",
    u"nada de lo anterior",
    u"todas as anteriores",
    u"nenhuma das anteriores",
    u"todas as alternativas",
    u"nenhuma das alternativas",
    u"todas as opções",
    u"nenhuma das opções",
    u"n.d.a",
    u"todas estão corretas",
    u"nenhuma está correta",
    u"tutte le precedenti",
    u"nessuna delle precedenti",
    u"tutte le risposte",
    u"nessuna delle risposte",
    u"tutti i precedenti",
    u"nessuno dei precedenti",
    u"nessuna di queste",
    u"tutte le risposte precedenti",
    u"toate cele de mai sus",
    u"niciuna din cele de mai sus",
    u"niciunul dintre cele de mai sus",
    u"toate variantele",
    // Russian, Ukrainian, Polish, Czech, Slovak, Bulgarian, Serbian
    u"все перечисленное",
    u"всё перечисленное",
    u"ничего из перечисленного",
    u"все вышеперечисленное",
    u"всё вышеперечисленное",
    u"все ответы верны",
    u"все варианты",
    u"нет правильного ответа",
    u"все верно",
    u"ни один из",
    u"все ответы",
    u"верного ответа нет",
    u"ничего из вышеперечисленного",
    u"все вышеуказанное",
    u"усе перелічене",
    u"все перелічене",
    u"нічого з переліченого",
    u"усі відповіді",
    u"всі відповіді",
    u"wszystkie powyższe",
    u"żadne z powyższych",
    u"żadna z powyższych",
    u"wszystkie odpowiedzi",
    u"żadna odpowiedź",
    u"žádná z uvedených",
    u"všechny uvedené",
    u"žádná z možností",
    u"všechny odpovědi",
    u"všetky odpovede",
    u"žiadna z uvedených",
    u"всички изброени",
    u"нито едно от",
    u"сви наведени",
    u"sve navedeno",
    u"ništa od navedenog",
    // Turkish, Hungarian, Indonesian, Vietnamese
    u"hepsi",
    u"hiçbiri",
    u"yukarıdakilerin hepsi",
    u"yukarıdakilerin hiçbiri",
    u"mindegyik",
    u"egyik sem",
    u"az összes fenti",
    u"a fentiek mindegyike",
    u"semua benar",
    u"semua jawaban benar",
    u"semua salah",
    u"tidak ada yang benar",
    u"tidak ada jawaban",
    u"semua di atas",
    u"cả a, b, c",
    u"tất cả các đáp án",
    u"tất cả đều đúng",
    u"tất cả đáp án",
    u"không có đáp án",
    u"cả hai đều đúng",
    u"tất cả các ý trên",
    // Japanese, Korean, Hindi, Persian, Hebrew
    u"上記のすべて",
    u"上記すべて",
    u"すべて正しい",
    u"いずれでもない",
    u"どれでもない",
    u"該当なし",
    u"上のすべて",
    u"위의 모두",
    u"모두 맞다",
    u"모두 옳다",
    u"위 모두",
    u"해당 없음",
    u"정답 없음",
    u"उपर्युक्त सभी",
    u"उपरोक्त सभी",
    u"इनमें से कोई नहीं",
    u"उपर्युक्त में से कोई नहीं",
    u"همه موارد",
    u"هیچ کدام",
    u"هیچکدام",
    u"همه‌ی موارد",
    u"כל התשובות",
    u"אף תשובה",
    u"כל הנ\"ל",
};

/// Between two letters of options.
constexpr std::u16string_view kAnd[] = {
    u"and",  u"or",    u"nor", u"und",  u"oder", u"noch", u"et",  u"ou",  u"ni",    u"y",  u"o",    u"u",
    u"e",    u"em",    u"i",   u"и",    u"или",  u"та",   u"або", u"ve",  u"veya",  u"és", u"vagy", u"a",
    u"nebo", u"alebo", u"lub", u"oraz", u"en",   u"of",   u"og",  u"och", u"eller", u"ja", u"dan",  u"atau",
    u"và",   u"hoặc",  u"si",  u"și",   u"sau",  u"و",    u"أو",  u"או",  u"एवं",    u"और", u"या"};

/// Before or after one letter: "only A", "option B", "nur C".
constexpr std::u16string_view kOfALetter[] = {
    u"only",        u"option",       u"options",     u"answer",   u"answers",  u"choice",    u"choices",
    u"alternative", u"alternatives", u"neither",     u"either",   u"both",     u"nur",       u"antwort",
    u"antworten",   u"option",       u"optionen",    u"aussage",  u"weder",    u"seulement", u"uniquement",
    u"réponse",     u"réponses",     u"proposition", u"solo",     u"sólo",     u"solamente", u"opción",
    u"opciones",    u"respuesta",    u"respuestas",  u"inciso",   u"incisos",  u"somente",   u"apenas",
    u"alternativa", u"alternativas", u"opção",       u"risposta", u"risposte", u"opzione",   u"только",
    u"ответ",       u"ответы",       u"вариант",     u"варианты", u"лише",     u"тільки",    u"tylko",
    u"odpowiedź",   u"odpowiedzi",   u"yalnız",      u"yalnızca", u"şıkkı",    u"seçenek",   u"seçeneği",
    u"csak",        u"jen",          u"pouze",       u"možnost",  u"iba",      u"hanya",     u"opsi",
    u"pilihan",     u"jawaban",      u"chỉ",         u"đáp án",   u"alleen",   u"antwoord",  u"doar",
    u"numai",       u"فقط",          u"الخيار",      u"الخيارات", u"الإجابة",  u"الاجابة",   u"الإجابات"};

/// Words that make a letter in the text of a question one of an option.
constexpr std::u16string_view kNounsOfOptions[] = {
    u"option",       u"options",      u"answer",   u"answers",   u"choice",     u"choices",
    u"alternative",  u"alternatives", u"antwort",  u"antworten", u"optionen",   u"réponse",
    u"réponses",     u"opción",       u"opciones", u"respuesta", u"respuestas", u"alternativa",
    u"alternativas", u"opção",        u"opções",   u"risposta",  u"risposte",   u"opzione",
    u"opzioni",      u"ответ",        u"ответы",   u"вариант",   u"варианты",   u"odpowiedź",
    u"odpowiedzi",   u"seçenek",      u"opsi",     u"pilihan",   u"antwoord",   u"الخيار",
    u"الخيارات",     u"الإجابة",      u"الاجابة",  u"الإجابات"};

/// Around a letter in texts without blanks.
constexpr std::u16string_view kChineseNouns[] = {u"选项", u"選項", u"答案", u"選択肢", u"보기"};
constexpr std::u16string_view kAfterLetter[] = {u"项", u"項", u"选项", u"都", u"均",
                                                u"皆", u"对", u"正确", u"錯", u"错"};
constexpr std::u16string_view kBeforeLetter[] = {u"只有", u"仅", u"僅", u"除", u"选项", u"選項", u"答案"};
constexpr std::u16string_view kChineseAnd[] = {u"和", u"与", u"與", u"及",  u"或",
                                               u"、", u"と", u"나", u"또는"};

/// A letter of an option: of the Latin, Cyrillic and Arabic alphabets, Latin also full-width.
bool IsOptionLetter(char16_t unit) {
  return (unit >= u'a' && unit <= u'e') || (unit >= u'ａ' && unit <= u'ｅ') ||
         (unit >= u'а' && unit <= u'д') || unit == u'أ' || unit == u'ا' || unit == u'ب' || unit == u'ج' ||
         unit == u'د' || unit == u'ه';
}

bool IsLetterWord(const WordedText& text, std::size_t index) {
  const std::u16string_view word = text.Word(index);
  return word.size() == 1 && IsOptionLetter(word[0]);
}

/// Capital, or in brackets: a small letter alone is a word of many languages ("a", "e", "à").
bool IsNamedLetter(const WordedText& text, std::u16string_view original, std::size_t index) {
  if (!IsLetterWord(text, index)) return false;
  if (text.After(index) == u')' || text.After(index) == u'）') return true;
  const std::u16string_view as = text.Place(index).Of(original);
  return as != text.Word(index) || as[0] >= u'\u0600';
}

/// What stands between two words consists of brackets, commas and the like only, and has one of them.
bool AreListed(const WordedText& text, std::u16string_view original, std::size_t index) {
  const std::size_t begin = text.Place(index).end;
  const std::u16string_view between = original.substr(begin, text.Place(index + 1).begin - begin);
  return between.find_first_not_of(u" ()（）[].,،、/&+-–;\u00A0") == std::u16string_view::npos &&
         between.find_first_of(u",،、/&+;") != std::u16string_view::npos;
}

/// Arabic writes "and" at the front of the next word.
bool IsJoinedLetter(std::u16string_view word) {
  return word.size() == 2 && word[0] == u'و' && IsOptionLetter(word[1]);
}

bool NamesTwo(const WordedText& text, std::u16string_view original) {
  for (std::size_t i = 0; i + 1 < text.WordCount(); ++i) {
    if (!IsNamedLetter(text, original, i)) continue;
    if (IsNamedLetter(text, original, i + 1) && AreListed(text, original, i)) return true;
    if (IsOneOf<kAnd>(text.Word(i + 1)) && IsNamedLetter(text, original, i + 2)) return true;
    if (IsJoinedLetter(text.Word(i + 1))) return true;
  }
  return false;
}

/// "Answer C".
bool NamesOne(const WordedText& text, std::u16string_view original) {
  for (std::size_t i = 1; i < text.WordCount(); ++i) {
    if (IsNamedLetter(text, original, i) && IsOneOf<kNounsOfOptions>(text.Word(i - 1))) return true;
  }
  return false;
}

/// "Only A": a letter after or before such a word, and nothing else that the option would say.
bool SaysOnlyALetter(const WordedText& text, std::u16string_view original) {
  if (text.WordCount() != 2) return false;
  return (IsNamedLetter(text, original, 1) && IsOneOf<kOfALetter>(text.Word(0))) ||
         (IsNamedLetter(text, original, 0) && IsOneOf<kOfALetter>(text.Word(1)));
}

bool StartsWithAny(std::u16string_view text, std::span<const std::u16string_view> list) {
  for (const std::u16string_view entry : list) {
    if (text.starts_with(entry)) return true;
  }
  return false;
}

bool EndsWithAny(std::u16string_view text, std::span<const std::u16string_view> list) {
  for (const std::u16string_view entry : list) {
    if (text.ends_with(entry)) return true;
  }
  return false;
}

/// "A和B", "只有A", "A项": without blanks between words.
bool NamesInChinese(std::u16string_view folded) {
  for (std::size_t i = 0; i < folded.size(); ++i) {
    if (!IsOptionLetter(folded[i])) continue;
    const std::u16string_view before = folded.substr(0, i);
    const std::u16string_view after = folded.substr(i + 1);
    if (EndsWithAny(before, kBeforeLetter) || StartsWithAny(after, kAfterLetter)) return true;
    for (const std::u16string_view link : kChineseAnd) {
      if (after.starts_with(link) && after.size() > link.size() && IsOptionLetter(after[link.size()]))
        return true;
    }
  }
  return false;
}

}  // namespace

bool SpeaksOfTheOthers(std::u16string_view option) {
  return WordedText(option).HasAny(kOfTheOthers);
}

bool NamesOptions(std::u16string_view option) {
  const WordedText text(option);
  return NamesTwo(text, option) || SaysOnlyALetter(text, option) || NamesOne(text, option) ||
         NamesInChinese(text.Folded());
}

bool NamesOptionsInText(std::u16string_view question) {
  const WordedText text(question);
  if (NamesOne(text, question)) return true;
  const std::u16string_view folded = text.Folded();
  for (const std::u16string_view noun : kChineseNouns) {
    const std::size_t at = folded.find(noun);
    if (at != std::u16string_view::npos && at + noun.size() < folded.size() &&
        IsOptionLetter(folded[at + noun.size()]))
      return true;
  }
  return false;
}

}  // namespace quorvantis
