// SPDX-License-Identifier: MIT
#include "exchange/markup/Markup.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

struct HtmlRow {
  const char* html;
  const char* text;
  MarkupLosses losses{};
};

// What learning systems have, as exam texts.
const HtmlRow kHtmlRows[] = {
    {"a <b>bold</b> word", "a <b>bold</b> word"},
    {"<p>one</p>\n<p>two</p>", "one\r\ntwo"},
    {"one<br>two<br/>three", "one\r\ntwo\r\nthree"},
    {"<p>one<br></p><p>two</p>", "one\r\ntwo"},
    {"  <div>\n  one\n  two </div>\n", "one two"},
    {"a  b&nbsp;c", "a  b\u00A0c"},
    {"x&lt;y &amp;&amp; y&gt;z", "x&lt;y && y>z"},
    {"5 &lt; 6 &amp; 7", "5 < 6 & 7"},
    {"&eacute;&#233;&#xE9;&#128;&copy2", "ééé€©2"},
    {"&amp;eacute;", "&amp;eacute;"},
    {"<b><i>x</b>y</i>", "<b><i>x</i></b><i>y</i>"},
    {"<b></b>x<i> </i>", "x"},
    {"<STRONG CLASS='a' data-x=\">\">x", "<strong>x</strong>"},
    {"<span class=\"qv-u\">x</span><span>y</span>", "<u>x</u>y"},
    {"<pre>a\n  b</pre>", "a\r\n  b"},
    {"<ul><li>a</li><li>b</li></ul>", "• a\r\n• b", {.formatting = true}},
    {"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>", "a | b\r\nc", {.table = true}},
    {"<font color=red>x</font>", "x", {.formatting = true}},
    {"<blah>x</blah>", "x", {.formatting = true}},
    {"<a href=\"https://x.org/\">site</a>", "site (https://x.org/)", {.formatting = true}},
    {"a<!-- <b> -->b<?php x ?>c", "abc"},
    {"x<span style='color:red; Vertical-Align : super'>2</span>y", "x<sup>2</sup>y", {.formatting = true}},
    {"<audio><source src='a/s.mp3'>a/s.mp3</audio>b<video src=v>No <b>video</b></video>",
     "b",
     {.formatting = true}},
    {"a<svg><text>x</text></svg>b", "ab", {.drawing = true}},
    // Formulas.
    {"<math><msqrt> <mn>2</mn> </msqrt></math> or <math><mn>2</mn></math>", "√(2) or 2", {.formula = true}},
    {"x <m:math><m:mfrac><m:mn>1</m:mn><m:mn>2</m:mn></m:mfrac></m:math>!", "x (1)/(2)!", {.formula = true}},
    {"<math><msup><mfrac><mi>a</mi><mi>b</mi></mfrac><mn>2</mn></msup><mo>&lt;</mo><msubsup><mi>x</mi>"
     "<mi>i</mi><mn>3</mn></msubsup></math>",
     "((a)/(b))<sup>2</sup>&lt;x<sub>i</sub><sup>3</sup>",
     {.formula = true}},
    {"<math><semantics><mroot><mi>x</mi><mn>3</mn></mroot><annotation>no</annotation></semantics></math>",
     "<sup>3</sup>√(x)",
     {.formula = true}},
    {"<math><mfenced open='['><mi>a</mi><mi>b</mi></mfenced><mtable><mtr><mtd><mn>1</mn></mtd><mtd><mn>2"
     "</mn></mtd></mtr><mtr><mtd><mn>3</mn></mtd></mtr></mtable></math>",
     "[a, b)[1, 2; 3]",
     {.formula = true}},
    {"<math><mi>x</math><math><mi>y", "xy", {.formatting = true, .formula = true}},
    // Nothing that runs.
    {"a<script>alert(1)</script>b", "ab", {.executable = true}},
    {"a<script>alert(1)", "a", {.executable = true}},
    {"<scr<script>ipt>x", "ipt>x", {.formatting = true}},
    {"<b,c>x</b,c> I </3 it", "x I &lt;/3 it", {.formatting = true}},
    {"<b onclick=x>a</b>", "<b>a</b>", {.executable = true}},
    {"<a href=\" java\tscript:x\">a</a>", "a", {.executable = true}},
    {"<iframe src=x>in</iframe>a<form><input></form>", "a", {.executable = true}},
    {"<svg/onload=alert(1)>", "", {.executable = true, .drawing = true}},
    {"&lt;script&gt;alert(1)&lt;/script&gt;", "&lt;script>alert(1)&lt;/script>"},
    {"&#60img src=x onerror=y&#62", "&lt;img src=x onerror=y>"},
};

TEST(Markup, ReadsHtml) {
  for (const HtmlRow& row : kHtmlRows) {
    const ReadMarkup read = ReadHtml(Utf8ToUtf16(row.html));
    EXPECT_EQ(Utf16ToUtf8(read.text), row.text) << row.html;
    EXPECT_EQ(read.losses, row.losses) << row.html;
  }
}

TEST(Markup, TakesFilesOutOfTheText) {
  const ReadMarkup read = ReadHtml(
      u"see <img src=\"@@P@@/a%20b.png\" alt=\"A\"> and <a href=\"@@P@@/c.pdf\">c.pdf</a>"
      u"<a href='d.doc'>this</a><br><img src=e.png>");
  EXPECT_EQ(read.text, u"see  and this");
  ASSERT_EQ(read.references.size(), 4U);
  EXPECT_EQ(read.references[0].address, u"@@P@@/a%20b.png");
  EXPECT_EQ(read.references[0].label, u"A");
  EXPECT_TRUE(read.references[0].isFollowed);
  EXPECT_FALSE(read.references[3].isFollowed);
}

/// Texts of pieces that mean something, alone and in odd company.
std::u16string RandomText(std::mt19937& random) {
  static const char16_t* const kPieces[] = {u"a",         u"word",
                                            u" ",         u"  ",
                                            u"\r\n",      u"\n",
                                            u"\t",        u"<b>",
                                            u"</b>",      u"<i>",
                                            u"</i>",      u"<u>",
                                            u"</u>",      u"<sub>",
                                            u"</sub>",    u"<br>",
                                            u"<p>",       u"</p>",
                                            u"<",         u">",
                                            u"&",         u"&lt;",
                                            u"&amp;",     u"&copy",
                                            u";",         u"x<y",
                                            u"\"",        u"'",
                                            u"#",         u"-->",
                                            u"<!--",      u"<y z>",
                                            u"</",        u"\xD800",
                                            u"é",         u"\xD83D\xDE00",
                                            u"<td>",      u"<span class=qv-s>",
                                            u"</span>",   u"<a href=b>",
                                            u"</a>",      u"<script>",
                                            u"</script>", u"\u0001",
                                            u"\uFFFF",    u"<pre>",
                                            u"</pre>",    u"&#60;",
                                            u"script"};
  std::u16string text;
  const std::size_t count = random() % 12;
  for (std::size_t i = 0; i < count; ++i) text += kPieces[random() % std::size(kPieces)];
  return text;
}

TEST(Markup, ComesBackFromHtmlAsItWas) {
  std::mt19937 random(20);
  for (int i = 0; i < 30'000; ++i) {
    const std::u16string text = ReadExamText(RandomText(random)).text;
    ASSERT_EQ(ReadExamText(text).text, text) << i;
    for (const HtmlDialect dialect : {HtmlDialect::Html, HtmlDialect::Xhtml}) {
      const std::u16string html = ExamTextToHtml(text, dialect);
      ASSERT_EQ(Utf16ToUtf8(ReadHtml(html).text), Utf16ToUtf8(text)) << i << " " << Utf16ToUtf8(html);
      ASSERT_EQ(ReadHtml(html).losses, MarkupLosses()) << i;
    }
    const std::u16string plain = ExamTextToPlain(text);
    ASSERT_EQ(ExamTextToPlain(PlainToExamText(plain)), plain) << i;
  }
}

TEST(Markup, TakesTimeInProportionToTheText) {
  constexpr std::size_t kCopies = 50'000;
  for (const char16_t* piece : {u"<",
                                u"<!",
                                u"</3",
                                u"<y ",
                                u"<a '",
                                u"<a b",
                                u"<!--",
                                u"<script>",
                                u"</b>",
                                u"<b>",
                                u"&",
                                u"<iframe>",
                                u"a<b>",
                                u"<b><i></b>",
                                u"<a href=x>",
                                u"<img src=x>",
                                u"<math>",
                                u"<math><mi></mi></math>",
                                u"<audio>",
                                u"<audio></audio>",
                                u"<math><mfrac>"}) {
    std::u16string text;
    for (std::size_t i = 0; i < kCopies; ++i) text += piece;
    for (const char16_t* end : {u"", u">", u"'>"}) {
      ReadHtml(text + end);
      ReadExamText(text + end);
    }
  }
}

TEST(Markup, DropsTagsThatShowNothing) {
  struct Row {
    std::u16string_view text, expected;
    bool isTold;
  };
  const Row rows[] = {
      {u"Paris<o:p></o:p>", u"Paris", true},
      {u"<st1:place w:st=\"on\">Rome</st1:place>", u"Rome", true},
      {u"<quiz>a</quiz>", u"a", true},
      {u"x<y", u"x&lt;y", false},
      {u"x<y and z>w", u"x&lt;y and z>w", false},
  };
  for (const Row& row : rows) {
    const ReadMarkup read = ReadExamText(row.text);
    EXPECT_EQ(read.text, row.expected);
    EXPECT_EQ(read.losses.formatting, row.isTold) << Utf16ToUtf8(row.text);
  }
}

}  // namespace
}  // namespace quorvantis::test
