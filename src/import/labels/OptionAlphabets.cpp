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
    {u"Arabic, by value", u"أبجدهوزحطي", u"ا         ", u"الف بـ جـ _ هـ"},
    {u"Arabic, by order", u"أبتثجحخدذر", u"ا         ", u"_ بـ تـ ثـ جـ"},
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
    {u"Japanese katakana", u"アイウエオカキクケコ", u"", u"", false, true},
    {u"Japanese hiragana", u"あいうえおかきくけこ"},
    {u"Japanese iroha", u"イロハニホヘトチリヌ", u"", u"", false, true},
    {u"Chinese stems", u"甲乙丙丁戊己庚辛壬癸"},
    {u"Georgian", u"აბგდევზთიკ"},
    {u"Armenian", u"աբգդեզէըթժ", u"ԱԲԳԴԵԶԷԸԹԺ"},
    {u"circled digits", u"①②③④⑤⑥⑦⑧⑨⑩", u"❶❷❸❹❺❻❼❽❾❿", u"", true, false, true},
    {u"digits in brackets", u"⑴⑵⑶⑷⑸⑹⑺⑻⑼⑽", u"", u"", true, false, true},
    {u"circled capitals", u"ⒶⒷⒸⒹⒺⒻⒼⒽⒾⒿ", u"", u"", true},
    {u"circled small letters", u"ⓐⓑⓒⓓⓔⓕⓖⓗⓘⓙ", u"", u"", true},
    {u"small letters in brackets", u"⒜⒝⒞⒟⒠⒡⒢⒣⒤⒥", u"", u"", true},
    {u"circled Korean", u"㉮㉯㉰㉱㉲㉳㉴㉵㉶㉷", u"", u"", true},
    {u"digits", u"123456789", u"", u"", false, false, true},
    {u"full-width digits", u"１２３４５６７８９", u"", u"", false, false, true},
    {u"Arabic digits", u"١٢٣٤٥٦٧٨٩", u"۱۲۳۴۵۶۷۸۹", u"", false, false, true},
    {u"small Roman numerals", u"", u"", u"i ii iii iv v vi vii viii", false, false, true},
    {u"Roman numerals", u"", u"", u"I II III IV V VI VII VIII", false, false, true},
    {u"Roman symbols, small", u"ⅰⅱⅲⅳⅴⅵⅶⅷ", u"", u"", true, false, true},
    {u"Roman symbols", u"ⅠⅡⅢⅣⅤⅥⅦⅧ", u"", u"", true, false, true},
    {u"football pools", u"", u"", u"1 X 2"},
    {u"football pools, small", u"", u"", u"1 x 2"},
};

/// Pairs that look alike: a Latin letter, then the same in another script.
constexpr std::u16string_view kLookAlikes = u"AАBВCСEЕHНKКMМOОPРTТXХaаcсeеoоpрxхAΑBΒEΕZΖHΗIΙKΚMΜNΝOΟ";

std::size_t IndexOf(const OptionAlphabet& alphabet, char16_t unit) {
  if (unit == u' ') return alphabet.letters.size();
  const std::size_t place = alphabet.letters.find(unit);
  const std::size_t other = alphabet.others.find(unit);
  return std::min({place, other, alphabet.letters.size()});
}

/// The words of a row, an empty one for "_".
std::vector<std::u16string_view> WordsOf(std::u16string_view row) {
  std::vector<std::u16string_view> words;
  while (!row.empty()) {
    const std::size_t size = std::min(row.find(u' '), row.size());
    words.push_back(row.substr(0, size) == u"_" ? std::u16string_view() : row.substr(0, size));
    row.remove_prefix(std::min(size + 1, row.size()));
  }
  return words;
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

struct IndexedWord {
  AlphabetLetter letter;
  std::u16string_view word;
};

/// Words by their first units.
using WordIndex = std::unordered_map<char16_t, std::vector<IndexedWord>>;

WordIndex MakeWordIndex() {
  WordIndex index;
  for (std::size_t alphabet = 0; alphabet < std::size(kAlphabets); ++alphabet) {
    const std::vector<std::u16string_view> words = WordsOf(kAlphabets[alphabet].words);
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (!words[i].empty()) index[words[i][0]].push_back({{alphabet, i}, words[i]});
    }
  }
  return index;
}

bool IsLatinLetter(char16_t unit) {
  return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z' && unit < 0x80;
}

/// "i" is no label in "ii", nor "1" in "12".
bool EndsWord(std::u16string_view text, std::size_t end) {
  const char16_t last = text[end - 1];
  if (end >= text.size()) return true;
  const bool areDigits = last >= u'0' && last <= u'9' && text[end] >= u'0' && text[end] <= u'9';
  return !areDigits && !(IsLatinLetter(last) && IsLatinLetter(text[end]));
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

std::vector<AlphabetLabel> AlphabetLabelsAt(std::u16string_view text, std::size_t place) {
  static const WordIndex kWords = MakeWordIndex();
  std::vector<AlphabetLabel> labels;
  if (place >= text.size()) return labels;
  const auto found = kWords.find(text[place]);
  if (found != kWords.end()) {
    for (const auto& [letter, word] : found->second) {
      if (text.substr(place, word.size()) == word && EndsWord(text, place + word.size()))
        labels.push_back({letter, word.size()});
    }
  }
  // Where a word is longer than a letter of its alphabet, it is the label.
  const std::size_t words = labels.size();
  for (const AlphabetLetter& letter : AlphabetLettersOf(text[place])) {
    const auto isSame = [&letter](const AlphabetLabel& word) {
      return word.letter.alphabet == letter.alphabet;
    };
    if (std::none_of(labels.begin(), labels.begin() + static_cast<std::ptrdiff_t>(words), isSame))
      labels.push_back({letter, 1});
  }
  return labels;
}

std::vector<std::u16string_view> FormsOfLabel(const OptionAlphabet& alphabet, std::size_t index) {
  std::vector<std::u16string_view> forms;
  for (const std::u16string_view units : {alphabet.letters, alphabet.others}) {
    if (index < units.size() && units[index] != u' ') forms.push_back(units.substr(index, 1));
  }
  const std::vector<std::u16string_view> words = WordsOf(alphabet.words);
  if (index < words.size() && !words[index].empty()) forms.push_back(words[index]);
  return forms;
}

std::size_t SizeOf(const OptionAlphabet& alphabet) {
  return std::max(alphabet.letters.size(), WordsOf(alphabet.words).size());
}

std::u16string_view LabelWordAt(const OptionAlphabet& alphabet, std::size_t index, std::u16string_view text) {
  for (const std::u16string_view word : WordsOf(alphabet.words)) {
    if (index-- > 0) continue;
    return !word.empty() && text.starts_with(word) && EndsWord(text, word.size()) ? word
                                                                                  : std::u16string_view();
  }
  return {};
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
