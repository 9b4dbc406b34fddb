// SPDX-License-Identifier: MIT
#pragma once

#include "text/PageTokens.h"
#include "text/TextSpan.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// A tag as a browser sees it.
struct PageTag {
  TextSpan span;     ///< to the end of the text if it is not closed
  std::string name;  ///< in lower case, cut after 16 letters
  bool isEnd = false;
  bool isClosed = true;         ///< has its ">"
  bool isEmptyElement = false;  ///< "<b/>", which browsers take for "<b>", but authors for nothing to close
  bool hasAttributes = false;
};

/// Goes through what a browser takes for tags in a text that authors wrote. Comments are skipped, and so is
/// what stands within elements that hold no markup ("style", "textarea").
class PageTagReader {
 public:
  /// `text` must outlive the reader.
  explicit PageTagReader(std::u16string_view text) : text_(text), tokens_(text) {}

  /// The next tag; nothing at the end of the text.
  std::optional<PageTag> Next();

  /// What had no end and so took the rest of the text and what follows it on the page: a comment, an open
  /// quotation mark within a tag, or an element without markup. Known once Next gave nothing.
  const std::optional<TextSpan>& Swallower() const { return swallower_; }

  /// The first sign of markup that is neither a tag nor a comment that an author could have meant: "</3>".
  const std::optional<TextSpan>& Lost() const { return lost_; }

 private:
  PageTag TakeTag(const PageToken& token);
  void Swallow(const TextSpan& by);

  std::u16string_view text_;
  PageTokens tokens_;
  std::optional<TextSpan> swallower_;
  std::optional<TextSpan> lost_;
};

}  // namespace quorvantis
