// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextSpan.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvantis {

enum class PageTokenKind {
  Text,
  BeginTag,
  EndTag,
  Comment,
  Declaration,  ///< shows nothing: "<!doctype html>", "<?xml ?>", "</3>"
};

/// A part of a page as a browser takes it. Places are in UTF-16 units.
struct PageToken {
  PageTokenKind kind = PageTokenKind::Text;
  TextSpan span{};                         ///< to the end of the text if it is not closed
  TextSpan name{};                         ///< of a tag, as written: "td"
  bool isClosed = true;                    ///< has its end: ">" or, of a comment, "-->"
  bool hasAttributes = false;              ///< of a tag
  std::optional<std::size_t> openQuote{};  ///< the quotation mark of a tag whose second is missing

  constexpr bool IsTag() const { return kind == PageTokenKind::BeginTag || kind == PageTokenKind::EndTag; }
};

/// What stands in an element that holds no markup, such as a script.
struct PlainContent {
  TextSpan span{};
  bool ends = false;  ///< if not, it is the rest of the text
};

/// Takes a text that holds markup apart, the way browsers do: with comments, with brackets within quotation
/// marks, with whatever is broken. Texts and other parts follow each other without gaps. Takes time in
/// proportion to the text.
class PageTokens {
 public:
  /// `text` must outlive the object.
  explicit PageTokens(std::u16string_view text) : text_(text) {}

  /// The next part, never an empty one; nothing at the end of the text.
  std::optional<PageToken> Next();

  /// Goes on at `place` behind the begin of the last part: for those who take a part for something else than
  /// browsers do. What follows has no tags any more once one ran to the end of the text, or once so much was
  /// read again that it would take too long.
  void GoTo(std::size_t place);

  /// Goes over the content of an element that holds no markup, to be called right after its begin tag; its
  /// end tag is next. Nothing if the element holds markup.
  std::optional<PlainContent> TakePlainContent(const PageToken& beginTag);

 private:
  std::optional<PageTokenKind> MarkupAt(std::size_t place) const;
  std::size_t EndOfText(std::size_t place) const;
  void CloseAt(PageToken& token, std::size_t end) const;
  void ReadTag(PageToken& tag);
  void ReadComment(PageToken& comment);

  std::u16string_view text_;
  std::size_t at_ = 0;
  bool tagsEnd_ = true;
  bool commentsEnd_ = true;
  std::size_t bracket_ = 0;  ///< the ">" that was found last; npos if no more follow
  std::size_t readAgain_ = 0;
};

/// An attribute of a tag.
struct PageAttribute {
  TextSpan name;
  TextSpan value{};  ///< without quotation marks, with its references; empty if there is none
};

/// Goes through the attributes of a tag.
class PageAttributes {
 public:
  /// `begin` is the place behind the name of a tag; `text` must outlive the object.
  PageAttributes(std::u16string_view text, std::size_t begin) : text_(text), at_(begin) {}

  /// The next attribute; nothing at the end of the tag or of the text.
  std::optional<PageAttribute> Next();

  // Known once Next gave nothing.
  std::size_t End() const { return at_; }  ///< the place behind the tag
  bool IsClosed() const { return isClosed_; }
  std::optional<std::size_t> OpenQuote() const { return openQuote_; }

 private:
  TextSpan ReadValue();

  std::u16string_view text_;
  std::size_t at_;
  bool isClosed_ = false;
  std::optional<std::size_t> openQuote_;
};

/// The place of "</name" in either case at or after `at`; npos if there is none. The name must end there.
std::size_t FindEndTag(std::u16string_view text, std::size_t at, std::u16string_view name);

}  // namespace quorvantis
