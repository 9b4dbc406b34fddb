// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"

#include <string>

namespace quorvantis::test {
namespace {

/// Runs that stand out are in braces, after their kinds: "a{bu|b}".
std::u16string WithEmphasis(const WordText& text) {
  std::u16string shown;
  std::size_t from = 0;
  for (const EmphasisRun& run : text.emphasis) {
    EXPECT_TRUE(from <= run.begin && run.begin < run.end && run.end <= text.characters.size());
    shown += text.characters.substr(from, run.begin - from) + u"{";
    for (std::size_t kind = 0; kind < 5; ++kind) {
      if ((run.kinds >> kind & 1U) != 0) shown += u"buchi"[kind];
    }
    shown += u"|" + text.characters.substr(run.begin, run.end - run.begin) + u"}";
    from = run.end;
  }
  return shown + text.characters.substr(from);
}

std::string RunXml(const std::string& properties, const std::string& content) {
  return "<w:r><w:rPr>" + properties + "</w:rPr>" + content + "</w:r>";
}
std::string TextXml(const std::string& properties, const std::string& words) {
  return RunXml(properties, "<w:t>" + words + "</w:t>");
}
std::string Value(const std::string& name, const std::string& value) {
  return "<w:" + name + " w:val=\"" + value + "\"/>";
}
std::string ParagraphXml(const std::string& properties, const std::string& runs) {
  return "<w:p><w:pPr>" + properties + "</w:pPr>" + runs + "</w:p>";
}

class RunEmphasisTest : public WordDocumentsTest {
 protected:
  WordContent Read(const std::string& body, const std::string& defaults = "") {
    const std::string styles =
        "<w:styles><w:docDefaults><w:rPrDefault><w:rPr>" + defaults +
        "</w:rPr></w:rPrDefault></w:docDefaults>" +
        Style("paragraph", "Head", "", "<w:b/>" + Value("color", "0000FF")) +
        Style("paragraph", "Sub", "Head", Value("i", "true")) + Style("character", "Strong", "", "<w:b/>") +
        Style("character", "Plain", "",
              "<w:b w:val=\"0\"/>" + Value("u", "none") + Value("highlight", "none")) +
        Style("paragraph", "Grey", "", "", "<w:shd w:val=\"clear\" w:fill=\"DDDDDD\"/>") + "</w:styles>";
    const std::string lists =
        "<w:numbering><w:abstractNum w:abstractNumId=\"0\"><w:lvl w:ilvl=\"0\"><w:lvlText w:val=\"%1.\"/>"
        "<w:suff w:val=\"space\"/></w:lvl><w:lvl w:ilvl=\"1\"><w:lvlText w:val=\"%2)\"/>"
        "<w:suff w:val=\"space\"/><w:rPr><w:b/></w:rPr></w:lvl></w:abstractNum>"
        "<w:num w:numId=\"1\"><w:abstractNumId w:val=\"0\"/></w:num></w:numbering>";
    DocxBuilder builder;
    builder.Part("word/styles.xml", styles).Part("word/numbering.xml", lists);
    builder.Relate("s", "styles", "styles.xml").Relate("n", "numbering", "numbering.xml").Body(body);
    return Open(builder, {.listLabels = true, .isCancelled = {}}).document;
  }

 private:
  static std::string Style(const std::string& type, const std::string& id, const std::string& base,
                           const std::string& run, const std::string& paragraph = "") {
    return "<w:style w:type=\"" + type + "\" w:styleId=\"" + id + "\">" + Value("basedOn", base) + "<w:pPr>" +
           paragraph + "</w:pPr><w:rPr>" + run + "</w:rPr></w:style>";
  }
};

TEST_F(RunEmphasisTest, ComesFromRunsStylesAndDefaults) {
  const std::string plain = TextXml("", "plain, and most of the text");
  const std::u16string shown = u"plain, and most of the text";
  const std::string head = Value("pStyle", "Head");
  const std::string strong = Value("rStyle", "Strong");
  const struct {
    std::string paragraph;  ///< its properties
    std::string run;
    std::u16string expected;
    std::string defaults{};
  } rows[] = {
      {"", "<w:b/>", u"{b|x}"},
      {"", Value("b", "0") + Value("i", "off") + Value("u", "none"), u"x"},
      {"", "<w:i/>" + Value("u", "single") + Value("highlight", "yellow"), u"{uhi|x}"},
      {"", "<w:u w:color=\"FF0000\"/>", u"x"},
      {"", Value("color", "FF0000"), u"{c|x}"},
      {"", Value("color", "auto"), u"x"},
      {"", Value("color", "333333"), u"x"},
      {"", Value("color", "003300"), u"{c|x}"},
      {"", Value("color", "nonsense"), u"x"},
      {"", "<w:shd w:val=\"clear\" w:fill=\"FFFF00\"/>", u"{h|x}"},
      {"", "<w:shd w:val=\"clear\" w:fill=\"auto\"/>", u"x"},
      {"", "<w:shd w:val=\"clear\" w:fill=\"ffffff\"/>", u"x"},
      {"", "<w:shd w:val=\"pct15\" w:fill=\"auto\"/>", u"{h|x}"},
      {"", "<w:rPrChange><w:rPr><w:b/></w:rPr></w:rPrChange>", u"x"},
      {"", "<w:b/><w:rtl/>", u"x"},
      {"", "<w:bCs/><w:rtl/>", u"{b|x}"},
      {head, "", u"{bc|x}"},
      {Value("pStyle", "Sub"), "", u"{bci|x}"},
      {head, strong, u"{c|x}"},  // toggled
      {head, strong + "<w:b/>", u"{bc|x}"},
      {head, Value("b", "0") + Value("color", "000000"), u"x"},
      {"", strong, u"{b|x}"},
      {"", Value("rStyle", "Plain") + Value("u", "wave"), u"{u|x}"},
      {Value("pStyle", "Grey"), "", u"{h|x}"},
      {Value("pStyle", "Grey") + "<w:shd w:val=\"clear\" w:fill=\"auto\"/>", "", u"x"},
      {"<w:shd w:val=\"clear\" w:fill=\"00FF00\"/>", "", u"{h|x}"},
      {"", Value("color", "000000"), u"{c|x}", Value("color", "112299")},
      {"", Value("b", "0"), u"x", "<w:b/>"},
  };
  for (const auto& row : rows) {
    const WordContent document =
        Read(ParagraphXml("", plain) + ParagraphXml(row.paragraph, TextXml(row.run, "x")), row.defaults);
    const std::u16string all = WithEmphasis(document.runningText);
    const std::u16string first = row.defaults == "<w:b/>" ? u"{b|" + shown + u"}" : shown;
    EXPECT_EQ(all, first + u"\r" + row.expected + u"\r") << row.paragraph << row.run << row.defaults;
  }
}

TEST_F(RunEmphasisTest, CoversWhatRunsAppend) {
  const std::string blank = RunXml(Value("u", "single"), "<w:t xml:space=\"preserve\">  </w:t><w:tab/>");
  const WordContent document =
      Read(ParagraphXml("", TextXml("", "a") + blank + RunXml(Value("u", "dash"), "<w:br/>") +
                                RunXml("<w:b/><w:vanish/>", "<w:t>hidden</w:t>") + TextXml("<w:b/>", "b")) +
           ParagraphXml("", TextXml("<w:b/>", "c")));
  EXPECT_EQ(WithEmphasis(document.runningText), u"a{u|  \t\v}{b|b}\r{b|c}\r");
}

TEST_F(RunEmphasisTest, LabelsFollowTheirLists) {
  const auto item = [](int level, const std::string& runs) {
    return ParagraphXml("<w:numPr>" + Value("ilvl", std::to_string(level)) + Value("numId", "1") +
                            "</w:numPr><w:rPr><w:b/></w:rPr>",
                        runs);
  };
  const WordContent document = Read(item(0, TextXml("", "a") + TextXml("<w:i/>", "b") + TextXml("", "c")) +
                                    item(1, TextXml("<w:i/>", "d")) + item(1, ""));
  EXPECT_EQ(WithEmphasis(document.runningText), u"0. a{i|b}c\r{b|0) }{i|d}\r{b|1) }\r");
  EXPECT_TRUE(document.hasAutomaticNumbers);
  EXPECT_FALSE(Read(ParagraphXml("", TextXml("", "1. typed"))).hasAutomaticNumbers);
}

TEST_F(RunEmphasisTest, TablesKnowTheirPlaceAndShading) {
  const auto table = [](const std::string& properties, const std::string& run) {
    return "<w:tbl><w:tr><w:tc><w:tcPr>" + properties + "</w:tcPr>" + ParagraphXml("", run) +
           "</w:tc><w:tc>" + ParagraphXml("", TextXml("", "y")) + "</w:tc></w:tr></w:tbl>";
  };
  const WordContent document =
      Read(table("", TextXml("<w:b/>", "x")) + ParagraphXml("", TextXml("", "ab")) +
           table("<w:shd w:val=\"clear\" w:fill=\"00FF00\"/>", TextXml("", "x")) + ParagraphXml("", ""));
  ASSERT_EQ(document.tables.size(), 2U);
  EXPECT_EQ(document.tables[0].position, 0U);
  EXPECT_EQ(document.tables[1].position, 3U);
  EXPECT_EQ(WithEmphasis(document.tables[0].rows[0][0]), u"{b|x}\r\a");
  EXPECT_EQ(WithEmphasis(document.tables[1].rows[0][0]), u"{h|x}\r\a");
  EXPECT_EQ(WithEmphasis(document.tables[1].rows[0][1]), u"y\r\a");
}

}  // namespace
}  // namespace quorvantis::test
