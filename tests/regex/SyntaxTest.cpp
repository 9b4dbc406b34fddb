// SPDX-License-Identifier: MIT
#include "RegexTest.h"
#include "text/Utf.h"

#include <fstream>
#include <sstream>

namespace quorvantis::test {
namespace {

using namespace std::string_literals;

/// A column of cases.txt, which shows invisible characters as signs.
std::u16string Column(std::istream& line) {
  std::string bytes;
  std::getline(line, bytes, '\t');
  std::u16string text = Utf8ToUtf16(bytes);
  for (char16_t& unit : text) {
    const std::size_t sign = std::u16string_view(u"⏎␍⇥").find(unit);
    if (sign != std::u16string_view::npos) unit = u"\n\r\t"[sign];
  }
  return text;
}

void ExpectBounds(const std::u16string& pattern, const std::u16string& text, const std::string& bounds,
                  int flags = 3) {
  const RegexPattern compiled(pattern, flags);
  EXPECT_EQ(Bounds(compiled, compiled.Match(text)), bounds) << Utf16ToUtf8(pattern) << "  flags " << flags;
}

TEST(RegexSyntax, IsThatOfTheCases) {
  std::ifstream lines(QUORVANTIS_PROJECT "/tests/regex/cases.txt");
  int cases = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.starts_with("# ")) continue;
    std::istringstream columns(line);
    const std::u16string pattern = Column(columns), text = Column(columns);
    const std::string bounds = Utf16ToUtf8(Column(columns));
    int flags = 3;
    if (!(columns >> flags)) flags = 3;
    ExpectBounds(pattern, text, bounds, flags);
    ++cases;
  }
  EXPECT_GT(cases, 60);
}

TEST(RegexSyntax, ControlCharactersAndLargePatterns) {
  ExpectBounds(u"\\a\\e\\f\\n\\r\\t\\v", u"\a\x1B\f\n\r\t\v", "0-7");
  ExpectBounds(u"\\x41\\x{4e2d}\\x4g", u"A中\x04g", "0-4");
  ExpectBounds(u"\\x", u"\0"s, "0-1");
  ExpectBounds(u"[\\b\\x41\\d]+", u"\bA7B", "0-3");
  ExpectBounds(u"(?:abcdefghij){300}", std::u16string(3000, u'x'), "no match");
  ExpectBounds(u"(?:(a)|bcdefghijkl){1,1500}?$", std::u16string(1400, u'a'), "0-1400 1399-1400", 0);
  ExpectBounds(std::u16string(300, u'(') + std::u16string(300, u')'), u"", "error at 250");
}

}  // namespace
}  // namespace quorvantis::test
