// SPDX-License-Identifier: MIT
#include "check/wording/QuestionWording.h"

#include "check/wording/WordedText.h"
#include "model/ExamLimits.h"

#include <algorithm>
#include <span>
#include <string>

namespace quorvantis {
namespace {

using Phrases = std::span<const std::u16string_view>;

/// "Question" before a number.
constexpr std::u16string_view kBeforeNumber[] = {
    u"question", u"questions", u"exercise",   u"item",       u"items",    u"problem",   u"frage",
    u"fragen",   u"aufgabe",   u"aufgaben",   u"vraag",      u"vragen",   u"opgave",    u"exercice",
    u"pregunta", u"preguntas", u"ejercicio",  u"questão",    u"questões", u"exercício", u"domanda",
    u"domande",  u"esercizio", u"întrebarea", u"вопрос",     u"вопроса",  u"вопросе",   u"вопросу",
    u"задание",  u"задания",   u"задании",    u"питання",    u"завдання", u"pytanie",   u"pytania",
    u"pytaniu",  u"zadanie",   u"zadania",    u"zadaniu",    u"otázka",   u"otázky",    u"otázce",
    u"otázke",   u"soru",      u"soal",       u"pertanyaan", u"câu",      u"السؤال",    u"سؤال",
    u"السؤالين", u"الأسئلة",   u"प्रश्न",       u"سوال",       u"שאלה",     u"문제",      u"문항"};

/// And after it: "3. soru".
constexpr std::u16string_view kAfterNumber[] = {u"soru",   u"soruda",    u"sorunun", u"soruya",
                                                u"kérdés", u"kérdésben", u"feladat", u"feladatban",
                                                u"번",     u"번의",      u"번에서"};

/// Of Chinese and Japanese, right after a number.
constexpr std::u16string_view kChineseAfterNumber[] = {u"题", u"題", u"小题", u"小題", u"問"};

constexpr std::u16string_view kPictureNouns[] = {
    u"picture",     u"pictures",     u"figure",    u"figures",    u"diagram",    u"diagrams",   u"graph",
    u"graphs",      u"image",        u"images",    u"photo",      u"photograph", u"map",        u"chart",
    u"drawing",     u"illustration", u"sketch",    u"cartoon",    u"bild",       u"bilder",     u"abbildung",
    u"abbildungen", u"diagramm",     u"grafik",    u"zeichnung",  u"skizze",     u"karte",      u"foto",
    u"schaubild",   u"afbeelding",   u"tekening",  u"figuur",     u"grafiek",    u"plaatje",    u"image",
    u"figure",      u"schéma",       u"graphique", u"dessin",     u"photo",      u"carte",      u"imagen",
    u"figura",      u"gráfico",      u"gráfica",   u"dibujo",     u"mapa",       u"diagrama",   u"fotografía",
    u"esquema",     u"imagem",       u"desenho",   u"fotografia", u"immagine",   u"disegno",    u"grafico",
    u"mappa",       u"imaginea",     u"desenul",   u"рисунок",    u"рисунке",    u"рисунку",    u"рисунка",
    u"схема",       u"схеме",        u"график",    u"графике",    u"карте",      u"фотографии", u"чертеж",
    u"чертеже",     u"малюнку",      u"малюнок",   u"рисунком",   u"rysunek",    u"rysunku",    u"obrazek",
    u"obrazku",     u"zdjęcie",      u"zdjęciu",   u"wykres",     u"wykresie",   u"mapie",      u"schemat",
    u"schemacie",   u"obrázek",      u"obrázku",   u"obrázok",    u"grafu",      u"resim",      u"resimde",
    u"şekil",       u"şekilde",      u"grafik",    u"grafikte",   u"haritada",   u"fotoğraf",   u"ábra",
    u"ábrán",       u"kép",          u"képen",     u"gambar",     u"peta",       u"hình",       u"الصورة",
    u"الشكل",       u"الرسم",        u"الخريطة",   u"المخطط",     u"الصور",      u"الأشكال",    u"चित्र",
    u"تصویر",       u"شکل",          u"תמונה",     u"그림",       u"그림은",     u"그림에서",   u"그림과",
    u"그래프는",    u"사진은"};

/// Before the noun, at most two words before it: "see the picture", "im folgenden Bild". Without one, a
/// picture is a word of the subject: "Who painted the picture of ..." has no such word either.
constexpr std::u16string_view kPointing[] = {
    u"at",           u"see",      u"this",      u"these",      u"following", u"given",     u"attached",
    u"accompanying", u"shown",    u"look",      u"using",      u"study",     u"siehe",     u"dieses",
    u"diesem",       u"diese",    u"dieser",    u"folgende",   u"folgenden", u"gezeigte",  u"gezeigten",
    u"abgebildete",  u"im",       u"zie",       u"deze",       u"volgende",  u"voir",      u"cette",
    u"ce",           u"suivante", u"suivant",   u"ver",        u"vea",       u"observa",   u"observe",
    u"esta",         u"este",     u"siguiente", u"seguinte",   u"questa",    u"questo",    u"seguente",
    u"vedi",         u"osserva",  u"на",        u"этом",       u"см",        u"ten",       u"tym",
    u"na",           u"tomto",    u"tento",     u"bu",         u"yandaki",   u"aşağıdaki", u"yukarıdaki",
    u"az",           u"alábbi",   u"lihat",     u"perhatikan", u"انظر",      u"لاحظ",      u"هذه",
    u"هذا",          u"تأمل",     u"다음",      u"위",         u"in"};

/// After the noun.
constexpr std::u16string_view kPlaced[] = {
    u"below",    u"above",    u"shown",    u"opposite", u"shows",       u"show",       u"unten",
    u"oben",     u"zeigt",    u"rechts",   u"links",    u"hieronder",   u"hierboven",  u"ci-dessous",
    u"ci",       u"suivante", u"suivant",  u"montre",   u"siguiente",   u"muestra",    u"mostrada",
    u"anterior", u"adjunta",  u"abaixo",   u"acima",    u"seguinte",    u"mostra",     u"seguente",
    u"sotto",    u"accanto",  u"ниже",     u"выше",     u"изображен",   u"изображена", u"изображено",
    u"показан",  u"показана", u"poniżej",  u"obok",     u"przedstawia", u"níže",       u"vedle",
    u"nižšie",   u"aşağıda",  u"berikut",  u"berikut",  u"bên",         u"dưới",       u"التالي",
    u"التالية",  u"المقابل",  u"المقابلة", u"أدناه",    u"المجاور",     u"المجاورة",   u"أعلاه",
    u"المرفقة",  u"الآتي",    u"الآتية"};

constexpr std::u16string_view kChinesePictures[] = {
    u"如图", u"如圖",   u"下图",   u"下圖",   u"图中",   u"圖中",     u"图示", u"圖示",   u"右图",
    u"右圖", u"左图",   u"左圖",   u"看图",   u"看圖",   u"附图",     u"附圖", u"此图",   u"上图",
    u"上圖", u"图所示", u"示意图", u"次の図", u"右の図", u"図のよう", u"図に", u"下の図", u"図は"};

/// "The picture above", "the previous question".
constexpr std::u16string_view kFollowing[] = {
    // English
    u"picture above",
    u"figure above",
    u"diagram above",
    u"graph above",
    u"image above",
    u"map above",
    u"chart above",
    u"photo above",
    u"table above",
    u"text above",
    u"passage above",
    u"paragraph above",
    u"article above",
    u"poem above",
    u"data above",
    u"information above",
    u"dialogue above",
    u"above picture",
    u"above figure",
    u"above diagram",
    u"above graph",
    u"above image",
    u"above map",
    u"above chart",
    u"above table",
    u"above text",
    u"above passage",
    u"above paragraph",
    u"above data",
    u"above information",
    u"above dialogue",
    u"above question",
    u"question above",
    u"previous question",
    u"preceding question",
    u"last question",
    u"previous answer",
    u"previous passage",
    u"preceding passage",
    u"previous exercise",
    u"previous problem",
    u"same passage",
    u"same picture",
    u"same figure",
    u"same table",
    u"same experiment",
    u"your answer to question",
    // Chinese, Japanese, Korean
    u"上图",
    u"上圖",
    u"上题",
    u"上題",
    u"上一题",
    u"上一題",
    u"前一题",
    u"前一題",
    u"前题",
    u"上文",
    u"上述材料",
    u"上述文章",
    u"上面的图",
    u"上面的短文",
    u"接上题",
    u"续上题",
    u"根据上述",
    u"上表",
    u"以上材料",
    u"以上短文",
    u"上の図",
    u"前問",
    u"上の文",
    u"위 그림",
    u"위의 그림",
    u"위 글",
    u"앞 문제",
    u"앞 문항",
    // Arabic
    u"الصورة أعلاه",
    u"الشكل أعلاه",
    u"النص أعلاه",
    u"الجدول أعلاه",
    u"السؤال السابق",
    u"الصورة السابقة",
    u"الشكل السابق",
    u"النص السابق",
    u"الفقرة السابقة",
    u"الجدول السابق",
    u"القطعة السابقة",
    // German, Dutch
    u"vorherigen frage",
    u"vorigen frage",
    u"vorhergehenden frage",
    u"vorherigen aufgabe",
    u"vorigen aufgabe",
    u"letzten frage",
    u"obigen text",
    u"obige abbildung",
    u"obigen abbildung",
    u"obiges bild",
    u"obigen bild",
    u"obige tabelle",
    u"obigen tabelle",
    u"bild oben",
    u"abbildung oben",
    u"text oben",
    u"tabelle oben",
    u"vorige vraag",
    u"afbeelding hierboven",
    u"bovenstaande tekst",
    u"bovenstaande afbeelding",
    u"bovenstaande tabel",
    // French, Spanish, Portuguese, Italian, Romanian
    u"question précédente",
    u"texte ci-dessus",
    u"image ci-dessus",
    u"figure ci-dessus",
    u"tableau ci-dessus",
    u"schéma ci-dessus",
    u"pregunta anterior",
    u"figura anterior",
    u"imagen anterior",
    u"texto anterior",
    u"tabla anterior",
    u"gráfico anterior",
    u"imagen de arriba",
    u"questão anterior",
    u"imagem acima",
    u"figura acima",
    u"texto acima",
    u"tabela acima",
    u"gráfico acima",
    u"domanda precedente",
    u"figura precedente",
    u"immagine precedente",
    u"testo precedente",
    u"figura sopra",
    u"immagine sopra",
    u"testo sopra",
    u"întrebarea precedentă",
    u"textul de mai sus",
    u"figura de mai sus",
    // Russian, Ukrainian, Polish, Czech, Slovak
    u"предыдущий вопрос",
    u"предыдущего вопроса",
    u"предыдущем вопросе",
    u"предыдущего задания",
    u"рисунке выше",
    u"тексте выше",
    u"таблице выше",
    u"схеме выше",
    u"приведённого выше",
    u"приведенного выше",
    u"попереднього питання",
    u"попередньому питанні",
    u"малюнку вище",
    u"тексті вище",
    u"poprzedniego pytania",
    u"poprzednim pytaniu",
    u"poprzedniego zadania",
    u"poprzednim zadaniu",
    u"powyższego tekstu",
    u"powyższy rysunek",
    u"powyższym rysunku",
    u"rysunku powyżej",
    u"předchozí otázky",
    u"předchozí otázce",
    u"obrázku výše",
    u"textu výše",
    u"predchádzajúcej otázky",
    u"predchádzajúcej otázke",
    // Turkish, Hungarian, Indonesian, Vietnamese
    u"önceki soru",
    u"önceki soruda",
    u"yukarıdaki şekil",
    u"yukarıdaki şekilde",
    u"yukarıdaki resim",
    u"yukarıdaki resimde",
    u"yukarıdaki metin",
    u"yukarıdaki metne",
    u"yukarıdaki tablo",
    u"előző kérdés",
    u"előző feladat",
    u"fenti ábra",
    u"fenti ábrán",
    u"fenti szöveg",
    u"soal sebelumnya",
    u"gambar di atas",
    u"teks di atas",
    u"tabel di atas",
    u"câu trước",
    u"hình trên",
    u"đoạn văn trên",
    u"bảng trên",
};

constexpr std::u16string_view kNegations[] = {
    u"not",      u"except",     u"never",       u"least",      u"false",    u"incorrect", u"wrong",
    u"untrue",   u"neither",    u"cannot",      u"isn't",      u"aren't",   u"doesn't",   u"don't",
    u"wasn't",   u"nicht",      u"kein",        u"keine",      u"keinen",   u"keiner",    u"falsch",
    u"außer",    u"niet",       u"geen",        u"onjuist",    u"behalve",  u"pas",       u"sauf",
    u"excepté",  u"fausse",     u"faux",        u"incorrecte", u"no",       u"excepto",   u"falsa",
    u"falso",    u"incorrecta", u"incorrecto",  u"não",        u"exceto",   u"incorreta", u"non",
    u"tranne",   u"eccetto",    u"errata",      u"не",         u"кроме",    u"неверно",   u"неправильно",
    u"неверное", u"крім",       u"неправильне", u"nie",        u"oprócz",   u"fałszywe",  u"nieprawdziwe",
    u"není",     u"nejsou",     u"kromě",       u"nepatří",    u"değildir", u"değil",     u"yanlıştır",
    u"yanlış",   u"nem",        u"kivéve",      u"bukan",      u"tidak",    u"kecuali",   u"không",
    u"ngoại",    u"ليس",        u"ليست",        u"عدا",        u"ماعدا",    u"لا",        u"خاطئة",
    u"غير",      u"نہیں",       u"नहीं",         u"아닌",       u"않은",     u"틀린"};

constexpr std::u16string_view kChineseNegations[] = {
    u"不属于", u"不屬於", u"不正确",     u"不正確",   u"不包括", u"不符合", u"不是",
    u"不能",   u"不可",   u"不会",       u"不會",     u"不",     u"错误",   u"錯誤",
    u"没有",   u"沒有",   u"誤っている", u"ではない", u"除了"};

/// The digit's value in the scripts of schools, or -1.
int DigitOf(char16_t unit) {
  static constexpr char16_t kZeros[] = {u'0', u'\u0660', u'\u06F0', u'\uFF10'};
  for (const char16_t zero : kZeros) {
    if (unit >= zero && unit <= zero + 9) return unit - zero;
  }
  return -1;
}

/// The number of a question, or nothing.
std::optional<int> NumberOf(std::u16string_view word) {
  constexpr std::size_t kMostDigits = 3;
  if (word.empty() || word.size() > kMostDigits) return std::nullopt;
  int number = 0;
  for (const char16_t unit : word) {
    const int digit = DigitOf(unit);
    if (digit < 0) return std::nullopt;
    number = number * 10 + digit;
  }
  return IsQuestionNumber(number) ? std::optional(number) : std::nullopt;
}

/// Collects numbers, each once.
class NumberList {
 public:
  void Add(int number) {
    if (std::find(numbers_.begin(), numbers_.end(), number) == numbers_.end()) numbers_.push_back(number);
  }
  void AddRange(int first, int last) {
    for (int number = first; number <= last; ++number) Add(number);
  }
  std::vector<int> Take() { return std::move(numbers_); }

 private:
  std::vector<int> numbers_;
};

bool IsDash(char16_t unit) {
  return unit == u'-' || unit == u'–' || unit == u'—' || unit == u'~' || unit == u'～';
}

/// The number at word `index` and those linked with it: "3", "3-5", "3 and 4", "3, 4 and 5".
void TakeNumbers(const WordedText& text, std::size_t index, NumberList& numbers) {
  static constexpr std::u16string_view kLinks[] = {u"and", u"to", u"or",  u"und", u"bis", u"et",
                                                   u"à",   u"y",  u"e",   u"a",   u"и",   u"i",
                                                   u"ve",  u"و",  u"إلى", u"en",  u"tot"};
  static constexpr std::u16string_view kUpTo[] = {u"to", u"bis", u"à", u"إلى", u"tot", u"a"};
  std::optional<int> last = NumberOf(text.Word(index));
  while (last) {
    numbers.Add(*last);
    const char16_t sign = text.After(index);
    const bool linked = IsOneOf<kLinks>(text.Word(index + 1));
    if (!linked && !IsDash(sign) && sign != u',' && sign != u'،') return;
    const std::size_t next = index + (linked ? 2 : 1);
    const std::optional<int> number = NumberOf(text.Word(next));
    const bool range = number && (IsDash(sign) || IsOneOf<kUpTo>(text.Word(index + 1)));
    if (range) numbers.AddRange(*last, *number);
    last = number;
    index = next;
  }
}

/// "第3题", "3题", "第 3、4 题".
void TakeChineseNumbers(std::u16string_view folded, NumberList& numbers) {
  for (const std::u16string_view noun : kChineseAfterNumber) {
    for (std::size_t at = folded.find(noun); at != std::u16string_view::npos;
         at = folded.find(noun, at + 1)) {
      std::size_t end = at;
      while (end > 0 && folded[end - 1] == u' ') --end;
      std::size_t begin = end;
      while (begin > 0 && DigitOf(folded[begin - 1]) >= 0) --begin;
      const std::optional<int> number = NumberOf(folded.substr(begin, end - begin));
      if (number && begin > 0 && folded[begin - 1] == u'第') numbers.Add(*number);
    }
  }
}

bool HasPictureWords(const WordedText& text) {
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (!IsOneOf<kPictureNouns>(text.Word(i))) continue;
    if (IsOneOf<kPlaced>(text.Word(i + 1)) || NumberOf(text.Word(i + 1))) return true;
    for (std::size_t back = 1; back <= std::min<std::size_t>(i, 2); ++back) {
      if (IsOneOf<kPointing>(text.Word(i - back))) return true;
    }
  }
  return false;
}

bool HasPhrase(std::u16string_view folded, Phrases phrases) {
  return std::any_of(phrases.begin(), phrases.end(),
                     [folded](std::u16string_view phrase) { return folded.find(phrase) != folded.npos; });
}

}  // namespace

std::vector<int> NamedQuestions(std::u16string_view original) {
  const WordedText text(original);
  NumberList numbers;
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (IsOneOf<kBeforeNumber>(text.Word(i))) TakeNumbers(text, i + 1, numbers);
    if (const std::optional<int> number = NumberOf(text.Word(i));
        number && IsOneOf<kAfterNumber>(text.Word(i + 1)))
      numbers.Add(*number);
  }
  TakeChineseNumbers(text.Folded(), numbers);
  return numbers.Take();
}

bool FollowsOn(std::u16string_view text) {
  return WordedText(text).HasAny(kFollowing);
}

bool MentionsPicture(std::u16string_view original) {
  const WordedText text(original);
  return HasPictureWords(text) || HasPhrase(text.Folded(), kChinesePictures);
}

std::optional<TextSpan> FindNegation(std::u16string_view original) {
  const WordedText text(original);
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (IsOneOf<kNegations>(text.Word(i))) return text.Place(i);
  }
  for (const std::u16string_view word : kChineseNegations) {
    const std::size_t at = text.Folded().find(word);
    if (at != std::u16string_view::npos)
      return TextSpan{text.Origin(at), text.Origin(at + word.size() - 1) + 1};
  }
  return std::nullopt;
}

}  // namespace quorvantis
