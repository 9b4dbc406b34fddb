// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"
#include "text/Utf.h"

#include <fstream>
#include <map>

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
std::string Box(const std::string& paragraphs) {
  return "<w:drawing><wps:txbx><w:txbxContent>" + paragraphs + "</w:txbxContent></wps:txbx></w:drawing>";
}
std::string Repeat(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

/// With line breaks and the like as in C++.
std::string Escaped(const std::u16string& text) {
  std::string escaped;
  for (const char c : Utf16ToUtf8(text)) {
    const std::size_t at = std::string_view("\r\v\t\f").find(c);
    escaped += at == std::string_view::npos ? std::string(1, c) : std::string{'\\', "rvtf"[at]};
  }
  return escaped;
}

TEST_F(DocxTest, SaysWhatTheCasesSay) {
  std::ifstream lines(QUORVANTIS_PROJECT "/tests/platform/documents/cases.txt");
  std::string subject, body, part;
  std::map<std::string, std::string> parts;
  int checked = 0;
  for (std::string line; std::getline(lines, line);) {
    const char mark = line.empty() ? ' ' : line[0];
    const std::string rest = line.substr(std::min<std::size_t>(2, line.size()));
    if (mark == '#') subject = rest, body.clear(), parts.clear();
    if (mark == '=') part = rest;
    if (mark == '|') parts[part] += rest;
    if (mark == '<') body += rest;
    if (mark != '>' && mark != '+') continue;
    DocxBuilder builder;
    for (const auto& [name, xml] : parts) builder.Part(name, xml);
    builder.Relate("n", "numbering", "numbering.xml").Relate("s", "styles", "styles.xml");
    if (!body.empty()) builder.Body(body);
    const auto outcome = Open(builder, {.listLabels = mark == '+', .isCancelled = {}});
    EXPECT_EQ(Escaped(Shown(outcome.document.runningText)), rest) << subject;
    EXPECT_EQ(outcome.document.hasNumbersLeftOut, mark == '>' && parts.contains("word/numbering.xml"))
        << subject;
    ++checked;
  }
  EXPECT_GT(checked, 20);
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
  const WordContent& document = outcome.document;
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

/// The header, one sector of the allocation table, a directory with one stream, and a sector for the stream
/// or, if it is small, for the mini stream and one before it.
std::string CompoundFileWith(std::u16string_view stream, char flags, bool isSmall = false) {
  std::string bytes = "\xD0\xCF\x11\xE0";
  constexpr std::size_t kSector = 512;
  constexpr std::size_t kEntry = kSector * 2 + 128;
  bytes.resize(kSector * 4, '\0');
  bytes[30] = 9;
  bytes[48] = 1;  // sector of the directory; the allocation table is in sector 0
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
