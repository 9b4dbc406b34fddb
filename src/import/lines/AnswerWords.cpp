// SPDX-License-Identifier: MIT
#include "import/lines/AnswerWords.h"

#include "import/labels/Numerals.h"
#include "import/lines/FoldedText.h"
#include "import/lines/FoldedWords.h"

#include <algorithm>
#include <string>

namespace quorvantis {
namespace {

// All words are folded (FoldedText.h).

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

/// Abbreviations, and words that mean other things too, "solution" of salt: they lead in front of a mark
/// only.
constexpr std::u16string_view kMarkedLeadWords[] = {
    u"odp",        u"odpow",      u"отв",       u"відп",      u"отг",         u"одг",       u"resp",
    u"rép",        u"lsg",        u"lös",       u"antw",      u"risp",        u"rta",       u"rpta",
    u"jwb",        u"jaw",        u"cev",       u"sol",       u"soln",        u"sln",       u"solution",
    u"solución",   u"solução",    u"soluzione", u"oplossing", u"rozwiązanie", u"řešení",    u"riešenie",
    u"rješenje",   u"решење",     u"rešitev",   u"megoldás",  u"válasz",      u"çözüm",     u"yanıt",
    u"odpoveď",    u"odgovor",    u"отговор",   u"одговор",   u"адказ",       u"жауап",     u"жауабы",
    u"javob",      u"cavab",      u"хариу",     u"vastus",    u"atbilde",     u"atsakymas", u"svör",
    u"përgjigje",  u"respuestas", u"respostas", u"réponses",  u"risposte",    u"antworten", u"ответы",
    u"odpowiedzi", u"resposta",   u"lời giải",  u"trả lời",   u"jawapan",     u"sagot",     u"jibu",
    u"جواب",       u"پاسخ",       u"الحل",      u"פתרון",     u"উত্তর",        u"விடை",      u"జవాబు",
    u"ಉತ್ತರ",       u"ഉത്തരം",      u"જવાબ",      u"उत्तरः",     u"解答",        u"解",        u"풀이",
    u"解析",
};

/// The size of such a word and its mark at the begin of a folded text.
std::size_t MarkedLeadSize(std::u16string_view folded) {
  const std::size_t size = LongestWordAt(folded, kMarkedLeadWords);
  const std::size_t mark = std::min(folded.find_first_not_of(u' ', size), folded.size());
  return size > 0 && mark < folded.size() && (folded[mark] == u':' || folded[mark] == u'.') ? mark + 1 : 0;
}

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

}  // namespace

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
    const std::u16string_view rest = std::u16string_view(folded).substr(at);
    const std::size_t size = std::max(LongestWordAt(rest, kLeadWords), MarkedLeadSize(rest));
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
