// SPDX-License-Identifier: MIT
#include "text/HtmlEntities.h"
#include "text/HtmlEscape.h"
#include "text/LikelyTag.h"
#include "text/PageTokens.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace quorvantis::test {
namespace {

/// The parts, each with a sign of its kind: "b" and "e" for tags, "c", "d", and "t" for text. "!" follows
/// what is not closed.
std::u16string Parts(std::u16string_view text) {
  std::u16string parts;
  PageTokens tokens(text);
  while (const auto token = tokens.Next()) {
    parts.push_back(u"tbecd"[static_cast<std::size_t>(token->kind)]);
    if (!token->isClosed) parts.push_back(u'!');
    parts.append(u"(").append(token->span.Of(text)).append(u")");
    if (const auto content = tokens.TakePlainContent(*token))
      parts.append(content->ends ? u"p(" : u"p!(").append(content->span.Of(text)).append(u")");
  }
  return parts;
}

TEST(PageTokens, AreWhatBrowsersSee) {
  const std::pair<const char16_t*, const char16_t*> kRows[] = {
      {u"a<b>c</b >d", u"t(a)b(<b>)t(c)e(</b >)t(d)"},
      {u"1 < 2 <3 << <", u"t(1 < 2 <3 << <)"},
      {u"<a x='>' y=\">\" z=>'>", u"b(<a x='>' y=\">\" z=>)t('>)"},
      {u"<a =\">\">", u"b(<a =\">)t(\">)"},
      {u"<a / b = '>'/>", u"b(<a / b = '>'/>)"},
      {u"<a b='x>", u"b!(<a b='x>)"},
      {u"a<b", u"t(a)b!(<b)"},
      {u"<!--><!---><!-- > --!><!--x-->y<!-- -- >",
       u"c(<!-->)c(<!--->)c(<!-- > --!>)c(<!--x-->)t(y)c!(<!-- -- >)"},
      {u"<!doctype x><?y?></3></>z</", u"d(<!doctype x>)d(<?y?>)d(</3>)d(</>)t(z</)"},
      {u"<Style>a<b></stylex></STYLE>c", u"b(<Style>)p(a<b></stylex>)e(</STYLE>)t(c)"},
      {u"<script>a</b>", u"b(<script>)p!(a</b>)"},
      {u"<plaintext></plaintext>", u"b(<plaintext>)p!(</plaintext>)"},
  };
  for (const auto& [text, parts] : kRows) EXPECT_EQ(Parts(text), parts);
}

TEST(PageAttributes, HaveNamesAndValues) {
  const std::u16string_view text = u"<img src=a/b alt = \"x>y\" =z checked data='un";
  const std::pair<const char16_t*, const char16_t*> kAttributes[] = {
      {u"src", u"a/b"}, {u"alt", u"x>y"}, {u"=z", u""}, {u"checked", u""}, {u"data", u"un"}};
  PageAttributes attributes(text, 4);
  for (const auto& [name, value] : kAttributes) {
    const auto attribute = attributes.Next();
    ASSERT_TRUE(attribute);
    EXPECT_EQ(attribute->name.Of(text), name);
    EXPECT_EQ(attribute->value.Of(text), value);
  }
  EXPECT_FALSE(attributes.Next());
  EXPECT_FALSE(attributes.IsClosed());
  EXPECT_EQ(attributes.OpenQuote(), text.find(u'\''));
}

std::u16string RandomMarkup(std::mt19937& random) {
  static const char16_t* const kPieces[] = {
      u"a", u" ", u"<",   u">",    u"&",   u";",    u"\"",      u"'",        u"=",    u"/",   u"-",
      u"!", u"?", u"<b>", u"</b>", u"<a ", u"<!--", u"<style>", u"</style>", u"&lt;", u"#x41"};
  std::u16string text;
  const std::size_t count = random() % 14;
  for (std::size_t i = 0; i < count; ++i) text += kPieces[random() % std::size(kPieces)];
  return text;
}

TEST(PageTokens, FollowEachOtherAndLeaveEscapedTextAlone) {
  std::mt19937 random(3);
  for (int i = 0; i < 20'000; ++i) {
    const std::u16string text = RandomMarkup(random);
    PageTokens tokens(text);
    std::size_t end = 0;
    while (const auto token = tokens.Next()) {
      ASSERT_EQ(token->span.begin, end) << i;
      ASSERT_LT(end, token->span.end) << i;
      end = token->span.end;
    }
    ASSERT_EQ(end, text.size()) << i;
    const std::u16string escaped = EscapeHtml(text);
    ASSERT_EQ(Parts(escaped), escaped.empty() ? u"" : u"t(" + escaped + u")");
    ASSERT_EQ(ResolveEntities(escaped), text);
  }
}

TEST(ReadEntity, IsAsBrowsersReadIt) {
  const std::pair<const char16_t*, const char16_t*> kRows[] = {
      {u"&eacute;&Eacute;&AMP&lt&frac12x", u"\u00E9\u00C9&<\u00BDx"},
      {u"&alpha &nosuch; &; & &#; &#x; &#xg;", u"&alpha &nosuch; &; & &#; &#x; &#xg;"},
      {u"&#65&#x42;&#X43;&#128512;", u"ABC\U0001F600"},
      {u"&#150;&#x80;&#0;&#xD800;&#1114112;&#99999999999;", u"\u2013\u20AC\uFFFD\uFFFD\uFFFD\uFFFD"},
      {u"&copyright&lang;&rang;", u"\u00A9right\u27E8\u27E9"},
  };
  for (const auto& [text, shown] : kRows) EXPECT_EQ(ResolveEntities(text), shown);
}

TEST(LikelyTagLength, LeavesComparisonsAlone) {
  const std::pair<const char16_t*, std::size_t> kRows[] = {
      {u"<b>x", 3}, {u"</b>", 4}, {u"<br/>", 5}, {u"< b>", 0},        {u"</ b>", 0},
      {u"<3>", 0},  {u"<", 0},    {u"</", 0},    {u"<a 345678>", 10}, {u"<a 3456789>", 0},
  };
  for (const auto& [text, length] : kRows) EXPECT_EQ(LikelyTagLength(text, 10), length);
}

}  // namespace
}  // namespace quorvantis::test
