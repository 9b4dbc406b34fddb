// SPDX-License-Identifier: MIT
#include "import/lines/PlatformLines.h"

#include "import/lines/LineWords.h"

#include <algorithm>
#include <string>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestPlatformLine = 80;

/// The words of lines without their numbers, in small letters.
constexpr std::u16string_view kPlatformLines[] = {
    u"flag question",
    u"remove flag",
    u"edit question",
    u"question text",
    u"select one",
    u"select one or more",
    u"choose one",
    u"feedback",
    u"your answer is correct",
    u"your answer is incorrect",
    u"your answer is partially correct",
    u"not yet answered",
    u"answer saved",
    u"clear my choice",
    u"clear selection",
    u"submit",
    u"submit quiz",
    u"submit all and finish",
    u"required",
    u"mark as required",
    u"never submit passwords through this form",
    u"check answer",
    u"show answer",
    u"next question",
    u"previous question",
    u"finish attempt",
    u"finish review",
    u"next page",
    u"previous page",
    u"indicates required question",
    u"skip to main content",
    u"correct response",
    u"add option",
    u"texto de la pregunta",
    u"enunciado de la pregunta",
    u"marcar pregunta",
    u"seleccione una",
    u"seleccione una o más de una",
    u"sin responder aún",
    u"retroalimentación",
    u"enviar",
    u"texto da questão",
    u"marcar questão",
    u"escolha uma opção",
    u"escolha uma ou mais",
    u"ainda não respondida",
    u"fragetext",
    u"frage markieren",
    u"wählen sie eine antwort",
    u"wählen sie eine oder mehrere antworten",
    u"bisher nicht beantwortet",
    u"ihre antwort ist richtig",
    u"die antwort ist richtig",
    u"absenden",
    u"texte de la question",
    u"marquer la question",
    u"veuillez choisir une réponse",
    u"veuillez choisir au moins une réponse",
    u"pas encore répondu",
    u"votre réponse est correcte",
    u"votre réponse est incorrecte",
    u"testo della domanda",
    u"contrassegna domanda",
    u"scegli un alternativa",
    u"risposta non ancora data",
    u"текст вопроса",
    u"отметить вопрос",
    u"выберите один ответ",
    u"выберите один или несколько ответов",
    u"пока нет ответа",
    u"отправить",
    u"текст питання",
    u"позначити питання",
    u"виберіть одну відповідь",
    u"treść pytania",
    u"oflaguj pytanie",
    u"wybierz jedną odpowiedź",
    u"wybierz jedną lub więcej",
    u"nie udzielono odpowiedzi",
    u"soru metni",
    u"soruyu işaretle",
    u"birini seçin",
    u"teks pertanyaan",
    u"tandai pertanyaan",
    u"pilih satu",
    u"belum dijawab",
    u"text otázky",
    u"označit úlohu",
    u"vyberte jednu z nabízených možností",
    u"vraagtekst",
    u"markeer vraag",
    u"selecteer één",
    u"frågetext",
    u"välj ett alternativ",
    u"نص السؤال",
    u"علّم هذا السؤال",
    u"اختر واحداً",
    u"لم يتم الإجابة عليه بعد",
    u"טקסט השאלה",
    u"textul întrebării",
    u"alegeți o opțiune",
    u"提交",
    u"标记试题",
    u"試題文字",
    u"题干",
    u"선택하기",
    u"제출",
};

/// Those with numbers: "Mark 1.00 out of 1.00", "2 points".
constexpr std::u16string_view kScoreLines[] = {
    u"mark out of",
    u"marks out of",
    u"marked out of",
    u"grade out of",
    u"point",
    u"points",
    u"pt",
    u"pts",
    u"points possible",
    u"point possible",
    u"out of points",
    u"out of point",
    u"puntúa como",
    u"se puntúa sobre",
    u"puntos",
    u"punto",
    u"vale ponto s",
    u"atingiu de",
    u"ponto",
    u"pontos",
    u"erreichte punkte von",
    u"erreichbare punkte",
    u"punkt",
    u"punkte",
    u"note de sur",
    u"noté sur",
    u"points sur",
    u"punteggio max",
    u"punti",
    u"балл",
    u"балла",
    u"баллов",
    u"баллов из",
    u"оценено из",
    u"бал",
    u"бали",
    u"балів",
    u"punkty",
    u"punktów",
    u"puan",
    u"üzerinden puan",
    u"poin",
    u"skor dari",
    u"poäng",
    u"punt",
    u"punten",
    u"درجة",
    u"نقطة",
    u"نقاط",
    u"분",
    u"점",
    u"分",
};

constexpr std::u16string_view kStates[] = {
    u"correct",
    u"incorrect",
    u"complete",
    u"not answered",
    u"partially correct",
    u"finished",
    u"correcta",
    u"incorrecta",
    u"finalizado",
    u"sin contestar",
    u"correto",
    u"incorreto",
    u"completo",
    u"não respondida",
    u"richtig",
    u"falsch",
    u"vollständig",
    u"nicht beantwortet",
    u"teilweise richtig",
    u"correct",
    u"terminé",
    u"non répondue",
    u"corretta",
    u"errata",
    u"risposta corretta",
    u"верно",
    u"неверно",
    u"выполнен",
    u"нет ответа",
    u"правильно",
    u"неправильно",
    u"завершено",
    u"poprawnie",
    u"niepoprawnie",
    u"zakończone",
    u"doğru",
    u"yanlış",
    u"tamamlandı",
    u"benar",
    u"salah",
    u"selesai",
    u"juist",
    u"onjuist",
    u"goed",
    u"fout",
};

template <std::size_t kCount>
bool IsWithin(const std::u16string_view (&lines)[kCount], std::u16string_view line) {
  return std::find(std::begin(lines), std::end(lines), line) != std::end(lines);
}

std::u16string JoinedWords(const LineWords& words) {
  std::u16string joined;
  for (const std::u16string& word : words.Words()) joined += (joined.empty() ? u"" : u" ") + word;
  return joined;
}

}  // namespace

bool IsPlatformLine(std::u16string_view line) {
  if (line.empty() || line.size() > kLongestPlatformLine) return false;
  const LineWords words(line);
  if (words.Words().empty() || words.Rest().find_first_of(u"_?？") != std::u16string::npos) return false;
  return words.Numbers() > 0 ? IsWithin(kScoreLines, JoinedWords(words))
                             : IsWithin(kPlatformLines, JoinedWords(words));
}

bool IsStateLine(std::u16string_view line) {
  if (line.empty() || line.size() > kLongestPlatformLine) return false;
  const LineWords words(line);
  return words.Numbers() == 0 && words.Rest().find_first_not_of(u' ') == std::u16string::npos &&
         IsWithin(kStates, JoinedWords(words));
}

}  // namespace quorvantis
