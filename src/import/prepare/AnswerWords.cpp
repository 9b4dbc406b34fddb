// SPDX-License-Identifier: MIT
#include "import/prepare/AnswerWords.h"

#include "import/labels/Numerals.h"
#include "import/prepare/FoldedText.h"

#include <algorithm>
#include <span>
#include <string>

namespace quorvantis {
namespace {

// All words are folded (FoldedText.h).

constexpr std::u16string_view kHeadingWords[] = {
    u"answer key",
    u"answer keys",
    u"answers",
    u"answer",
    u"answer sheet",
    u"key",
    u"keys",
    u"solutions",
    u"solution",
    u"marking scheme",
    u"mark scheme",
    u"参考答案",
    u"标准答案",
    u"答案",
    u"解答",
    u"參考答案",
    u"模範解答",
    u"答え",
    u"正解",
    u"解答例",
    u"정답",
    u"답안",
    u"해답",
    u"정답표",
    u"ответы",
    u"ключ",
    u"ключи",
    u"ключ к тесту",
    u"эталон ответов",
    u"эталоны ответов",
    u"відповіді",
    u"ключі",
    u"отговори",
    u"odpowiedzi",
    u"klucz",
    u"klucz odpowiedzi",
    u"rozwiązania",
    u"odpovědi",
    u"řešení",
    u"klíč",
    u"správné odpovědi",
    u"odpovede",
    u"lösungen",
    u"lösung",
    u"lösungsschlüssel",
    u"antworten",
    u"musterlösung",
    u"lösungsblatt",
    u"schlüssel",
    u"réponses",
    u"corrigé",
    u"correction",
    u"corrections",
    u"clé",
    u"respuestas",
    u"soluciones",
    u"clave",
    u"clave de respuestas",
    u"solucionario",
    u"respostas",
    u"gabarito",
    u"soluções",
    u"chave",
    u"chave de respostas",
    u"risposte",
    u"soluzioni",
    u"chiave",
    u"correttore",
    u"antwoorden",
    u"antwoordmodel",
    u"oplossingen",
    u"sleutel",
    u"cevaplar",
    u"cevap anahtarı",
    u"cevap anahtari",
    u"yanıtlar",
    u"yanıt anahtarı",
    u"đáp án",
    u"trả lời",
    u"lời giải",
    u"kunci jawaban",
    u"jawaban",
    u"kunci",
    u"उत्तर",
    u"उत्तरमाला",
    u"उत्तर कुंजी",
    u"उत्तर माला",
    u"الاجابات",
    u"مفتاح الاجابه",
    u"مفتاح الاجابات",
    u"الاجوبه",
    u"الحل",
    u"الحلول",
    u"نموذج الاجابه",
    u"الاجابه",
    u"תשובות",
    u"מפתח תשובות",
    u"פתרונות",
    u"מפתח",
    u"پاسخ",
    u"پاسخنامه",
    u"پاسخ نامه",
    u"کلید",
    u"απαντησεισ",
    u"απαντήσεισ",
    u"λύσεισ",
    u"λυσεισ",
    u"เฉลย",
    u"คำตอบ",
    u"svar",
    u"facit",
    u"facitliste",
    u"fasit",
    u"vastaukset",
    u"megoldások",
    u"megoldókulcs",
    u"megoldás",
    u"răspunsuri",
    u"barem",
    u"raspunsuri",
    u"odgovori",
    u"rješenja",
    u"verification key",
    u"ans",
    u"answer table",
    u"correct options",
    u"正确答案",
    u"正確答案",
    u"正答",
    u"解答欄",
    u"답",
    u"ответ",
    u"відповідь",
    u"ключове",
    u"отговор",
    u"одговори",
    u"кључ",
    u"кілт",
    u"жауаптар",
    u"riešenia",
    u"rešitve",
    u"odgovor",
    u"rezultate",
    u"kľúč",
    u"atsakymai",
    u"atbildes",
    u"vastused",
    u"ratkaisut",
    u"løsninger",
    u"løsning",
    u"svarnøkkel",
    u"lösningar",
    u"solutions",
    u"corrigés",
    u"sleutels",
    u"antwoord",
    u"yanıt",
    u"yanıtları",
    u"cevapları",
    u"çözümler",
    u"jawapan",
    u"mga sagot",
    u"majibu",
    u"جوابات",
    u"جواب",
    u"کلید",
    u"پاسخ ها",
    u"উত্তর",
    u"উত্তরমালা",
    u"উত্তরপত্র",
    u"விடைகள்",
    u"விடை",
    u"उत्तर सूची",
    u"उत्तर तालिका",
    u"ตอบ",
};

/// Words that may stand beside those without making the line mean something else.
constexpr std::u16string_view kHeadingFillers[] = {
    u"correct",  u"right",      u"the",       u"to",         u"for",       u"of",           u"test",
    u"quiz",     u"exam",       u"questions", u"all",        u"and",       u"explanations", u"правильные",
    u"к",        u"тесту",      u"на",        u"вопросы",    u"правильні", u"richtige",     u"zum",
    u"zu",       u"den",        u"aufgaben",  u"les",        u"des",       u"du",           u"las",
    u"los",      u"le",         u"de",        u"do",         u"da",        u"correctas",    u"corretas",
    u"corrette", u"prawidłowe", u"teste",     u"testu",      u"examen",    u"及评分标准",   u"与解析",
    u"及解析",   u"和解析",     u"解析",      u"与评分标准", u"と解説",    u"문제",         u"الصحيحه",
    u"נכונות",   u"benar",      u"bảng",      u"các",        u"câu",       u"hỏi",          u"đề",
    u"số",       u"со",         u"верните",   u"правилните", u"верни",     u"верных",       u"правильных",
    u"ответов",  u"ответами",   u"тест",      u"теста",      u"таблица",   u"питання",      u"тестів",
    u"tabela",   u"tablosu",    u"tabelle",   u"der",        u"die",       u"richtigen",    u"tableau",
    u"tabla",    u"tabella",    u"delle",     u"alle",       u"agli",      u"domande",      u"preguntas",
    u"questões", u"aos",        u"às",        u"oikeat",     u"rätta",     u"riktiga",      u"rigtige",
    u"riktige",  u"helyes",     u"corecte",   u"întrebări",  u"juiste",    u"goede",        u"vragen",
    u"testin",   u"zadań",      u"pytań",     u"otázkám",    u"správné",   u"doğru",        u"soal",
    u"ujian",    u"表",         u"页",        u"頁",         u"一览",      u"如下",         u"及解释",
    u"及說明",   u"と解答",     u"一覧",      u"표",         u"및 해설",   u"درست",         u"صحيحه",
    u"الاسئله",  u"table",      u"sheet",     u"multiple",   u"choice",    u"section",
};

constexpr std::u16string_view kPartWords[] = {
    u"part",
    u"section",
    u"teil",
    u"abschnitt",
    u"partie",
    u"parte",
    u"sección",
    u"seção",
    u"sezione",
    u"часть",
    u"раздел",
    u"блок",
    u"частина",
    u"розділ",
    u"część",
    u"část",
    u"bölüm",
    u"kısım",
    u"phần",
    u"bagian",
    u"भाग",
    u"खण्ड",
    u"खंड",
    u"الجزء",
    u"القسم",
    u"חלק",
    u"μέροσ",
    u"ตอนที่",
    u"deel",

    u"multiple choice",
    u"true or false",
    u"true/false",
    u"fill in",
    u"essay",
    u"单项选择",
    u"选择题",
    u"判断题",
    u"填空题",
    u"简答题",
    u"第一部分",
    u"第二部分",
    u"第三部分",
};

/// In front of the letter of an answer.
constexpr std::u16string_view kLeadWords[] = {
    u"the",       u"correct",    u"right",     u"answer",      u"answers",  u"option",     u"options",
    u"choice",    u"letter",     u"is",        u"are",         u"both",     u"ans",        u"key",
    u"答案",      u"正确答案",   u"参考答案",  u"选项",        u"故选",     u"应选",       u"选",
    u"是",        u"为",         u"正解",      u"答え",        u"答",       u"정답",       u"답",
    u"ответ",     u"правильный", u"верный",    u"вариант",     u"буква",    u"под буквой", u"відповідь",
    u"правильна", u"варіант",    u"odpowiedź", u"odpověď",     u"antwort",  u"lösung",     u"richtig",
    u"ist",       u"option",     u"réponse",   u"la",          u"lettre",   u"respuesta",  u"opción",
    u"letra",     u"resposta",   u"opção",     u"alternativa", u"risposta", u"opzione",    u"cevap",
    u"doğru",     u"şık",        u"seçenek",   u"đáp án",      u"chọn",     u"câu",        u"jawaban",
    u"pilihan",   u"उत्तर",       u"विकल्प",     u"الاجابه",     u"الجواب",   u"الخيار",     u"תשובה",
    u"απάντηση",  u"ข้อ",         u"ตอบ",       u"svar",        u"antwoord", u"vastaus",    u"răspuns",
};

constexpr std::u16string_view kCorrectWords[] = {
    u"correct",
    u"right",
    u"true",
    u"correct answer",
    u"right answer",
    u"answer",
    u"正确",
    u"正確",
    u"对",
    u"正确答案",
    u"答案",
    u"正解",
    u"정답",
    u"правильно",
    u"верно",
    u"правильный ответ",
    u"верный ответ",
    u"правильна відповідь",
    u"вірно",
    u"poprawna",
    u"poprawne",
    u"dobrze",
    u"správně",
    u"richtig",
    u"korrekt",
    u"vrai",
    u"bonne réponse",
    u"juste",
    u"correcta",
    u"correcto",
    u"correta",
    u"correto",
    u"certo",
    u"certa",
    u"corretta",
    u"corretto",
    u"giusto",
    u"juist",
    u"goed",
    u"doğru",
    u"đúng",
    u"benar",
    u"सही",
    u"صحيح",
    u"صح",
    u"נכון",
    u"σωστό",
    u"σωστη",
    u"ถูก",
    u"rätt",
    u"riktig",
    u"rigtig",
    u"oikein",
    u"corect",
    u"helyes",
};

constexpr std::u16string_view kAndWords[] = {
    u"and", u"und", u"et",  u"y",  u"e",  u"и",  u"і",   u"та",  u"i",  u"oraz", u"a",
    u"ve",  u"và",  u"dan", u"और", u"و",  u"ו",  u"και", u"และ", u"en", u"och",  u"og",
    u"ja",  u"și",  u"és",  u"和", u"及", u"与", u"與",  u"と",  u"와", u"과",
};

constexpr std::u16string_view kOrWords[] = {
    u"or",    u"oder", u"ou",   u"o",    u"или",   u"або",  u"чи",     u"lub",  u"albo", u"nebo",
    u"alebo", u"veya", u"hoặc", u"atau", u"或",    u"或者", u"または", u"또는", u"या",   u"او",
    u"או",    u"ή",    u"หรือ",  u"of",   u"eller", u"tai",  u"sau",    u"vagy", u"ili",
};

struct OrdinalRow {
  std::u16string_view words[5];
};

constexpr OrdinalRow kOrdinals[] = {
    {{u"first", u"second", u"third", u"fourth", u"fifth"}},
    {{u"erste", u"zweite", u"dritte", u"vierte", u"fünfte"}},
    {{u"première", u"deuxième", u"troisième", u"quatrième", u"cinquième"}},
    {{u"primera", u"segunda", u"tercera", u"cuarta", u"quinta"}},
    {{u"primeira", u"segunda", u"terceira", u"quarta", u"quinta"}},
    {{u"prima", u"seconda", u"terza", u"quarta", u"quinta"}},
    {{u"первый", u"второй", u"третий", u"четвертый", u"пятый"}},
    {{u"перший", u"другий", u"третій", u"четвертий", u"п'ятий"}},
    {{u"第一", u"第二", u"第三", u"第四", u"第五"}},
    {{u"الاول", u"الثاني", u"الثالث", u"الرابع", u"الخامس"}},
    {{u"birinci", u"ikinci", u"üçüncü", u"dördüncü", u"beşinci"}},
    {{u"pertama", u"kedua", u"ketiga", u"keempat", u"kelima"}},
};

using AnswerWordList = std::span<const std::u16string_view>;

/// The size of the longest of the words that the folded text begins with, 0 for none.
std::size_t LongestWordAt(std::u16string_view folded, AnswerWordList words) {
  std::size_t longest = 0;
  if (folded.empty()) return longest;
  for (const std::u16string_view word : words) {
    // Nearly all words end here, which comparing whole ones would take far longer to tell.
    if (word.front() != folded.front()) continue;
    const bool isHere = folded.starts_with(word) &&
                        (folded.size() == word.size() || !AreInOneWord(word.back(), folded[word.size()]) ||
                         word.front() >= 0x3041);
    if (isHere) longest = std::max(longest, word.size());
  }
  return longest;
}

std::u16string_view WithoutWord(std::u16string_view text) {
  std::size_t size = 1;
  while (size < text.size() && AreInOneWord(text[size - 1], text[size])) ++size;
  return text.substr(size);
}

/// The words of a line that may be a heading; none of a long one.
struct HeadingCount {
  int headings = 0;
  bool hasVerb = false;  ///< "Answer", which may ask for answers
  int fillers = 0;
  int others = 0;
};

HeadingCount CountHeadingWords(std::u16string_view line) {
  constexpr std::size_t kLongestHeading = 80;
  HeadingCount count;
  if (line.size() > kLongestHeading) return count;
  const std::u16string folded = FoldedCore(line);
  for (std::u16string_view rest = folded; !rest.empty();) {
    if (!IsLetterOrDigit(rest.front())) {
      rest.remove_prefix(1);
    } else if (const std::size_t size = LongestWordAt(rest, kHeadingWords); size > 0) {
      ++count.headings;
      count.hasVerb = count.hasVerb || rest.substr(0, size) == u"answer";
      rest.remove_prefix(size);
    } else if (const std::size_t filler = LongestWordAt(rest, kHeadingFillers); filler > 0) {
      ++count.fillers;
      rest.remove_prefix(filler);
    } else {
      ++count.others;
      rest = WithoutWord(rest);
    }
  }
  return count;
}

}  // namespace

AnswerHeading AnswerHeadingOf(std::u16string_view line) {
  constexpr int kMostOtherWords = 5;
  const HeadingCount count = CountHeadingWords(line);
  if (count.headings == 0 || count.others > kMostOtherWords) return AnswerHeading::None;
  return count.others == 0 ? AnswerHeading::Clear : AnswerHeading::Possible;
}

bool IsBareAnswerHeading(std::u16string_view line) {
  const HeadingCount count = CountHeadingWords(line);
  return count.headings > 0 && count.others == 0 && (count.fillers == 0 || !count.hasVerb);
}

bool IsPartTitle(std::u16string_view line) {
  constexpr std::size_t kLongestTitle = 100;
  constexpr int kMostParts = 20;
  const std::u16string folded = FoldedCore(line);
  if (folded.empty() || line.size() > kLongestTitle) return false;
  if (LongestWordAt(folded, kPartWords) > 0) return true;
  for (const NumeralKind kind : {NumeralKind::Chinese, NumeralKind::UpperRoman}) {
    const std::size_t begin = line.find_first_not_of(u" \t(（");
    if (begin == line.npos) return false;
    const Numeral numeral = NumeralAt(line, begin, kind);
    const std::size_t after = begin + numeral.size;
    // "C." and "D." are options rather than parts 100 and 500.
    if (numeral.size == 0 || numeral.value > kMostParts || after >= line.size()) continue;
    if (std::u16string_view(u"、.．)） ").find(line[after]) != std::u16string_view::npos) return true;
  }
  return false;
}

std::size_t AnswerLeadSize(std::u16string_view text) {
  constexpr std::u16string_view kBetween = u" :.=-";
  const std::u16string folded = Folded(text.substr(0, std::min<std::size_t>(text.size(), 80)));
  std::size_t at = 0;
  for (std::size_t lead = 0;;) {
    while (at < folded.size() && kBetween.find(folded[at]) != kBetween.npos) ++at;
    const std::size_t size = LongestWordAt(std::u16string_view(folded).substr(at), kLeadWords);
    if (size == 0) return lead;
    at += size;
    while (at < folded.size() && kBetween.find(folded[at]) != kBetween.npos) ++at;
    lead = at;
  }
}

bool IsWordForCorrect(std::u16string_view text) {
  const std::u16string core = FoldedCore(text);
  return std::ranges::find(kCorrectWords, core) != std::end(kCorrectWords);
}

std::size_t AndWordSize(std::u16string_view text) {
  return LongestWordAt(Folded(text.substr(0, std::min<std::size_t>(text.size(), 8))), kAndWords);
}

std::size_t OrWordSize(std::u16string_view text) {
  return LongestWordAt(Folded(text.substr(0, std::min<std::size_t>(text.size(), 8))), kOrWords);
}

int OrdinalIndex(std::u16string_view text) {
  const std::u16string core = FoldedCore(text);
  for (const OrdinalRow& row : kOrdinals) {
    const auto* const word = std::ranges::find(row.words, core);
    if (word != std::end(row.words)) return static_cast<int>(word - std::begin(row.words));
  }
  return -1;
}

}  // namespace quorvantis
