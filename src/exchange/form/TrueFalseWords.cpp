// SPDX-License-Identifier: MIT
#include "exchange/form/TrueFalseWords.h"

#include "text/WithoutAround.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace quorvantis {
namespace {

constexpr std::u16string_view kTrueWords[] = {
    u"true",   u"t",     u"yes",    u"right",      u"correct", u"1",      u"wahr",   u"richtig",
    u"stimmt", u"ja",    u"vrai",   u"oui",        u"juste",   u"exact",  u"vero",   u"verdadero",
    u"cierto", u"sí",    u"si",     u"verdadeiro", u"certo",   u"sim",    u"cert",   u"veritable",
    u"waar",   u"juist", u"sant",   u"sand",       u"sandt",   u"rätt",   u"riktig", u"tosi",
    u"oikein", u"tõene", u"prawda", u"pravda",     u"igaz",    u"doğru",  u"верно",  u"правда",
    u"истина", u"да",    u"так",    u"вярно",      u"тачно",   u"αληθές", u"σωστό",  u"adevărat",
    u"corect", u"točno", u"tačno",  u"benar",      u"đúng",    u"ถูก",     u"صح",     u"صحيح",
    u"صواب",   u"נכון",  u"正确",   u"正確",       u"对",      u"對",     u"是",     u"真",
    u"正しい", u"참",    u"सही",    u"सत्य",
};

constexpr std::u16string_view kFalseWords[] = {
    u"false",   u"f",       u"no",      u"wrong",  u"incorrect",  u"0",     u"falsch",  u"unwahr",
    u"nein",    u"faux",    u"non",     u"falso",  u"incorrecto", u"não",   u"errado",  u"fals",
    u"onwaar",  u"onjuist", u"nee",     u"falskt", u"falsk",      u"fel",   u"usann",   u"feil",
    u"epätosi", u"väärin",  u"väär",    u"fałsz",  u"nepravda",   u"hamis", u"yanlış",  u"неверно",
    u"ложь",    u"нет",     u"хибно",   u"ні",     u"невярно",    u"лъжа",  u"нетачно", u"ψευδές",
    u"λάθος",   u"netočno", u"netačno", u"greșit", u"salah",      u"sai",   u"ผิด",      u"خطأ",
    u"خاطئ",    u"לא נכון", u"错误",    u"錯誤",   u"错",         u"錯",    u"否",      u"假",
    u"誤り",    u"거짓",    u"गलत",     u"असत्य",
};

/// The alphabets that are written here and tell the cases apart.
char16_t InLowerCase(char16_t unit) {
  const bool isAscii = unit >= u'A' && unit <= u'Z';
  const bool isLatin = unit >= u'\u00C0' && unit <= u'\u00DE' && unit != u'\u00D7';
  const bool isGreek = unit >= u'\u0391' && unit <= u'\u03A9';
  const bool isCyrillic = unit >= u'\u0410' && unit <= u'\u042F';
  return isAscii || isLatin || isGreek || isCyrillic ? static_cast<char16_t>(unit + 0x20) : unit;
}

}  // namespace

std::optional<bool> TruthOf(std::u16string_view word) {
  std::u16string lower(WithoutAround(word, u" \t\r\n\u00A0.!\u3002"));
  std::ranges::transform(lower, lower.begin(), InLowerCase);
  const auto isIt = [&lower](std::u16string_view known) { return known == lower; };
  if (std::any_of(std::begin(kTrueWords), std::end(kTrueWords), isIt)) return true;
  if (std::any_of(std::begin(kFalseWords), std::end(kFalseWords), isIt)) return false;
  return std::nullopt;
}

}  // namespace quorvantis
