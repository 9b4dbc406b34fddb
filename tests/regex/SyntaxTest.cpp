// SPDX-License-Identifier: MIT
#include "RegexTest.h"

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

TEST(RegexSyntax, Escapes) {
  CheckMatches({
      {u"\\a\\e\\f\\n\\r\\t\\v", u"\a\x1B\f\n\r\t\v", "0-7"},
      {u"\\x41\\x{4e2d}\\x4g", u"A中\x04g", "0-4"},
      {u"\\x", u"\0"s, "0-1"},
      {u"\\h\\R\\K\\E\\.\\(", u"hRKE.(", "0-6"},
      {u"\\G", u"aG", "1-2"},
      {u"\\w\\W\\d\\D\\s\\S", u"_-0x\tx", "0-6"},
      {u"\\Qa.b\\E+", u"a.bb", "0-4"},
      {u"\\Q\\LAB\\UcD\\Ee\\Q(", u"abCDe(", "0-6"},
      {u"a\\", u"a", "error at 2"},
      {u"\\x{110000}", u"a", "error at 7"},
  });
}

TEST(RegexSyntax, Classes) {
  CheckMatches({
      {u"[]a]+", u"a]b", "0-2"},
      {u"[a-]+[+--]", u"-a,", "0-3"},
      {u"[\\b\\x41\\d]+", u"\bA7B", "0-3"},
      {u"[a-\\d]+", u"-a7", "0-3"},
      {u"[[:nothing:]]|[[:^nothing:]]", u"a:n", "no match"},
      {u"[[:x]+", u"[:x]", "0-3"},
      {u"[$(){}.*+?|^]+", u"^|?+*.}{)($a", "0-11"},
      {u"[\\Q]-^\\E]+", u"]-^a", "0-3"},
      {u"[一-龥]+", u"a中文b", "1-3"},
      {u"[k]", u"\u212A", "0-1", 8},
      {u"[b-a]", u"a", "error at 2"},
  });
}

TEST(RegexSyntax, Quantifiers) {
  CheckMatches({
      {u"a{,2}", u"a{,2}", "0-5"},
      {u"a{x", u"a{x", "0-3"},
      {u"(?:ab){2}{2}", u"abababab", "0-8"},
      {u"(|a)+", u"aaa", "0-0 0-0"},
      {u"(?:abcdefghij){300}", std::u16string(3000, u'x'), "no match"},
      {u"(?:(a)|bcdefghijkl){1,1500}?$", std::u16string(1400, u'a'), "0-1400 1399-1400", 0},
      {u"a{2,1}", u"a", "error at 1"},
      {u"*a", u"a", "error at 0"},
      {u"a{99999}", u"a", "error at 7"},
  });
}

TEST(RegexSyntax, Anchors) {
  CheckMatches({
      {u"^b", u"a\rb", "2-3"},
      {u"(?<=\\r)^|(?<=\\n)^x", u"a\r\nx", "3-4"},
      {u"(?<=\\n)^", u"a\n", "2-2"},
      {u"a$.", u"a\r\nb", "0-2"},
      {u"\\r$", u"a\r\n", "no match"},
      {u"a.b", u"a\rb", "0-3", 2},
      {u"b\\Z", u"b\r\n", "0-1"},
      {u"b\\Z", u"b\nb\n\n", "no match"},
  });
}

TEST(RegexSyntax, Groups) {
  CheckMatches({
      {u"(a)(?:b)(?<x>c)(?'y'd)(?P<z>e)", u"abcde", "0-5 0-1 2-3 3-4 4-5"},
      {u"a(?i:b)c|(?I)X", u"aBC x", "4-5"},
      {u"(?:(?i)a|b)c", u"Bc", "0-2"},
      {u"(?sm-i:^a.)", u"b\na\n", "2-4", 8},
      {u"(?<=a+)b(?<!aab)", u"aabab", "4-5"},
      {u"(?<=(a)(b*))c", u"abbc", "3-4 0-1 1-3"},
      {u"(?<n>a)?(?(<n>)b|c)", u"ab", "0-2 0-1"},
      {u"(?(?<!a)b)", u"ab", "1-1"},
      {u"(?:(?(1)b|())){0,3}", u"bb", "0-2 0-0"},
      {u"(?:(?(1)b|())){0,3000}", u"bb", "0-2 0-0"},
      {u"(?:(?(1)b|())){3000,}|b?b?", u"bbb", "0-2 -"},
      {u"(?:(?(1)b?|())){3000,}", u"bbb", "0-3 0-0"},
      {u"\\((?:[^()]|(?R))*\\)", u"x(a(b)c)(", "1-8"},
      {u"(a(?1)?b)c", u"aabbc", "0-5 0-4"},
      {u"(?:(?R)a|b)", u"baa", "0-2"},
      {u"(a", u"a", "error at 0"},
      {u"(?<>a)", u"a", "error at 3"},
      {u"(?q)", u"a", "error at 0"},
      {u"(?(1)a|b|c)(x)", u"a", "error at 8"},
      {u"(?2)(a)", u"a", "error at 0"},
      {std::u16string(300, u'(') + std::u16string(300, u')'), u"", "error at 250"},
  });
}

TEST(RegexSyntax, BackReferences) {
  CheckMatches({
      {u"(?<q>a.)\\k<q>\\k'q'\\k{Q}\\g{q}\\g{1}\\g1\\g{-1}", u"axaxaxaxaxaxaxax", "0-16 0-2"},
      {u"\\1(a)", u"aa", "no match"},
      {u"(a)\\10", u"aa0", "0-3 0-1"},
      {u"a\\2(b)", u"ab", "error at 1"},
      {u"\\k<x>(?<y>a)", u"a", "error at 0"},
  });
}

TEST(RegexSyntax, Extended) {
  CheckMatches({
      {u"a # note\n b\\ [ ]", u"ab  ", "0-4", 32},
      {u"a+ ?(?#b)\\Q #\\E", u"aa #", "0-4", 32},
  });
}

TEST(RegexSyntax, RightToLeft) {
  CheckMatches({
      {u"a.", u"abac", "2-4", 16},
      {u"(a+)(a+)", u"aaa", "0-3 0-1 1-3", 16},
      {u"(?=b)a*|c", u"abc", "2-3", 16},
      {u"(a)\\1", u"aaa", "no match", 16},
      {u"\\1(a)", u"aaa", "1-3 2-3", 16},
      {u"(ab|b)+?$", u"abb", "2-3 2-3", 16},
  });
}

}  // namespace
}  // namespace quorvantis::test
