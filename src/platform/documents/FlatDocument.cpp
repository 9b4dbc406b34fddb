// SPDX-License-Identifier: MIT
#include "platform/documents/FlatDocument.h"

#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::string_view kBeginning =
    R"(<?xml version="1.0" encoding="UTF-8"?><office:document )"
    R"(xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" )"
    R"(xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" )"
    R"(xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" )"
    R"(xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0" )"
    R"(xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" )"
    R"(xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0" )"
    R"(office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.text">)";
constexpr std::string_view kBody = "<office:body><office:text>";
constexpr std::string_view kEnd = "</office:text></office:body></office:document>";

/// A4 and fonts that word processors have; without an Asian one, Chinese would use whatever font is found.
constexpr std::string_view kStyles =
    R"(<office:font-face-decls><style:font-face style:name="Times New Roman" svg:font-family="'Times New Roman'" )"
    R"(style:font-family-generic="roman"/><style:font-face style:name="SimSun" svg:font-family="SimSun"/>)"
    R"(</office:font-face-decls><office:styles><style:default-style style:family="paragraph">)"
    R"(<style:text-properties style:font-name="Times New Roman" style:font-name-asian="SimSun" )"
    R"(style:font-name-complex="Times New Roman" fo:font-size="12pt" style:font-size-asian="12pt" )"
    R"(style:font-size-complex="12pt" fo:language="en" fo:country="US" style:language-asian="zh" )"
    R"(style:country-asian="CN" style:language-complex="ar" style:country-complex="SA"/></style:default-style>)"
    R"(<style:style style:name="Standard" style:family="paragraph"/></office:styles>)"
    R"(<office:automatic-styles><style:page-layout style:name="A4"><style:page-layout-properties )"
    R"(fo:page-width="210mm" fo:page-height="297mm" fo:margin="25mm"/></style:page-layout>)"
    R"(<style:style style:name="R" style:family="paragraph" style:parent-style-name="Standard">)"
    R"(<style:paragraph-properties style:writing-mode="rl-tb" fo:text-align="right"/></style:style>)"
    R"(</office:automatic-styles><office:master-styles><style:master-page style:name="Standard" )"
    R"(style:page-layout-name="A4"/></office:master-styles>)";

constexpr bool IsForbiddenInXml(char16_t unit) {
  return (unit < u' ' && unit != u'\t' && unit != u'\n') || unit == 0xFFFE || unit == 0xFFFF;
}

/// The text as UTF-8, with LF as its only line break and without what XML forbids.
std::string Cleaned(std::u16string_view text) {
  std::u16string clean;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool beforeLf = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    const bool endsLine = text[i] == u'\r' || text[i] == u'\v' || text[i] == u'\f';
    const char16_t unit = endsLine ? u'\n' : text[i];
    if (!beforeLf && !IsForbiddenInXml(unit)) clean += unit;
  }
  return Utf16ToUtf8(clean);
}

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n';
}

/// In XML, only single blanks between other characters are kept.
void AppendBlanks(std::string& xml, std::size_t count, bool inside) {
  if (inside && count == 1)
    xml += ' ';
  else
    xml += "<text:s text:c=\"" + std::to_string(count) + "\"/>";
}

void AppendCharacter(std::string& xml, char c) {
  switch (c) {
    case '\t':
      xml += "<text:tab/>";
      break;
    case '\n':
      xml += "<text:line-break/>";
      break;
    case '<':
      xml += "&lt;";
      break;
    case '>':
      xml += "&gt;";
      break;
    case '&':
      xml += "&amp;";
      break;
    default:
      xml += c;
  }
}

void AppendText(std::string& xml, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t end = std::min(text.find_first_not_of(' ', i), text.size());
    if (end == i) {
      AppendCharacter(xml, text[i]);
      continue;
    }
    const bool inside = i > 0 && end < text.size() && !IsBlank(text[i - 1]) && !IsBlank(text[end]);
    AppendBlanks(xml, end - i, inside);
    i = end - 1;
  }
}

/// Letters of Hebrew, Arabic and related scripts up to U+FFFF.
constexpr bool IsRightToLeft(char16_t unit) {
  return (unit >= 0x0590 && unit <= 0x08FF) || (unit >= 0xFB1D && unit <= 0xFDFF) ||
         (unit >= 0xFE70 && unit <= 0xFEFC);
}

constexpr bool IsLatin(char16_t unit) {
  return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

/// Not by the first letter: that of an option is its label, "A. ".
bool RunsRightToLeft(std::u16string_view text) {
  return std::ranges::count_if(text, IsRightToLeft) > std::ranges::count_if(text, IsLatin);
}

}  // namespace

std::string FlatDocument(std::string_view styles, std::string_view body) {
  std::string document;
  document.reserve(kBeginning.size() + styles.size() + kBody.size() + body.size() + kEnd.size());
  return document.append(kBeginning).append(styles).append(kBody).append(body).append(kEnd);
}

std::string FlatDocumentOf(const std::vector<std::u16string>& paragraphs) {
  std::string body;
  for (const std::u16string& paragraph : paragraphs) {
    body += RunsRightToLeft(paragraph) ? R"(<text:p text:style-name="R">)"
                                       : R"(<text:p text:style-name="Standard">)";
    AppendText(body, Cleaned(paragraph));
    body += "</text:p>";
  }
  return FlatDocument(kStyles, body);
}

}  // namespace quorvantis
