// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"

namespace quorvantis::test {
namespace {

class DocxTest : public WordDocumentsTest {};

std::string P(const std::string& runs) {
  return "<w:p>" + runs + "</w:p>";
}
std::string R(const std::string& content) {
  return "<w:r>" + content + "</w:r>";
}
std::string T(const std::string& text) {
  return R("<w:t>" + text + "</w:t>");
}
std::string Field(const std::string& type) {
  return R("<w:fldChar w:fldCharType=\"" + type + "\"/>");
}
std::string Instruction(const std::string& text) {
  return R("<w:instrText>" + text + "</w:instrText>");
}
std::string Box(const std::string& paragraphs) {
  return "<w:drawing><wps:txbx><w:txbxContent>" + paragraphs + "</w:txbxContent></wps:txbx></w:drawing>";
}
std::string Repeat(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

struct BodyCase {
  const char* subject;
  std::string body;
  std::u16string text;
};

TEST_F(DocxTest, RunningText) {
  const std::string equation = "<m:oMath><m:r><m:t>x</m:t></m:r></m:oMath>";
  const std::string ole = R"(<w:object><v:shape><v:imagedata r:id="r"/></v:shape><o:OLEObject ProgID=")";
  const BodyCase cases[] = {
      {"breaks",
       P(R("<w:t>a</w:t><w:br/><w:tab/><w:cr/><w:br w:type=\"page\"/><w:t xml:space=\"preserve\"> </w:t>")) +
           P(""),
       u"a\v\t\v\f \r\r"},
      {"tab stops are no tabs", P("<w:pPr><w:tabs><w:tab w:val=\"left\"/></w:tabs></w:pPr>" + T("a")),
       u"a\r"},
      {"entities, CJK, line ends of the file", P(T("&lt;&#x4E2D;\n&#13;&amp;")), u"<\u4E2D  &\r"},
      {"wrappers",
       P("<w:hyperlink>" + T("a") + "</w:hyperlink><w:ins>" + T("b") + "</w:ins><w:smartTag>" + T("c") +
         "</w:smartTag><w:sdt><w:sdtPr><w:tab/></w:sdtPr><w:sdtContent>" + T("d") +
         "</w:sdtContent></w:sdt>"),
       u"abcd\r"},
      {"deleted, moved, hidden",
       P("<w:del>" + T("a") + "</w:del><w:moveFrom>" + T("b") +
         "</w:moveFrom><w:r><w:rPr>"
         "<w:vanish/></w:rPr><w:t>c</w:t></w:r><w:r><w:rPr><w:vanish w:val=\"0\"/></w:rPr>"
         "<w:t>d</w:t></w:r>"),
       u"d\r"},
      {"deleted paragraph mark", P("<w:pPr><w:rPr><w:del/></w:rPr></w:pPr>" + T("a")) + P(T("b")), u"ab\r"},
      {"and none to go on in",
       P("<w:pPr><w:rPr><w:del/></w:rPr></w:pPr>" + T("a")) + "<w:tbl/>" +
           P("<w:pPr><w:rPr><w:del/></w:rPr></w:pPr>" + T("b")),
       u"a\rb\r"},
      {"field results",
       P(Field("begin") + Instruction("IF 1") + Field("begin") + T("x") + Field("separate") + T("y") +
         Field("end") + Field("separate") + T("z") + Field("end") + T("!")),
       u"z!\r"},
      {"fields that only set something",
       P(Field("begin") + Instruction(" set x ") + Field("separate") + T("a") + Field("end") +
         "<w:fldSimple w:instr=\"ASK y\">" + T("b") + "</w:fldSimple><w:fldSimple w:instr=\"REF x\">" +
         T("c") + "</w:fldSimple>"),
       u"c\r"},
      {"a field without an end", P(Field("begin") + Instruction("PAGE") + T("a")) + P(T("b")), u"a\rb\r"},
      {"equations", P(T("a") + equation + "<m:oMathPara>" + equation + equation + "</m:oMathPara>" + T("b")),
       u"a<#><#><#>b\r"},
      {"embedded equation and another object",
       P(R(ole + "Equation.DSMT4\"/></w:object>") + R(ole + "Excel.Sheet.8\"/></w:object>")), u"<#><0>\r"},
      {"equation written as a field", P(Field("begin") + Instruction(" EQ \\f(1,2)") + Field("end")),
       u"<#>\r"},
      {"ruby", P(R("<w:ruby><w:rt>" + T("pin") + "</w:rt><w:rubyBase>" + T("a") + "</w:rubyBase></w:ruby>")),
       u"a\r"},
      {"pictures in groups, VML, charts",
       P(R("<w:drawing><a:blip r:embed=\"a\"/><a:blip r:embed=\"b\"/></w:drawing>") + T("x") +
         R("<w:pict><v:group><v:shape><v:imagedata r:id=\"c\"/></v:shape></v:group></w:pict>") +
         R("<w:drawing><c:chart/></w:drawing>")),
       u"<0><1>x<2><3>\r"},
      {"alternatives count once",
       P(R("<mc:AlternateContent><mc:Choice Requires=\"wps\">" + Box(P(T("box"))) +
           "</mc:Choice><mc:Fallback><w:pict>"
           "<w:txbxContent>" +
           P(T("box")) + "</w:txbxContent></w:pict></mc:Fallback></mc:AlternateContent>") +
         R("<mc:AlternateContent><mc:Choice "
           "Requires=\"new\"><x/></mc:Choice><mc:Fallback><w:pict><v:imagedata r:id=\"a\"/>"
           "</w:pict></mc:Fallback></mc:AlternateContent>") +
         T("after")),
       u"<0>after\rbox\r"},
      {"symbols and hyphens",
       P(R("<w:sym w:char=\"25CB\"/><w:sym w:char=\"D800\"/><w:noBreakHyphen/><w:softHyphen/>")),
       u"\u25CB\u2011\u00AD\r"},
      {"no notes", P(T("a") + R("<w:footnoteReference w:id=\"1\"/>") + R("<w:commentReference w:id=\"1\"/>")),
       u"a\r"},
  };
  for (const BodyCase& c : cases) EXPECT_EQ(Running(c.body), c.text) << c.subject;
}

TEST_F(DocxTest, HiddenText) {
  const auto styled = [](const std::string& style, const std::string& runs) {
    return P("<w:pPr><w:pStyle w:val=\"" + style + "\"/><w:rPr><w:vanish w:val=\"0\"/></w:rPr></w:pPr>" +
             runs);
  };
  const auto run = [](const std::string& properties, const std::string& content) {
    return R("<w:rPr>" + properties + "</w:rPr>" + content);
  };
  const std::string hidden = "<w:rStyle w:val=\"Hidden\"/>";
  DocxBuilder builder;
  builder
      .Part(
          "word/styles.xml",
          R"(<w:styles><w:style w:styleId="Base"><w:rPr><w:vanish/></w:rPr></w:style>)"
          R"(<w:style w:styleId="Hidden"><w:basedOn w:val="Base"/></w:style>)"
          R"(<w:style w:styleId="Shown"><w:basedOn w:val="Base"/><w:rPr><w:vanish w:val="0"/></w:rPr></w:style>)"
          R"(<w:style w:styleId="Loop"><w:basedOn w:val="Loop"/></w:style></w:styles>)")
      .Relate("s", "styles", "styles.xml");
  builder.Body(P(run(hidden, "<w:t>a</w:t>" + Box(P(T("box")))) + T("1")) +
               styled("Hidden",
                      T("b") + run(hidden, "<w:t>2</w:t>") + run("<w:vanish w:val=\"0\"/>", "<w:t>3</w:t>")) +
               styled("Shown", T("4") + run(hidden, "<w:t>c</w:t>")) + styled("Loop", T("5")) +
               P("<w:pPr><w:pStyle w:val=\"Hidden\"/></w:pPr>" + T("none of it")) +
               P("<w:pPr><w:rPr><w:vanish/></w:rPr></w:pPr>" + T("6")) +
               P("<w:pPr><w:rPr><w:vanish/><w:specVanish/></w:rPr></w:pPr>" + T("7")) + P(T("8")));
  EXPECT_EQ(Open(builder).document.runningText.characters, u"1\r23\r4\r5\r6\r78\r");
}

TEST_F(DocxTest, Tables) {
  const auto cell = [](const std::string& content, const std::string& properties = "") {
    return "<w:tc><w:tcPr>" + properties + "</w:tcPr>" + content + "</w:tc>";
  };
  const std::string nested = "<w:tbl><w:tr>" + cell(P(T("n"))) + cell(P(T("m"))) + "</w:tr></w:tbl>";
  const std::string body =
      P(T("before") + R("<w:pict><v:imagedata r:id=\"a\"/></w:pict>")) + "<w:tbl><w:tr>" +
      cell(P(T("1")) + P(R("<w:pict><v:imagedata r:id=\"b\"/></w:pict>")), "<w:vMerge w:val=\"restart\"/>") +
      cell(P(T("2")) + nested + P("")) + "</w:tr><w:sdt><w:sdtContent><w:tr>" +
      cell(P(T("gone")), "<w:vMerge/>") + cell(P(T("3")), "<w:gridSpan w:val=\"2\"/>") +
      "</w:tr></w:sdtContent></w:sdt><w:tr><w:trPr><w:del/></w:trPr>" + cell(P(T("deleted"))) +
      "</w:tr></w:tbl>" + P(T("after")) + "<w:tbl><w:tr>" +
      cell(P(R(Box("<w:tbl><w:tr>" + cell(P(T("b"))) + "</w:tr></w:tbl>")))) + "</w:tr></w:tbl>";
  const auto outcome = Open(DocxBuilder().Body(body));
  ASSERT_EQ(outcome.result, WordResult::Done);
  const WordDocument& document = outcome.document;
  EXPECT_EQ(Shown(document.runningText), u"before<0>\rafter\r");
  EXPECT_EQ(document.pictures, 2U);
  std::vector<std::vector<std::u16string>> rows;
  for (const WordTable& table : document.tables) {
    for (const auto& row : table.rows) {
      rows.emplace_back();
      for (const WordText& text : row) rows.back().push_back(Shown(text));
    }
  }
  const std::vector<std::vector<std::u16string>> expected{
      {u"1\r<1>\r\a", u"2\rn\r\am\r\a\r\a\r\a"}, {u"\r\a", u"3\r\a"}, {u"\rb\r\a\r\a\r\a"}};
  EXPECT_EQ(rows, expected);
  EXPECT_EQ(document.tables.size(), 2U);
}

std::string Level(int index, const char* format, const char* text, const char* more = "") {
  return "<w:lvl w:ilvl=\"" + std::to_string(index) + "\"><w:start w:val=\"1\"/><w:numFmt w:val=\"" + format +
         "\"/>" + more + "<w:lvlText w:val=\"" + text + "\"/></w:lvl>";
}
std::string Item(const char* list, int index, const std::string& runs = T("x"),
                 const std::string& more = "") {
  return P("<w:pPr><w:numPr><w:ilvl w:val=\"" + std::to_string(index) + "\"/><w:numId w:val=\"" + list +
           "\"/></w:numPr>" + more + "</w:pPr>" + runs);
}

TEST_F(DocxTest, AutomaticNumbers) {
  DocxBuilder builder;
  builder.Part("word/numbering.xml",
               "<w:numbering><w:abstractNum w:abstractNumId=\"0\">" +
                   Level(0, "chineseCounting", "%1、", "<w:suff w:val=\"nothing\"/>") +
                   Level(1, "decimal", "%1.%2", "<w:isLgl/>") + Level(2, "bullet", "o") +
                   "</w:abstractNum><w:num w:numId=\"1\"><w:abstractNumId w:val=\"0\"/></w:num>"
                   "<w:num w:numId=\"2\"><w:abstractNumId w:val=\"0\"/><w:lvlOverride w:ilvl=\"0\">"
                   "<w:startOverride w:val=\"11\"/></w:lvlOverride></w:num></w:numbering>");
  builder.Part(
      "word/styles.xml",
      "<w:styles><w:style w:styleId=\"A\"><w:basedOn w:val=\"B\"/></w:style><w:style w:styleId=\"B\">"
      "<w:basedOn w:val=\"A\"/><w:pPr><w:numPr><w:numId "
      "w:val=\"1\"/></w:numPr></w:pPr></w:style></w:styles>");
  builder.Relate("n", "numbering", "numbering.xml").Relate("s", "styles", "styles.xml");
  builder.Body(Item("1", 0) + Item("1", 1) + Item("1", 1) + Item("1", 0) + Item("1", 1) + Item("1", 2) +
               Item("2", 0) + Item("2", 0) + P("<w:pPr><w:pStyle w:val=\"A\"/></w:pPr>" + T("s")) +
               Item("0", 0) + P("<w:pPr><w:pStyle w:val=\"none\"/></w:pPr>"));
  EXPECT_EQ(Open(builder, {.listLabels = true, .isCancelled = {}}).document.runningText.characters,
            u"一、x\r1.1\tx\r1.2\tx\r二、x\r2.1\tx\rx\r十一、x\r十二、x\r十三、s\rx\r\r");
  EXPECT_EQ(Open(builder).document.runningText.characters, u"x\rx\rx\rx\rx\rx\rx\rx\rs\rx\r\r");
  EXPECT_TRUE(Open(builder).document.hasNumbersLeftOut);
}

TEST_F(DocxTest, NumbersGoOnPastWhatIsNotCounted) {
  const std::string deleted = "<w:rPr><w:del/></w:rPr>";
  const char* const space = "<w:suff w:val=\"space\"/>";
  DocxBuilder builder;
  builder
      .Part("word/numbering.xml",
            "<w:numbering><w:abstractNum w:abstractNumId=\"0\">" + Level(0, "decimal", "%1.", space) +
                Level(1, "decimal", "%1.%2", space) +
                "</w:abstractNum><w:abstractNum w:abstractNumId=\"1\">" +
                Level(0, "arabicAlpha", "%1.", space) +
                "</w:abstractNum><w:num w:numId=\"1\"><w:abstractNumId w:val=\"0\"/></w:num>"
                "<w:num w:numId=\"2\"><w:abstractNumId w:val=\"0\"/><w:lvlOverride w:ilvl=\"0\">" +
                Level(0, "upperLetter", "%1.", space) +
                "</w:lvlOverride></w:num><w:num w:numId=\"3\"><w:abstractNumId "
                "w:val=\"1\"/></w:num></w:numbering>")
      .Part(
          "word/styles.xml",
          R"(<w:styles><w:style w:styleId="1"><w:pPr><w:numPr><w:numId w:val="1"/></w:numPr></w:pPr></w:style>)"
          R"(<w:style w:styleId="2"><w:basedOn w:val="1"/><w:pPr><w:numPr><w:ilvl w:val="1"/></w:numPr></w:pPr>)"
          R"(</w:style></w:styles>)")
      .Relate("n", "numbering", "numbering.xml")
      .Relate("s", "styles", "styles.xml");
  builder.Body(Item("1", 0) + Item("2", 0) + Item("1", 0, "<w:del>" + T("gone") + "</w:del>", deleted) +
               Item("1", 0, "", "<w:sectPr/>") + Item("1", 0, T("a"), deleted) +
               Item("1", 0, "<m:oMath/>" + T("b")) + P("<w:pPr><w:pStyle w:val=\"2\"/></w:pPr>" + T("x")) +
               Item("3", 0, "<m:oMath/>") + Item("3", 0, ""));
  EXPECT_EQ(Shown(Open(builder, {.listLabels = true, .isCancelled = {}}).document.runningText),
            u"1. x\rB. x\r\r3. a<#>b\r3.1 x\rأ. <#>\rب. \r");
}

TEST_F(DocxTest, TheMainPartIsWhereThePackageSaysAndNeverOutside) {
  DocxBuilder builder;
  builder.Part(
      "_rels/.rels",
      R"(<Relationships><Relationship Id="x" Type="a/officeDocument" Target="/../../odd/main2.xml"/></Relationships>)");
  builder.Part("odd/main2.xml",
               "<x:document><x:body><x:p><x:r><x:t>a</x:t></x:r></x:p></x:body></x:document>");
  EXPECT_EQ(Open(builder).document.runningText.characters, u"a\r");
}

TEST_F(DocxTest, HostilePackagesEndInAClearOutcome) {
  const std::string open = "<w:sdt><w:sdtContent>";
  const std::string close = "</w:sdtContent></w:sdt>";
  const std::string laughs = "<!DOCTYPE d [<!ENTITY a \"ha\"><!ENTITY b \"&a;&a;\">]><w:document><w:body>" +
                             P(T("&b;")) + "</w:body></w:document>";
  EXPECT_EQ(Open(DocxBuilder().Body(Repeat(open, 200'000) + Repeat(close, 200'000))).result,
            WordResult::TooDeep);
  EXPECT_EQ(Open(DocxBuilder().Body(std::string(std::size_t{80} << 20, ' '))).result, WordResult::TooLarge);
  EXPECT_EQ(Open(DocxBuilder().Body(Repeat("<w:p/>", 5'000'000))).result, WordResult::TooLarge);
  EXPECT_EQ(Open(DocxBuilder().Body(P(Repeat("<a:blip r:embed=\"a\"/>", 10'001)))).result,
            WordResult::TooLarge);
  EXPECT_EQ(Open(DocxBuilder().Part("word/document.xml", laughs)).document.runningText.characters, u"&b;\r");
  EXPECT_EQ(Open(DocxBuilder().Part("word/document.xml", "<w:document><w:body><w:p>")).result,
            WordResult::Damaged);
  EXPECT_EQ(Open(DocxBuilder().Part("word/document.xml", "<html/>")).result, WordResult::Damaged);
  EXPECT_EQ(Open(DocxBuilder()).result, WordResult::UnknownFormat);
}

TEST_F(DocxTest, FilesThatAreNoDocuments) {
  const auto result = [this](std::string_view bytes) {
    return documents.Open(WriteBytes(folder / "a.docx", bytes), {}).result;
  };
  EXPECT_EQ(documents.Open(folder / "missing.docx", {}).result, WordResult::NotFound);
  EXPECT_EQ(documents.Open(folder.Path(), {}).result, WordResult::CannotAccess);
  EXPECT_EQ(result(""), WordResult::UnknownFormat);
  EXPECT_EQ(result("plain text"), WordResult::UnknownFormat);
  EXPECT_EQ(result("PK\x03\x04 and no more"), WordResult::Damaged);
  const std::string whole = ReadBytes(DocxBuilder().Body(P(T("a"))).Write(folder / "whole.docx"));
  EXPECT_EQ(result(whole.substr(0, whole.size() - 30)), WordResult::Damaged);
}

/// The header, one sector of allocation, a directory with one stream, and a sector for the stream or, if it
/// is small, for it and another one before it.
std::string CompoundFileWith(std::u16string_view stream, char flags, bool isSmall = false) {
  std::string bytes = "\xD0\xCF\x11\xE0";
  constexpr std::size_t kSector = 512;
  constexpr std::size_t kEntry = kSector * 2 + 128;
  bytes.resize(kSector * 4, '\0');
  bytes[30] = 9;
  bytes[48] = 1;  // sector of the directory; that of the allocation is 0
  bytes[57] = 16;
  bytes[kEntry - 12] = 2;  // of small streams
  for (std::size_t i = 0; i < stream.size(); ++i) bytes[kEntry + 2 * i] = static_cast<char>(stream[i]);
  bytes[kEntry + 116] = isSmall ? 1 : 2;
  bytes[kEntry + 121] = isSmall ? 1 : 16;
  bytes[kSector * 3 + (isSmall ? 75 : 11)] = flags;
  for (std::size_t i = 516; i < 520; ++i) bytes[i] = '\xFF';  // the directory ends after one sector
  return bytes;
}

TEST_F(DocxTest, PasswordsAreNoticed) {
  const auto result = [this](std::string_view bytes) {
    return documents.Open(WriteBytes(folder / "a.doc", bytes), {}).result;
  };
  EXPECT_EQ(result(CompoundFileWith(u"EncryptedPackage", 0)), WordResult::PasswordProtected);
  EXPECT_EQ(result(CompoundFileWith(u"WordDocument", 1)), WordResult::PasswordProtected);
  EXPECT_EQ(result(CompoundFileWith(u"WORDDOCUMENT", 1)), WordResult::PasswordProtected);
  EXPECT_EQ(result(CompoundFileWith(u"WordDocument", 1, true)), WordResult::PasswordProtected);
  EXPECT_EQ(result(CompoundFileWith(u"Workbook", 0)), WordResult::UnknownFormat);
  DocxBuilder odt;
  odt.Part("mimetype", "application/vnd.oasis.opendocument.text")
      .Part("META-INF/manifest.xml", "<m:encryption-data/>");
  EXPECT_EQ(Open(odt).result, WordResult::PasswordProtected);
}

}  // namespace
}  // namespace quorvantis::test
