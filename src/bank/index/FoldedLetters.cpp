// SPDX-License-Identifier: MIT
#include "bank/index/FoldedLetters.h"

#include "regex/LetterCase.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {
namespace {

struct FoldRow {
  std::u16string_view folded;
  std::u16string_view letters;  ///< all that are folded to it, in lower case
};

// Letters with accents and signs made of others. What has no case or accent of its own is not here.
// clang-format off
constexpr FoldRow kFoldRows[] = {
    {u"a", u"ªàáâãäåāăąǎǟǡǻȁȃȧḁạảấầẩẫậắằẳẵặₐⓐ"},
    {u"2", u"²₂②"},
    {u"3", u"³₃③"},
    {u"μ", u"µ"},
    {u"1", u"¹₁①"},
    {u"o", u"ºòóôõöōŏőơǒǫǭȍȏȫȭȯȱṍṏṑṓọỏốồổỗộớờởỡợₒℴⓞø"},
    {u"1/4", u"¼"},
    {u"1/2", u"½"},
    {u"3/4", u"¾"},
    {u"c", u"çćĉċčḉℂℭⅽⓒ"},
    {u"e", u"èéêëēĕėęěȅȇȩḕḗḙḛḝẹẻẽếềểễệₑℯℰⅇⓔ"},
    {u"i", u"ìíîïĩīĭįİǐȉȋḭḯỉịⁱℐℑℹⅈⅰⓘı"},
    {u"n", u"ñńņňǹṅṇṉṋⁿₙℕⓝ"},
    {u"u", u"ùúûüũūŭůűųưǔǖǘǚǜȕȗṳṵṷṹṻụủứừửữựⓤ"},
    {u"y", u"ýÿŷȳʸẏẙỳỵỷỹⓨ"},
    {u"d", u"ďḋḍḏḑḓⅅⅆⅾⓓđð"},
    {u"g", u"ĝğġģǧǵḡℊⓖ"},
    {u"h", u"ĥȟʰḣḥḧḩḫẖₕℋℌℍℎⓗħ"},
    {u"ij", u"ĳ"},
    {u"j", u"ĵǰʲⅉⓙ"},
    {u"k", u"ķǩḱḳḵₖⓚ"},
    {u"l", u"ĺļľˡḷḹḻḽₗℒℓⅼⓛł"},
    {u"r", u"ŕŗřȑȓʳṙṛṝṟℛℜℝⓡ"},
    {u"s", u"śŝşšſșˢṡṣṥṧṩẛₛⓢ"},
    {u"t", u"ţťțṫṭṯṱẗₜⓣŧ"},
    {u"w", u"ŵʷẁẃẅẇẉẘⓦ"},
    {u"z", u"źżžẑẓẕℤℨⓩ"},
    {u"dz", u"ǆǳ"},
    {u"lj", u"ǉ"},
    {u"nj", u"ǌ"},
    {u"x", u"ˣẋẍₓⅹⓧ"},
    {u"ι", u"ΐίϊἰἱἲἳἴἵἶἷὶίιῐῑῒΐῖῗ"},
    {u"α", u"άἀἁἂἃἄἅἆἇὰάᾀᾁᾂᾃᾄᾅᾆᾇᾰᾱᾲᾳᾴᾶᾷ"},
    {u"ε", u"έϵἐἑἒἓἔἕὲέ"},
    {u"η", u"ήἠἡἢἣἤἥἦἧὴήᾐᾑᾒᾓᾔᾕᾖᾗῂῃῄῆῇ"},
    {u"υ", u"ΰϋύϒϓϔὐὑὒὓὔὕὖὗὺύῠῡῢΰῦῧ"},
    {u"ο", u"όὀὁὂὃὄὅὸό"},
    {u"ω", u"ώὠὡὢὣὤὥὦὧὼώᾠᾡᾢᾣᾤᾥᾦᾧῲῳῴῶῷ"},
    {u"β", u"ϐ"},
    {u"θ", u"ϑ"},
    {u"φ", u"ϕ"},
    {u"π", u"ϖℼℿ"},
    {u"κ", u"ϰ"},
    {u"ρ", u"ϱῤῥ"},
    {u"σ", u"ϲ"},
    {u"и", u"йѝӣӥ"},
    {u"е", u"ѐёӗ"},
    {u"г", u"ѓ"},
    {u"і", u"ї"},
    {u"к", u"ќ"},
    {u"у", u"ўӯӱӳ"},
    {u"ж", u"ӂӝ"},
    {u"а", u"ӑӓ"},
    {u"ә", u"ӛ"},
    {u"з", u"ӟ"},
    {u"о", u"ӧ"},
    {u"ө", u"ӫ"},
    {u"э", u"ӭ"},
    {u"ч", u"ӵ"},
    {u"ы", u"ӹ"},
    {u"b", u"ḃḅḇℬⓑ"},
    {u"m", u"ḿṁṃₘℳⅿⓜ"},
    {u"p", u"ṕṗₚℙⓟ"},
    {u"v", u"ṽṿⅴⓥ"},
    {u"γ", u"ℽℾ"},
    {u"f", u"ḟℱⓕ"},
    {u"0", u"⁰₀⓪"},
    {u"4", u"⁴₄④"},
    {u"5", u"⁵₅⑤"},
    {u"6", u"⁶₆⑥"},
    {u"7", u"⁷₇⑦"},
    {u"8", u"⁸₈⑧"},
    {u"9", u"⁹₉⑨"},
    {u"+", u"⁺₊"},
    {u"=", u"⁼₌"},
    {u"(", u"⁽₍"},
    {u")", u"⁾₎"},
    {u"°c", u"℃"},
    {u"°f", u"℉"},
    {u"q", u"ℚⓠ"},
    {u"1/3", u"⅓"},
    {u"2/3", u"⅔"},
    {u"1/5", u"⅕"},
    {u"2/5", u"⅖"},
    {u"3/5", u"⅗"},
    {u"4/5", u"⅘"},
    {u"1/6", u"⅙"},
    {u"1/8", u"⅛"},
    {u"3/8", u"⅜"},
    {u"5/8", u"⅝"},
    {u"7/8", u"⅞"},
    {u"10", u"⑩"},
    {u"11", u"⑪"},
    {u"12", u"⑫"},
    {u"13", u"⑬"},
    {u"14", u"⑭"},
    {u"15", u"⑮"},
    {u"16", u"⑯"},
    {u"17", u"⑰"},
    {u"18", u"⑱"},
    {u"19", u"⑲"},
    {u"20", u"⑳"},
    {u"ff", u"ﬀ"},
    {u"fi", u"ﬁ"},
    {u"fl", u"ﬂ"},
    {u"ffi", u"ﬃ"},
    {u"ffl", u"ﬄ"},
    {u"ss", u"ß"},
    {u"ae", u"æ"},
    {u"oe", u"œ"},
    {u"th", u"þ"},
    {u"ا", u"آأإٱ"}, {u"ه", u"ةۀە"}, {u"و", u"ؤ"}, {u"ي", u"ىئی"}, {u"ك", u"ک"},
    {u"'", u"‘’‚‛ʼʹ′"}, {u"\"", u"“”„‟«»″"}, {u"-", u"‐‑‒–—―−"}, {u"...", u"…"}, {u"/", u"⁄"},
};

struct FoldRange {
  char16_t first;
  char16_t last;
};

constexpr FoldRange kPassedOver[] = {
    {0x00AD, 0x00AD},  // soft hyphen
    {0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF}, {0xFE20, 0xFE2F},  // accents
    {0x0591, 0x05BD}, {0x05BF, 0x05BF}, {0x05C1, 0x05C2}, {0x05C4, 0x05C5}, {0x05C7, 0x05C7},  // Hebrew
    {0x0610, 0x061A}, {0x0640, 0x0640}, {0x064B, 0x065F}, {0x0670, 0x0670}, {0x06D6, 0x06DC},  // Arabic
    {0x06DF, 0x06E4}, {0x06E7, 0x06E8}, {0x06EA, 0x06ED},
    {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x206F}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF},  // invisible
};

constexpr FoldRange kBlanks[] = {
    {0x0000, 0x0020}, {0x007F, 0x00A0}, {0x1680, 0x1680}, {0x2000, 0x200A}, {0x2028, 0x2029}, {0x202F, 0x202F},
    {0x205F, 0x205F}, {0x3000, 0x3000},
};

/// Digits from 0 to 9.
constexpr char16_t kFoldedDigits[] = {0x0660, 0x06F0, 0x0966, 0x09E6, 0xFF10};
// clang-format on

constexpr char16_t kFirstWide = 0xFF01;  ///< from here on, the printable characters of ASCII in double width
constexpr char16_t kLastWide = 0xFF5E;
constexpr char16_t kWideDistance = kFirstWide - u'!';

/// For every unit the place of its folded form in a list; place 0 stands for the unit itself.
class FoldTable {
 public:
  FoldTable() {
    const std::map<char16_t, std::u16string> rows = Rows();
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
      const auto unit = static_cast<char16_t>(value);
      const bool isWide = unit >= kFirstWide && unit <= kLastWide;
      const char16_t lower = FoldCase(isWide ? static_cast<char16_t>(unit - kWideDistance) : unit);
      const auto row = rows.find(lower);
      if (row != rows.end()) {
        Set(unit, row->second);
      } else if (lower != unit) {
        Set(unit, std::u16string(1, lower));
      }
    }
    for (const FoldRange& range : kPassedOver) Set(range, u"");
    for (const FoldRange& range : kBlanks) Set(range, u" ");
    for (const char16_t zero : kFoldedDigits) {
      for (int i = 0; i < 10; ++i)
        Set(static_cast<char16_t>(zero + i), std::u16string(1, static_cast<char16_t>(u'0' + i)));
    }
  }

  std::u16string_view Of(const char16_t& unit) const {
    const std::uint16_t place = places_[unit];
    return place == 0 ? std::u16string_view(&unit, 1) : folded_[place];
  }

 private:
  static std::map<char16_t, std::u16string> Rows() {
    std::map<char16_t, std::u16string> rows;
    for (const FoldRow& row : kFoldRows) {
      for (const char16_t letter : row.letters) rows[letter] = row.folded;
    }
    return rows;
  }

  void Set(const FoldRange& range, const std::u16string& folded) {
    for (unsigned unit = range.first; unit <= range.last; ++unit) Set(static_cast<char16_t>(unit), folded);
  }

  void Set(char16_t unit, const std::u16string& folded) {
    const auto [known, isNew] = known_.try_emplace(folded, static_cast<std::uint16_t>(folded_.size()));
    if (isNew) folded_.push_back(folded);
    places_[unit] = known->second;
  }

  std::array<std::uint16_t, 0x10000> places_{};
  std::vector<std::u16string> folded_{std::u16string()};
  std::map<std::u16string, std::uint16_t> known_;
};

}  // namespace

std::u16string_view FoldedLetter(const char16_t& unit) {
  static const FoldTable table;
  return table.Of(unit);
}

}  // namespace quorvantis
