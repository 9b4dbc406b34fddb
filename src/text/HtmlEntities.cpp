// SPDX-License-Identifier: MIT
#include "text/HtmlEntities.h"

#include "text/AsciiCase.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

struct EntityRow {
  std::u16string_view name;
  char32_t codePoint;
  bool standsAlone;  ///< needs no semicolon
};

// Sorted by name.
// clang-format off
constexpr EntityRow kEntities[] = {
    {u"AElig", 0xC6, true},
    {u"AMP", 0x26, true},
    {u"Aacute", 0xC1, true},
    {u"Acirc", 0xC2, true},
    {u"Agrave", 0xC0, true},
    {u"Alpha", 0x391, false},
    {u"Aogon", 0x104, false},
    {u"Aring", 0xC5, true},
    {u"Atilde", 0xC3, true},
    {u"Auml", 0xC4, true},
    {u"Beta", 0x392, false},
    {u"COPY", 0xA9, true},
    {u"Cacute", 0x106, false},
    {u"Ccaron", 0x10C, false},
    {u"Ccedil", 0xC7, true},
    {u"Chi", 0x3A7, false},
    {u"Dagger", 0x2021, false},
    {u"Dcaron", 0x10E, false},
    {u"Delta", 0x394, false},
    {u"Dstrok", 0x110, false},
    {u"ETH", 0xD0, true},
    {u"Eacute", 0xC9, true},
    {u"Ecaron", 0x11A, false},
    {u"Ecirc", 0xCA, true},
    {u"Egrave", 0xC8, true},
    {u"Eogon", 0x118, false},
    {u"Epsilon", 0x395, false},
    {u"Eta", 0x397, false},
    {u"Euml", 0xCB, true},
    {u"GT", 0x3E, true},
    {u"Gamma", 0x393, false},
    {u"Gbreve", 0x11E, false},
    {u"Hat", 0x5E, false},
    {u"Iacute", 0xCD, true},
    {u"Icirc", 0xCE, true},
    {u"Idot", 0x130, false},
    {u"Igrave", 0xCC, true},
    {u"Iota", 0x399, false},
    {u"Iuml", 0xCF, true},
    {u"Kappa", 0x39A, false},
    {u"LT", 0x3C, true},
    {u"Lambda", 0x39B, false},
    {u"Lstrok", 0x141, false},
    {u"Mu", 0x39C, false},
    {u"Nacute", 0x143, false},
    {u"Ncaron", 0x147, false},
    {u"Ntilde", 0xD1, true},
    {u"Nu", 0x39D, false},
    {u"OElig", 0x152, false},
    {u"Oacute", 0xD3, true},
    {u"Ocirc", 0xD4, true},
    {u"Odblac", 0x150, false},
    {u"Ograve", 0xD2, true},
    {u"Omega", 0x3A9, false},
    {u"Omicron", 0x39F, false},
    {u"Oslash", 0xD8, true},
    {u"Otilde", 0xD5, true},
    {u"Ouml", 0xD6, true},
    {u"Phi", 0x3A6, false},
    {u"Pi", 0x3A0, false},
    {u"Prime", 0x2033, false},
    {u"Psi", 0x3A8, false},
    {u"QUOT", 0x22, true},
    {u"REG", 0xAE, true},
    {u"Rcaron", 0x158, false},
    {u"Rho", 0x3A1, false},
    {u"Sacute", 0x15A, false},
    {u"Scaron", 0x160, false},
    {u"Scedil", 0x15E, false},
    {u"Sigma", 0x3A3, false},
    {u"THORN", 0xDE, true},
    {u"Tau", 0x3A4, false},
    {u"Tcaron", 0x164, false},
    {u"Theta", 0x398, false},
    {u"ThinSpace", 0x2009, false},
    {u"Uacute", 0xDA, true},
    {u"Ucirc", 0xDB, true},
    {u"Udblac", 0x170, false},
    {u"Ugrave", 0xD9, true},
    {u"Upsilon", 0x3A5, false},
    {u"Uring", 0x16E, false},
    {u"Uuml", 0xDC, true},
    {u"Xi", 0x39E, false},
    {u"Yacute", 0xDD, true},
    {u"Yuml", 0x178, false},
    {u"Zacute", 0x179, false},
    {u"Zcaron", 0x17D, false},
    {u"Zdot", 0x17B, false},
    {u"Zeta", 0x396, false},
    {u"aacute", 0xE1, true},
    {u"acirc", 0xE2, true},
    {u"acute", 0xB4, true},
    {u"aelig", 0xE6, true},
    {u"agrave", 0xE0, true},
    {u"alefsym", 0x2135, false},
    {u"alpha", 0x3B1, false},
    {u"amp", 0x26, true},
    {u"and", 0x2227, false},
    {u"ang", 0x2220, false},
    {u"aogon", 0x105, false},
    {u"apos", 0x27, false},
    {u"approx", 0x2248, false},
    {u"aring", 0xE5, true},
    {u"ast", 0x2A, false},
    {u"asymp", 0x2248, false},
    {u"atilde", 0xE3, true},
    {u"auml", 0xE4, true},
    {u"bdquo", 0x201E, false},
    {u"beta", 0x3B2, false},
    {u"brvbar", 0xA6, true},
    {u"bsol", 0x5C, false},
    {u"bull", 0x2022, false},
    {u"cacute", 0x107, false},
    {u"cap", 0x2229, false},
    {u"ccaron", 0x10D, false},
    {u"ccedil", 0xE7, true},
    {u"cedil", 0xB8, true},
    {u"cent", 0xA2, true},
    {u"check", 0x2713, false},
    {u"chi", 0x3C7, false},
    {u"circ", 0x2C6, false},
    {u"clubs", 0x2663, false},
    {u"colon", 0x3A, false},
    {u"comma", 0x2C, false},
    {u"commat", 0x40, false},
    {u"complexes", 0x2102, false},
    {u"cong", 0x2245, false},
    {u"copy", 0xA9, true},
    {u"copysr", 0x2117, false},
    {u"crarr", 0x21B5, false},
    {u"cross", 0x2717, false},
    {u"cup", 0x222A, false},
    {u"curren", 0xA4, true},
    {u"dArr", 0x21D3, false},
    {u"dagger", 0x2020, false},
    {u"darr", 0x2193, false},
    {u"dash", 0x2010, false},
    {u"dcaron", 0x10F, false},
    {u"deg", 0xB0, true},
    {u"delta", 0x3B4, false},
    {u"diams", 0x2666, false},
    {u"divide", 0xF7, true},
    {u"dollar", 0x24, false},
    {u"dstrok", 0x111, false},
    {u"eacute", 0xE9, true},
    {u"ecaron", 0x11B, false},
    {u"ecirc", 0xEA, true},
    {u"egrave", 0xE8, true},
    {u"ell", 0x2113, false},
    {u"empty", 0x2205, false},
    {u"emsp", 0x2003, false},
    {u"ensp", 0x2002, false},
    {u"eogon", 0x119, false},
    {u"epsilon", 0x3B5, false},
    {u"equals", 0x3D, false},
    {u"equiv", 0x2261, false},
    {u"eta", 0x3B7, false},
    {u"eth", 0xF0, true},
    {u"euml", 0xEB, true},
    {u"euro", 0x20AC, false},
    {u"excl", 0x21, false},
    {u"exist", 0x2203, false},
    {u"female", 0x2640, false},
    {u"fnof", 0x192, false},
    {u"forall", 0x2200, false},
    {u"frac12", 0xBD, true},
    {u"frac13", 0x2153, false},
    {u"frac14", 0xBC, true},
    {u"frac15", 0x2155, false},
    {u"frac18", 0x215B, false},
    {u"frac23", 0x2154, false},
    {u"frac34", 0xBE, true},
    {u"frasl", 0x2044, false},
    {u"gamma", 0x3B3, false},
    {u"gbreve", 0x11F, false},
    {u"ge", 0x2265, false},
    {u"geq", 0x2265, false},
    {u"grave", 0x60, false},
    {u"gt", 0x3E, true},
    {u"hArr", 0x21D4, false},
    {u"half", 0xBD, false},
    {u"harr", 0x2194, false},
    {u"hbar", 0x210F, false},
    {u"hearts", 0x2665, false},
    {u"hellip", 0x2026, false},
    {u"hyphen", 0x2010, false},
    {u"iacute", 0xED, true},
    {u"icirc", 0xEE, true},
    {u"iexcl", 0xA1, true},
    {u"igrave", 0xEC, true},
    {u"image", 0x2111, false},
    {u"imath", 0x131, false},
    {u"infin", 0x221E, false},
    {u"inodot", 0x131, false},
    {u"int", 0x222B, false},
    {u"integers", 0x2124, false},
    {u"iota", 0x3B9, false},
    {u"iquest", 0xBF, true},
    {u"isin", 0x2208, false},
    {u"iuml", 0xEF, true},
    {u"kappa", 0x3BA, false},
    {u"lArr", 0x21D0, false},
    {u"lambda", 0x3BB, false},
    {u"lang", 0x27E8, false},
    {u"laquo", 0xAB, true},
    {u"larr", 0x2190, false},
    {u"lbrace", 0x7B, false},
    {u"lbrack", 0x5B, false},
    {u"lceil", 0x2308, false},
    {u"lcub", 0x7B, false},
    {u"ldquo", 0x201C, false},
    {u"le", 0x2264, false},
    {u"leq", 0x2264, false},
    {u"lfloor", 0x230A, false},
    {u"lowast", 0x2217, false},
    {u"lowbar", 0x5F, false},
    {u"loz", 0x25CA, false},
    {u"lpar", 0x28, false},
    {u"lrm", 0x200E, false},
    {u"lsaquo", 0x2039, false},
    {u"lsqb", 0x5B, false},
    {u"lsquo", 0x2018, false},
    {u"lstrok", 0x142, false},
    {u"lt", 0x3C, true},
    {u"macr", 0xAF, true},
    {u"male", 0x2642, false},
    {u"mdash", 0x2014, false},
    {u"micro", 0xB5, true},
    {u"middot", 0xB7, true},
    {u"minus", 0x2212, false},
    {u"mu", 0x3BC, false},
    {u"nabla", 0x2207, false},
    {u"nacute", 0x144, false},
    {u"naturals", 0x2115, false},
    {u"nbsp", 0xA0, true},
    {u"ncaron", 0x148, false},
    {u"ndash", 0x2013, false},
    {u"ne", 0x2260, false},
    {u"ni", 0x220B, false},
    {u"not", 0xAC, true},
    {u"notin", 0x2209, false},
    {u"nsub", 0x2284, false},
    {u"ntilde", 0xF1, true},
    {u"nu", 0x3BD, false},
    {u"num", 0x23, false},
    {u"numero", 0x2116, false},
    {u"oacute", 0xF3, true},
    {u"ocirc", 0xF4, true},
    {u"odblac", 0x151, false},
    {u"oelig", 0x153, false},
    {u"ograve", 0xF2, true},
    {u"oline", 0x203E, false},
    {u"omega", 0x3C9, false},
    {u"omicron", 0x3BF, false},
    {u"oplus", 0x2295, false},
    {u"or", 0x2228, false},
    {u"ordf", 0xAA, true},
    {u"ordm", 0xBA, true},
    {u"oslash", 0xF8, true},
    {u"otilde", 0xF5, true},
    {u"otimes", 0x2297, false},
    {u"ouml", 0xF6, true},
    {u"para", 0xB6, true},
    {u"part", 0x2202, false},
    {u"percnt", 0x25, false},
    {u"period", 0x2E, false},
    {u"permil", 0x2030, false},
    {u"perp", 0x22A5, false},
    {u"phi", 0x3C6, false},
    {u"phone", 0x260E, false},
    {u"pi", 0x3C0, false},
    {u"piv", 0x3D6, false},
    {u"planck", 0x210F, false},
    {u"plus", 0x2B, false},
    {u"plusmn", 0xB1, true},
    {u"pm", 0xB1, false},
    {u"pound", 0xA3, true},
    {u"prime", 0x2032, false},
    {u"prod", 0x220F, false},
    {u"prop", 0x221D, false},
    {u"psi", 0x3C8, false},
    {u"quest", 0x3F, false},
    {u"quot", 0x22, true},
    {u"rArr", 0x21D2, false},
    {u"radic", 0x221A, false},
    {u"rang", 0x27E9, false},
    {u"raquo", 0xBB, true},
    {u"rarr", 0x2192, false},
    {u"rationals", 0x211A, false},
    {u"rbrace", 0x7D, false},
    {u"rbrack", 0x5D, false},
    {u"rcaron", 0x159, false},
    {u"rceil", 0x2309, false},
    {u"rcub", 0x7D, false},
    {u"rdquo", 0x201D, false},
    {u"real", 0x211C, false},
    {u"reals", 0x211D, false},
    {u"reg", 0xAE, true},
    {u"rfloor", 0x230B, false},
    {u"rho", 0x3C1, false},
    {u"rlm", 0x200F, false},
    {u"rpar", 0x29, false},
    {u"rsaquo", 0x203A, false},
    {u"rsqb", 0x5D, false},
    {u"rsquo", 0x2019, false},
    {u"sacute", 0x15B, false},
    {u"sbquo", 0x201A, false},
    {u"scaron", 0x161, false},
    {u"scedil", 0x15F, false},
    {u"sdot", 0x22C5, false},
    {u"sect", 0xA7, true},
    {u"semi", 0x3B, false},
    {u"shy", 0xAD, true},
    {u"sigma", 0x3C3, false},
    {u"sigmaf", 0x3C2, false},
    {u"sim", 0x223C, false},
    {u"sol", 0x2F, false},
    {u"spades", 0x2660, false},
    {u"star", 0x2606, false},
    {u"sub", 0x2282, false},
    {u"sube", 0x2286, false},
    {u"sum", 0x2211, false},
    {u"sup", 0x2283, false},
    {u"sup1", 0xB9, true},
    {u"sup2", 0xB2, true},
    {u"sup3", 0xB3, true},
    {u"supe", 0x2287, false},
    {u"szlig", 0xDF, true},
    {u"tau", 0x3C4, false},
    {u"tcaron", 0x165, false},
    {u"there4", 0x2234, false},
    {u"theta", 0x3B8, false},
    {u"thetasym", 0x3D1, false},
    {u"thinsp", 0x2009, false},
    {u"thorn", 0xFE, true},
    {u"tilde", 0x2DC, false},
    {u"times", 0xD7, true},
    {u"trade", 0x2122, false},
    {u"uArr", 0x21D1, false},
    {u"uacute", 0xFA, true},
    {u"uarr", 0x2191, false},
    {u"ucirc", 0xFB, true},
    {u"udblac", 0x171, false},
    {u"ugrave", 0xF9, true},
    {u"uml", 0xA8, true},
    {u"upsih", 0x3D2, false},
    {u"upsilon", 0x3C5, false},
    {u"uring", 0x16F, false},
    {u"uuml", 0xFC, true},
    {u"verbar", 0x7C, false},
    {u"vert", 0x7C, false},
    {u"weierp", 0x2118, false},
    {u"xi", 0x3BE, false},
    {u"yacute", 0xFD, true},
    {u"yen", 0xA5, true},
    {u"yuml", 0xFF, true},
    {u"zacute", 0x17A, false},
    {u"zcaron", 0x17E, false},
    {u"zdot", 0x17C, false},
    {u"zeta", 0x3B6, false},
    {u"zwj", 0x200D, false},
    {u"zwnj", 0x200C, false},
};
// clang-format on

constexpr std::size_t kLongestName = 12;
constexpr char32_t kLastCodePoint = 0x10FFFF;

/// What browsers show for the numbers 80 to 9F, which old pages use for characters of Windows.
// clang-format off
constexpr char16_t kWindowsCharacters[32] = {
    0x20AC, 0x81, 0x201A, 0x192, 0x201E, 0x2026, 0x2020, 0x2021, 0x2C6, 0x2030, 0x160, 0x2039, 0x152, 0x8D, 0x17D, 0x8F,
    0x90, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x2DC, 0x2122, 0x161, 0x203A, 0x153, 0x9D, 0x17E, 0x178};
// clang-format on

int DigitValue(char16_t unit, bool isHexadecimal) {
  if (IsDigit(unit)) return unit - u'0';
  const char16_t lower = AsciiLower(unit);
  return isHexadecimal && lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

char32_t ShownCodePoint(char32_t number) {
  if (number >= 0x80 && number < 0xA0) return kWindowsCharacters[number - 0x80];
  const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
  return number == 0 || isSurrogate || number > kLastCodePoint ? 0xFFFD : number;
}

std::optional<HtmlEntity> ReadNumber(std::u16string_view text) {
  const bool isHexadecimal = text.size() > 2 && AsciiLower(text[2]) == u'x';
  const std::size_t first = isHexadecimal ? 3 : 2;
  std::size_t at = first;
  char32_t number = 0;
  for (; at < text.size(); ++at) {
    const int digit = DigitValue(text[at], isHexadecimal);
    if (digit < 0) break;
    const char32_t base = isHexadecimal ? 16 : 10;
    if (number <= kLastCodePoint) number = number * base + static_cast<char32_t>(digit);
  }
  if (at == first) return std::nullopt;
  if (at < text.size() && text[at] == u';') ++at;
  return HtmlEntity{ShownCodePoint(number), at};
}

const EntityRow* FindEntity(std::u16string_view name) {
  const auto* const row = std::ranges::lower_bound(kEntities, name, {}, &EntityRow::name);
  return row != std::end(kEntities) && row->name == name ? row : nullptr;
}

std::optional<HtmlEntity> ReadName(std::u16string_view text) {
  std::size_t length = 0;
  const auto isLetter = [](char16_t unit) {
    return IsDigit(unit) || (AsciiLower(unit) >= u'a' && AsciiLower(unit) <= u'z');
  };
  while (length <= kLongestName && length + 1 < text.size() && isLetter(text[length + 1])) ++length;
  if (length + 1 < text.size() && text[length + 1] == u';') {
    if (const EntityRow* row = FindEntity(text.substr(1, length)))
      return HtmlEntity{row->codePoint, length + 2};
  }
  for (; length > 1; --length) {
    const EntityRow* row = FindEntity(text.substr(1, length));
    if (row != nullptr && row->standsAlone) return HtmlEntity{row->codePoint, length + 1};
  }
  return std::nullopt;
}

}  // namespace

std::optional<HtmlEntity> ReadEntity(std::u16string_view text) {
  if (text.size() < 3 || text[0] != u'&') return std::nullopt;
  return text[1] == u'#' ? ReadNumber(text) : ReadName(text);
}

std::u16string ResolveEntities(std::u16string_view text) {
  std::u16string resolved;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t ampersand = std::min(text.find(u'&', at), text.size());
    resolved += text.substr(at, ampersand - at);
    at = ampersand;
    if (at == text.size()) break;
    if (const auto entity = ReadEntity(text.substr(at))) {
      AppendCodePoint(resolved, entity->codePoint);
      at += entity->length;
    } else {
      resolved.push_back(text[at++]);
    }
  }
  return resolved;
}

}  // namespace quorvantis
