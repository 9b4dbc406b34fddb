// SPDX-License-Identifier: MIT
// Authors write HTML tags into the texts of an exam, and a line end is a line break. Learning systems have
// HTML. What both can show is converted exactly: emphasis, subscripts, line breaks and special characters.
// Everything else becomes plain text and is reported. Nothing that a browser would run passes.
//
// The normal form of an exam text has balanced tags without attributes, CR LF for line ends, characters in
// place of their names ("é", not "&eacute;"), and "&lt;" or "&amp;" only where a browser would otherwise read
// a tag or the name of a character. To normalise it again changes nothing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a text had that has no place in an exam.
struct MarkupLosses {
  bool formatting = false;  ///< colours, lists, headings…
  bool table = false;       ///< now lines with bars between the cells
  bool executable = false;  ///< scripts, forms, embedded pages
  bool formula = false;     ///< now a line of text
  bool drawing = false;     ///< drawn by the page itself

  bool operator==(const MarkupLosses&) const = default;
};

/// A picture in a text, or a link to something that may be a file. It is no longer in the text.
struct MarkupReference {
  std::u16string address;   ///< as written, character references resolved
  std::u16string label;     ///< what stands for the picture, or the name of a linked file; may be empty
  bool isFollowed = false;  ///< more text stands behind it
};

struct ReadMarkup {
  std::u16string text;  ///< in normal form
  std::vector<MarkupReference> references;
  MarkupLosses losses;
};

/// An exam text in normal form. "<" that begins no tag of HTML is a character.
ReadMarkup ReadExamText(std::u16string_view text);

/// HTML as an exam text. Addresses of the net remain, in brackets behind the text of their links.
ReadMarkup ReadHtml(std::u16string_view html);

/// A text without any markup as an exam text.
std::u16string PlainToExamText(std::u16string_view text);

enum class HtmlDialect {
  Html,   ///< for programs that read HTML: <br>
  Xhtml,  ///< for items of tests, which have a few elements only; others become spans with a class
};

/// The class of a span that stands for a tag is this and the name of the tag.
inline constexpr std::u16string_view kTagClass = u"qv-";

/// An exam text as HTML. The result is well-formed XML in either dialect but for <br>.
std::u16string ExamTextToHtml(std::u16string_view text, HtmlDialect dialect);

/// An exam text as it shows, without emphasis; lines end in LF.
std::u16string ExamTextToPlain(std::u16string_view text);

/// Whether an exam text has tags, so that it shows more than ExamTextToPlain gives.
bool HasTags(std::u16string_view text);

}  // namespace quorvantis
