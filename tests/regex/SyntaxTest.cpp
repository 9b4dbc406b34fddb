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

TEST(RegexSyntax, IsThatOfTheCases) {
  std::ifstream lines(QUORVANTIS_PROJECT "/tests/regex/cases.txt");
  std::vector<MatchCase> cases;
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.starts_with("# ")) continue;
    std::istringstream columns(line);
    MatchCase& row = cases.emplace_back();
    row.pattern = Column(columns);
    row.text = Column(columns);
    row.bounds = Utf16ToUtf8(Column(columns));
    columns >> row.flags;
    if (columns.fail()) row.flags = 3;
  }
  EXPECT_GT(cases.size(), 60u);
  CheckMatches(cases);
}

TEST(RegexSyntax, ControlCharactersAndLargePatterns) {
  CheckMatches({
      {u"\\a\\e\\f\\n\\r\\t\\v", u"\a\x1B\f\n\r\t\v", "0-7"},
      {u"\\x41\\x{4e2d}\\x4g", u"A中\x04g", "0-4"},
      {u"\\x", u"\0"s, "0-1"},
      {u"[\\b\\x41\\d]+", u"\bA7B", "0-3"},
      {u"(?:abcdefghij){300}", std::u16string(3000, u'x'), "no match"},
      {u"(?:(a)|bcdefghijkl){1,1500}?$", std::u16string(1400, u'a'), "0-1400 1399-1400", 0},
      {std::u16string(300, u'(') + std::u16string(300, u')'), u"", "error at 250"},
  });
}

}  // namespace
}  // namespace quorvantis::test
