// SPDX-License-Identifier: MIT
#include "check/wording/LanguageWords.h"

namespace quorvantis {
namespace {

constexpr WordRow kRussian[] = {
    {WordUse::OfOthers,
     {u"все перечисленное",
      u"всё перечисленное",
      u"ничего из перечисленного",
      u"все вышеперечисленное",
      u"всё вышеперечисленное",
      u"ничего из вышеперечисленного",
      u"все вышеуказанное",
      u"все ответы верны",
      u"все варианты",
      u"нет правильного ответа",
      u"верного ответа нет",
      u"все верно",
      u"ни один из",
      u"все ответы",
      u"то же, что и выше",
      u"то же, что выше",
      u"то же самое, что и выше",
      u"как и выше",
      u"предыдущие ответы",
      u"предыдущих ответа",
      u"предыдущих варианта",
      u"оба предыдущих",
      u"первые два ответа",
      u"первые два варианта",
      u"оба ответа",
      u"оба варианта"}},
    {WordUse::AloneOfOthers,
     {u"оба", u"обе", u"ни то, ни другое", u"ни то ни другое", u"и то, и другое", u"и то и другое",
      u"первые два", u"первые две", u"последние два", u"последние две", u"два предыдущих", u"ни один",
      u"ни одно", u"ни одна", u"все три"}},
    {WordUse::BesideLabel, {u"только", u"ответ", u"ответы", u"вариант", u"варианты", u"утверждения"}},
    {WordUse::Company, {u"верны", u"верно", u"правильны", u"правильно", u"неверны", u"ответа", u"варианта"}},
    {WordUse::OptionNoun, {u"ответ", u"ответы", u"вариант", u"варианты"}},
    {WordUse::Link, {u"и", u"или", u"ни", u"так"}},
    {WordUse::QuestionNoun,
     {u"вопрос", u"вопроса", u"вопросе", u"вопросу", u"вопросом", u"вопросы", u"задание", u"задания",
      u"задании", u"заданию", u"задача", u"задачи", u"задаче"}},
    {WordUse::NumberSign, {u"номер", u"номером"}},
    {WordUse::Reference, {u"см", u"в", u"из", u"к", u"на", u"по", u"под", u"с"}},
    {WordUse::NumberLink, {u"и", u"или", u"по", u"до"}},
    {WordUse::UpTo, {u"по", u"до"}},
    {WordUse::One, {u"один"}},
    {WordUse::Two, {u"два"}},
    {WordUse::Three, {u"три"}},
    {WordUse::Four, {u"четыре"}},
    {WordUse::Five, {u"пять"}},
    {WordUse::Six, {u"шесть"}},
    {WordUse::Seven, {u"семь"}},
    {WordUse::Eight, {u"восемь"}},
    {WordUse::Nine, {u"девять"}},
    {WordUse::Ten, {u"десять"}},
    {WordUse::FollowsOn,
     {u"предыдущий вопрос", u"предыдущего вопроса", u"предыдущем вопросе", u"предыдущему вопросу",
      u"предыдущих вопросов", u"предыдущего задания", u"предыдущем задании", u"предыдущей задачи",
      u"предыдущий ответ", u"рисунке выше", u"тексте выше", u"таблице выше", u"схеме выше",
      u"приведённого выше", u"приведенного выше", u"то же, что и выше", u"как и выше", u"см. выше"}},
    {WordUse::PictureNoun,
     {u"рисунок", u"рисунке", u"рисунку", u"рисунка", u"рисунком", u"схема", u"схеме", u"график", u"графике",
      u"карте", u"фотографии", u"чертеж", u"чертеже"}},
    {WordUse::BeforePicture, {u"на", u"этом", u"см"}},
    {WordUse::AfterPicture,
     {u"ниже", u"выше", u"изображен", u"изображена", u"изображено", u"показан", u"показана"}},
    {WordUse::Negation, {u"не", u"кроме", u"неверно", u"неправильно", u"неверное"}},
};

constexpr WordRow kUkrainian[] = {
    {WordUse::OfOthers,
     {u"усе перелічене", u"все перелічене", u"нічого з переліченого", u"усі відповіді", u"всі відповіді",
      u"попередні відповіді", u"те саме, що й вище"}},
    {WordUse::AloneOfOthers,
     {u"обидва", u"обидві", u"ні те, ні інше", u"ні те ні інше", u"перші два", u"перші дві", u"останні два"}},
    {WordUse::BesideLabel, {u"лише", u"тільки"}},
    {WordUse::Link, {u"та", u"і", u"й", u"або"}},
    {WordUse::QuestionNoun, {u"питання", u"завдання"}},
    {WordUse::FollowsOn, {u"попереднього питання", u"попередньому питанні", u"малюнку вище", u"тексті вище"}},
    {WordUse::PictureNoun, {u"малюнку", u"малюнок"}},
    {WordUse::BeforePicture, {u"див"}},
    {WordUse::Negation, {u"крім", u"неправильне"}},
};

constexpr WordRow kPolish[] = {
    {WordUse::OfOthers,
     {u"wszystkie powyższe", u"żadne z powyższych", u"żadna z powyższych", u"wszystkie odpowiedzi",
      u"żadna odpowiedź", u"żadna z odpowiedzi", u"obie powyższe", u"to samo co wyżej", u"tak jak wyżej",
      u"jak wyżej", u"poprzednie odpowiedzi", u"dwie poprzednie", u"pierwsze dwie odpowiedzi",
      u"dwie pierwsze odpowiedzi", u"obie odpowiedzi"}},
    {WordUse::AloneOfOthers,
     {u"obie", u"oba", u"obydwie", u"obydwa", u"żadna z nich", u"żadne z nich", u"żadna z tych",
      u"pierwsze dwie", u"pierwsze dwa", u"dwie pierwsze", u"dwa pierwsze", u"ostatnie dwie", u"ostatnie dwa",
      u"dwie ostatnie", u"dwa ostatnie", u"ani jedno, ani drugie", u"ani jedna, ani druga",
      u"ani jedno ani drugie", u"wszystkie trzy"}},
    {WordUse::BesideLabel, {u"tylko", u"zarówno", u"odpowiedź", u"odpowiedzi", u"stwierdzenia"}},
    {WordUse::Company, {u"są", u"jest", u"poprawne", u"poprawna", u"prawidłowe", u"prawdziwe", u"błędne"}},
    {WordUse::OptionNoun, {u"odpowiedź", u"odpowiedzi"}},
    {WordUse::Link, {u"i", u"lub", u"oraz", u"ani", u"jak", u"albo"}},
    {WordUse::QuestionNoun,
     {u"pytanie", u"pytania", u"pytaniu", u"pytań", u"zadanie", u"zadania", u"zadaniu", u"zad"}},
    {WordUse::NumberSign, {u"nr", u"numer"}},
    {WordUse::Reference, {u"zob", u"zobacz", u"patrz", u"w", u"z", u"do", u"jak"}},
    {WordUse::NumberLink, {u"i", u"do", u"lub"}},
    {WordUse::UpTo, {u"do"}},
    {WordUse::One, {u"jeden"}},
    {WordUse::Two, {u"dwa"}},
    {WordUse::Three, {u"trzy"}},
    {WordUse::Four, {u"cztery"}},
    {WordUse::Five, {u"pięć"}},
    {WordUse::Six, {u"sześć"}},
    {WordUse::Seven, {u"siedem"}},
    {WordUse::Eight, {u"osiem"}},
    {WordUse::Nine, {u"dziewięć"}},
    {WordUse::Ten, {u"dziesięć"}},
    {WordUse::FollowsOn,
     {u"poprzedniego pytania", u"poprzednim pytaniu", u"poprzednie pytanie", u"poprzedniego zadania",
      u"poprzednim zadaniu", u"poprzedniej odpowiedzi", u"powyższego tekstu", u"powyższy rysunek",
      u"powyższym rysunku", u"rysunku powyżej", u"tekście powyżej", u"jak wyżej", u"zob. wyżej"}},
    {WordUse::PictureNoun,
     {u"rysunek", u"rysunku", u"obrazek", u"obrazku", u"zdjęcie", u"zdjęciu", u"wykres", u"wykresie",
      u"mapie", u"schemat", u"schemacie"}},
    {WordUse::BeforePicture, {u"ten", u"tym", u"na"}},
    {WordUse::AfterPicture, {u"poniżej", u"obok", u"przedstawia"}},
    {WordUse::Negation, {u"nie", u"oprócz", u"fałszywe", u"nieprawdziwe"}},
};

constexpr WordRow kOtherSlavic[] = {
    {WordUse::OfOthers,
     {u"žádná z uvedených", u"všechny uvedené", u"žádná z možností", u"všechny odpovědi", u"všetky odpovede",
      u"žiadna z uvedených", u"stejné jako výše", u"předchozí odpovědi", u"всички изброени", u"нито едно от",
      u"сви наведени", u"sve navedeno", u"ništa od navedenog"}},
    {WordUse::AloneOfOthers, {u"obě", u"oboje", u"ani jedno", u"první dvě", u"prvé dve", u"obe", u"и двете"}},
    {WordUse::BesideLabel, {u"jen", u"pouze", u"možnost", u"iba", u"само", u"samo"}},
    {WordUse::Link, {u"a", u"nebo", u"alebo", u"ani"}},
    {WordUse::QuestionNoun, {u"otázka", u"otázky", u"otázce", u"otázke"}},
    {WordUse::NumberSign, {u"č", u"číslo"}},
    {WordUse::NumberLink, {u"a"}},
    {WordUse::FollowsOn,
     {u"předchozí otázky", u"předchozí otázce", u"obrázku výše", u"textu výše", u"predchádzajúcej otázky",
      u"predchádzajúcej otázke"}},
    {WordUse::PictureNoun, {u"obrázek", u"obrázku", u"obrázok", u"grafu"}},
    {WordUse::BeforePicture, {u"na", u"tomto", u"tento"}},
    {WordUse::AfterPicture, {u"níže", u"vedle", u"nižšie"}},
    {WordUse::Negation, {u"není", u"nejsou", u"kromě", u"nepatří"}},
};

}  // namespace

WordRows RussianWords() {
  return kRussian;
}

WordRows UkrainianWords() {
  return kUkrainian;
}

WordRows PolishWords() {
  return kPolish;
}

WordRows OtherSlavicWords() {
  return kOtherSlavic;
}

}  // namespace quorvantis
