// SPDX-License-Identifier: MIT
#include "versions/VisibleText.h"

#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr bool IsAsciiLetter(char16_t unit) {
  const char16_t upper = AsciiUpper(unit);
  return upper >= u'A' && upper <= u'Z';
}

/// Cuts markup into its visible pieces.
class MarkupCutter {
 public:
  explicit MarkupCutter(std::u16string_view markup) : rest_(markup) {}

  std::vector<std::u16string> Cut() {
    while (!rest_.empty()) {
      if (BeginsTag()) {
        EndPiece();
        SkipTag();
      } else if (rest_.front() == u'&') {
        TakeReference();
      } else {
        piece_ += rest_.front();
        rest_.remove_prefix(1);
      }
    }
    EndPiece();
    return std::move(pieces_);
  }

 private:
  /// "<" before anything else is a character.
  bool BeginsTag() const {
    if (rest_.front() != u'<' || rest_.size() < 2) return false;
    const char16_t next = rest_[1];
    const bool closes = next == u'/' && rest_.size() > 2;
    return IsAsciiLetter(next) || next == u'!' || next == u'?' || closes;
  }

  void SkipTag() {
    if (rest_.starts_with(u"<!--")) return SkipPast(u"-->");
    std::size_t end = 1;
    while (end < rest_.size() && IsAsciiLetter(rest_[end])) ++end;
    const std::u16string name = AsciiLower(rest_.substr(1, end - 1));
    SkipToTagEnd();
    if (name == u"script" || name == u"style" || name == u"title") SkipHidden(name);
  }

  /// A bracket within quotation marks of an attribute does not end the tag.
  void SkipToTagEnd() {
    char16_t quote = u'\0';
    std::size_t at = 1;
    for (; at < rest_.size() && (quote != u'\0' || rest_[at] != u'>'); ++at) {
      const bool isQuote = rest_[at] == u'"' || rest_[at] == u'\'';
      if (quote == rest_[at]) {
        quote = u'\0';
      } else if (isQuote && quote == u'\0' && rest_[at - 1] == u'=') {
        quote = rest_[at];
      }
    }
    rest_.remove_prefix(std::min(at + 1, rest_.size()));
  }

  void SkipHidden(const std::u16string& name) {
    const std::size_t end = AsciiLower(rest_).find(u"</" + name);
    rest_.remove_prefix(std::min(end, rest_.size()));
  }

  void SkipPast(std::u16string_view mark) {
    const std::size_t found = rest_.find(mark);
    rest_.remove_prefix(found == rest_.npos ? rest_.size() : found + mark.size());
  }

  /// What is no reference is an ampersand.
  void TakeReference() {
    const auto entity = ReadEntity(rest_);
    AppendCodePoint(piece_, entity ? entity->codePoint : U'&');
    rest_.remove_prefix(entity ? entity->length : 1);
  }

  void EndPiece() {
    if (piece_.find_first_not_of(u" \t\r\n\u00A0") != piece_.npos) pieces_.push_back(piece_);
    piece_.clear();
  }

  std::u16string_view rest_;
  std::u16string piece_;
  std::vector<std::u16string> pieces_;
};

}  // namespace

std::vector<std::u16string> VisiblePieces(std::u16string_view markup) {
  return MarkupCutter(markup).Cut();
}

}  // namespace quorvantis
