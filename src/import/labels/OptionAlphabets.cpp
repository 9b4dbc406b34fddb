// SPDX-License-Identifier: MIT
#include "import/labels/OptionAlphabets.h"

#include <algorithm>
#include <unordered_map>

namespace quorvantis {
namespace {

constexpr OptionAlphabet kAlphabets[] = {
    {u"Latin capitals", u"ABCDEFGHIJ"},
    {u"Latin small letters", u"abcdefghij"},
    {u"full-width capitals", u"ＡＢＣＤＥＦＧＨＩＪ"},
    {u"full-width small letters", u"ａｂｃｄｅｆｇｈｉｊ"},
    {u"Cyrillic capitals", u"АБВГДЕЖЗИК"},
    {u"Cyrillic small letters", u"абвгдежзик"},
    {u"Greek capitals", u"ΑΒΓΔΕΖΗΘΙΚ"},
    {u"Greek small letters", u"αβγδεζηθικ"},
    {u"Arabic, by value", u"أبجدهوزحطي", u"ا         ", false, false, u"الف"},
    {u"Arabic, by order", u"أبتثجحخدذر", u"ا         "},
    {u"Hebrew", u"אבגדהוזחטי"},
    {u"Devanagari", u"कखगघङचछजझञ"},
    {u"Devanagari, by use", u"अबसदइ"},
    {u"Devanagari vowels", u"अआइईउ"},
    {u"Tamil", u"அஆஇஈஉஊஎஏஐஒ"},
    {u"Telugu", u"అఆఇఈఉ"},
    {u"Bengali", u"কখগঘঙচছজঝঞ"},
    {u"Thai", u"กขคงจฉชซญฐ", u"  ฃ       "},
    {u"Korean", u"가나다라마바사아자차"},
    {u"Korean consonants", u"ㄱㄴㄷㄹㅁㅂㅅㅇㅈㅊ"},
    {u"Japanese katakana", u"アイウエオカキクケコ", u"", false, true},
    {u"Japanese hiragana", u"あいうえおかきくけこ"},
    {u"Japanese iroha", u"イロハニホヘトチリヌ", u"", false, true},
    {u"Chinese stems", u"甲乙丙丁戊己庚辛壬癸"},
    {u"Georgian", u"აბგდევზთიკ"},
    {u"Armenian", u"աբգդեզէըթժ", u"ԱԲԳԴԵԶԷԸԹԺ"},
    {u"circled digits", u"①②③④⑤⑥⑦⑧⑨⑩", u"❶❷❸❹❺❻❼❽❾❿", true},
    {u"digits in brackets", u"⑴⑵⑶⑷⑸⑹⑺⑻⑼⑽", u"", true},
    {u"circled capitals", u"ⒶⒷⒸⒹⒺⒻⒼⒽⒾⒿ", u"", true},
    {u"circled small letters", u"ⓐⓑⓒⓓⓔⓕⓖⓗⓘⓙ", u"", true},
    {u"small letters in brackets", u"⒜⒝⒞⒟⒠⒡⒢⒣⒤⒥", u"", true},
    {u"circled Korean", u"㉮㉯㉰㉱㉲㉳㉴㉵㉶㉷", u"", true},
    {u"digits", u"123456789"},
    {u"full-width digits", u"１２３４５６７８９"},
    {u"Arabic digits", u"١٢٣٤٥٦٧٨٩", u"۱۲۳۴۵۶۷۸۹"},
};

/// Pairs that look alike: a Latin letter, then the same in another script.
constexpr std::u16string_view kLookAlikes = u"AАBВCСEЕHНKКMМOОPРTТXХaаcсeеoоpрxхAΑBΒEΕZΖHΗIΙKΚMΜNΝOΟ";

std::size_t IndexOf(const OptionAlphabet& alphabet, char16_t unit) {
  if (unit == u' ') return alphabet.letters.size();
  const std::size_t place = alphabet.letters.find(unit);
  const std::size_t other = alphabet.others.find(unit);
  return std::min({place, other, alphabet.letters.size()});
}

using LetterIndex = std::unordered_map<char16_t, std::vector<AlphabetLetter>>;

LetterIndex MakeIndex() {
  LetterIndex index;
  for (std::size_t alphabet = 0; alphabet < std::size(kAlphabets); ++alphabet) {
    for (const std::u16string_view units : {kAlphabets[alphabet].letters, kAlphabets[alphabet].others}) {
      for (std::size_t i = 0; i < units.size(); ++i) {
        if (units[i] != u' ') index[units[i]].push_back({alphabet, i});
      }
    }
  }
  return index;
}

}  // namespace

std::span<const OptionAlphabet> OptionAlphabets() {
  return kAlphabets;
}

const std::vector<AlphabetLetter>& AlphabetLettersOf(char16_t unit) {
  static const LetterIndex kIndex = MakeIndex();
  static const std::vector<AlphabetLetter> kNone;
  const auto found = kIndex.find(unit);
  return found == kIndex.end() ? kNone : found->second;
}

bool LookAlike(char16_t one, char16_t other) {
  for (std::size_t i = 0; i + 1 < kLookAlikes.size(); i += 2) {
    const char16_t latin = kLookAlikes[i];
    const char16_t twin = kLookAlikes[i + 1];
    if ((one == latin && other == twin) || (one == twin && other == latin)) return true;
  }
  return false;
}

std::size_t IndexInAlphabet(const OptionAlphabet& alphabet, char16_t unit) {
  const std::size_t index = IndexOf(alphabet, unit);
  if (index < alphabet.letters.size()) return index;
  const auto twin =
      std::ranges::find_if(alphabet.letters, [unit](char16_t letter) { return LookAlike(letter, unit); });
  return static_cast<std::size_t>(twin - alphabet.letters.begin());
}

}  // namespace quorvantis
