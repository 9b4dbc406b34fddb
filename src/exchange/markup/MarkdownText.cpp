// SPDX-License-Identifier: MIT
#include "exchange/markup/MarkdownText.h"

#include "exchange/form/TextSource.h"
#include "text/HtmlEscape.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestSpan = 500;  // within which a mark must be closed

bool IsSpace(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\n';
}

/// Where a mark from `from` on closes what one before it opened; npos if none does.
std::size_t ClosingMark(std::u16string_view text, std::u16string_view mark, std::size_t from) {
  const std::u16string_view near = text.substr(0, std::min(text.size(), from + kLongestSpan));
  for (std::size_t at = near.find(mark, from); at != near.npos; at = near.find(mark, at + mark.size())) {
    const bool isLonger = at + mark.size() < text.size() && text[at + mark.size()] == mark[0];
    if (mark.size() == 1 && isLonger) {
      ++at;  // two stars are another mark
    } else if (at > from && !IsSpace(text[at - 1]) && text[at - 1] != u'\\') {
      return at;
    }
  }
  return text.npos;
}

/// "[label](address)".
struct MarkdownLink {
  std::u16string_view label;
  std::u16string_view address;
  std::size_t size = 0;
};

std::optional<MarkdownLink> LinkAt(std::u16string_view text) {
  text = text.substr(0, kLongestSpan);
  const std::size_t middle = text.starts_with(u'[') ? text.find(u"](") : text.npos;
  const std::size_t end = middle == text.npos ? middle : text.find(u')', middle);
  if (end == text.npos) return std::nullopt;
  const std::u16string_view target = text.substr(middle + 2, end - middle - 2);
  const std::u16string_view address = target.substr(0, target.find_first_of(u" \n"));
  return MarkdownLink{text.substr(1, middle - 1), address, end + 1};
}

class MarkdownReading {
 public:
  explicit MarkdownReading(std::u16string_view text) : text_(text) {}

  std::u16string Html() {
    while (at_ < text_.size()) {
      if (!TakeCode() && !TakeLink() && !TakeEmphasis(u"**", u"b", endOfBold_) &&
          !TakeEmphasis(u"*", u"i", endOfItalics_))
        TakeCharacter();
    }
    return html_;
  }

 private:
  bool TakeCode() {
    const std::size_t end = text_[at_] == u'`' ? ClosingMark(text_, u"`", at_ + 1) : text_.npos;
    if (end == text_.npos) return false;
    html_ += u"<code>" + EscapeHtml(text_.substr(at_ + 1, end - at_ - 1)) + u"</code>";
    at_ = end + 1;
    return true;
  }

  bool TakeLink() {
    const bool isPicture = text_[at_] == u'!';
    const auto link = LinkAt(text_.substr(at_ + (isPicture ? 1 : 0)));
    if (!link) return false;
    const std::u16string address = EscapeHtml(link->address);
    const std::u16string label = EscapeHtml(link->label);
    html_ += isPicture ? u"<img src=\"" + address + u"\" alt=\"" + label + u"\">"
                       : u"<a href=\"" + address + u"\">" + label + u"</a>";
    at_ += link->size + (isPicture ? 1 : 0);
    return true;
  }

  /// `end` is where emphasis of this kind ends, if any has begun.
  bool TakeEmphasis(std::u16string_view mark, std::u16string_view tag, std::size_t& end) {
    if (!text_.substr(at_).starts_with(mark)) return false;
    const std::size_t behind = at_ + mark.size();
    if (at_ == end) {
      end = text_.npos;
      html_.append(u"</").append(tag).append(u">");
    } else {
      const bool opens = end == text_.npos && behind < text_.size() && !IsSpace(text_[behind]);
      const std::size_t closing = opens ? ClosingMark(text_, mark, behind) : text_.npos;
      if (closing == text_.npos) return false;
      end = closing;
      html_.append(u"<").append(tag).append(u">");
    }
    at_ = behind;
    return true;
  }

  void TakeCharacter() {
    constexpr std::u16string_view kProtected = u"\\`*_{}[]()#+-.!|>~";
    const char16_t unit = text_[at_++];
    if (unit == u'\\' && at_ < text_.size() && kProtected.find(text_[at_]) != kProtected.npos) {
      html_.push_back(text_[at_++]);
    } else if (unit == u'\n') {
      html_ += u"<br>";
    } else {
      html_.push_back(unit);
    }
  }

  std::u16string_view text_;
  std::u16string html_;
  std::size_t at_ = 0;
  std::size_t endOfBold_ = std::u16string_view::npos;
  std::size_t endOfItalics_ = std::u16string_view::npos;
};

}  // namespace

std::u16string MarkdownToHtml(std::u16string_view text) {
  return MarkdownReading(text).Html();
}

bool HasMarkdownBlocks(std::u16string_view text) {
  constexpr std::u16string_view kBegins[] = {u"- ", u"* ", u"+ ", u"# ", u"##", u"> ", u"|", u"```", u"~~~"};
  const std::vector<std::u16string_view> lines = LinesOf(text);
  return std::ranges::any_of(lines, [&](std::u16string_view line) {
    line = Trimmed(line);
    const std::size_t digits = std::min(line.find_first_not_of(u"0123456789"), line.size());
    if (digits > 0 && line.substr(digits).starts_with(u". ")) return true;
    return std::any_of(std::begin(kBegins), std::end(kBegins),
                       [line](std::u16string_view begin) { return line.starts_with(begin); });
  });
}

}  // namespace quorvantis
