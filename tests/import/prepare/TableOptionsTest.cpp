// SPDX-License-Identifier: MIT
#include "import/prepare/StepTable.h"

namespace quorvantis::test {
namespace {

/// A paper in which "{a;b/c;d}" is a table of two rows.
Paper PaperWithTables(std::u16string_view text) {
  WordContent document;
  std::u16string cell;
  bool isInTable = false;
  for (const char16_t unit : Lines(text)) {
    const bool endsCell = isInTable && (unit == u';' || unit == u'/' || unit == u'}');
    if (unit == u'{') {
      document.tables.push_back({{{}}, document.runningText.characters.size()});
      isInTable = true;
    } else if (endsCell) {
      auto& rows = document.tables.back().rows;
      rows.back().push_back({cell + u"\r\u0007", {}});
      cell.clear();
      if (unit == u'/') rows.emplace_back();
      isInTable = unit != u'}';
    } else {
      (isInTable ? cell : document.runningText.characters) += unit;
    }
  }
  return PaperOf(document);
}

struct TableRow {
  std::u16string_view what;
  std::u16string_view before;
  std::u16string_view after;  ///< "\t" between cells that stay
};

constexpr TableRow kTableRows[] = {
    {u"labelled, by rows", u"1. Which?|{A. x;B. y/C. z;D. w}2. Who?",
     u"1. Which?|A. x|B. y|C. z|D. w|2. Who?"},
    {u"labelled, by columns", u"1. Which?|{a) x;c) z/b) y;d) w}2. Who?",
     u"1. Which?|a) x|b) y|c) z|d) w|2. Who?"},
    {u"labels in cells of their own", u"1. Which?|{A;x;B;y/C;z;D;w}", u"1. Which?|A\tx|B\ty|C\tz|D\tw|"},
    {u"without labels", u"1. Which?|{x;y}2. Who?|{he;she}3. How?|{so;thus}",
     u"1. Which?|⟦A⟧ x|⟦B⟧ y|2. Who?|⟦A⟧ he|⟦B⟧ she|3. How?|⟦A⟧ so|⟦B⟧ thus|"},
    {u"one alone may be data", u"1. Why?|{2;4/3;9}2. Who?|3. How?", u"1. Why?|2\t4|3\t9|2. Who?|3. How?"},
    {u"data of questions with options", u"1. Which?|{x;y}A. 1|B. 2|2. Who?|{p;q}A. 3|B. 4",
     u"1. Which?|x\ty|A. 1|B. 2|2. Who?|p\tq|A. 3|B. 4"},
    {u"two columns of questions", u"Test|{1. Which?|A. x|B. y;3. Who?|A. p|B. q/2. How?;4. Why?}",
     u"Test|1. Which?|A. x|B. y|2. How?|3. Who?|A. p|B. q|4. Why?|"},
    {u"a question beside its options", u"{1. Which of these?;A. x|B. y/2. Who?;A. p|B. q}",
     u"1. Which of these?|A. x|B. y|2. Who?|A. p|B. q|"},
    {u"rows with numbers",
     u"{No.;Question;A;B;Key/1;Which is blue?;sea;sand;A/2;Which is green?;wood;snow;A}",
     u"⟦1⟧ Which is blue?|⟦A⟧ sea|⟦B⟧ sand|⟦=⟧ A|⟦2⟧ Which is green?|⟦A⟧ wood|⟦B⟧ snow|⟦=⟧ A|"},
    {u"rows without headings", u"{1.;Which of them is blue?/2.;Which of them is green?}",
     u"⟦1⟧ Which of them is blue?|⟦2⟧ Which of them is green?|"},
    {u"rows without numbers", u"{Question;A;B/Which is blue?;sea;/Which is green?;A. wood;snow}",
     u"⟦1⟧ Which is blue?|⟦A⟧ sea|⟦2⟧ Which is green?|A. wood|⟦B⟧ snow|"},
    {u"stems with numbers, and a key",
     u"{Question;Answer/1. Which is blue?|A. sea|B. sand;A/2. Which is green?|A. sea|B. wood;B}",
     u"1. Which is blue?|A. sea|B. sand|⟦=⟧ A|2. Which is green?|A. sea|B. wood|⟦=⟧ B|"},
    {u"answers in words", u"{Question;Answer/1. Which is so blue?;the sea/2. Which is green?;a wood}",
     u"1. Which is so blue?|⟦=⟧ the sea|2. Which is green?|⟦=⟧ a wood|"},
    {u"a key", u"1. Which?|{1;2;3/A;B;D}", u"1. Which?|1\t2\t3|A\tB\tD|"},
    {u"a key in columns", u"{No.;Key/1;B/2;C}", u"No.\tKey|1\tB|2\tC|"},
    {u"values", u"1. Why?|{Year;Rain/1.5;2.5/2.5;3.5}", u"1. Why?|Year\tRain|1.5\t2.5|2.5\t3.5|"},
    {u"a box", u"1. Read:|{Long ago a king lived.|He died.}", u"1. Read:|Long ago a king lived.|He died.|"},
};

TEST(TableOptions, MakeLinesOfCells) {
  for (const TableRow& row : kTableRows) {
    const Paper paper = PaperWithTables(row.before);
    const PaperText once = AfterStep(u"TableOptions", paper, PlainRules(), paper.source);
    EXPECT_EQ(once.characters, Lines(row.after)) << ::testing::PrintToString(row.what);
    CheckTracks(paper, once);
    EXPECT_EQ(AfterStep(u"TableOptions", paper, PlainRules(), once).characters, once.characters);
  }
}

}  // namespace
}  // namespace quorvantis::test
