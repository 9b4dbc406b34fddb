// SPDX-License-Identifier: MIT
#include "versions/VisibleText.h"

#include "text/AsciiCase.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace quorvantis {
namespace {

constexpr bool IsAsciiLetter(char16_t unit) {
  const char16_t upper = AsciiUpper(unit);
  return upper >= u'A' && upper <= u'Z';
}

struct NamedCharacter {
  std::u16string_view name;
  char16_t unit;
};

/// Those that authors write. Others are left as they are, and then not found on paper: a false alarm, never a
/// false assurance.
constexpr NamedCharacter kNamed[] = {
    {u"amp", u'&'},         {u"lt", u'<'},          {u"gt", u'>'},          {u"quot", u'"'},
    {u"apos", u'\''},       {u"nbsp", u'\u00A0'},   {u"times", u'\u00D7'},  {u"divide", u'\u00F7'},
    {u"deg", u'\u00B0'},    {u"plusmn", u'\u00B1'}, {u"middot", u'\u00B7'}, {u"frac12", u'\u00BD'},
    {u"frac14", u'\u00BC'}, {u"sup2", u'\u00B2'},   {u"sup3", u'\u00B3'},   {u"micro", u'\u00B5'},
    {u"pi", u'\u03C0'},     {u"alpha", u'\u03B1'},  {u"beta", u'\u03B2'},   {u"gamma", u'\u03B3'},
    {u"le", u'\u2264'},     {u"ge", u'\u2265'},     {u"ne", u'\u2260'},     {u"rarr", u'\u2192'},
    {u"larr", u'\u2190'},   {u"hellip", u'\u2026'}, {u"ndash", u'\u2013'},  {u"mdash", u'\u2014'},
    {u"laquo", u'\u00AB'},  {u"raquo", u'\u00BB'},  {u"euro", u'\u20AC'},   {u"copy", u'\u00A9'},
};

/// The value of "#65" or "#x41".
std::optional<char32_t> NumberedCharacter(std::u16string_view name) {
  name.remove_prefix(1);
  const bool isHexadecimal = !name.empty() && AsciiLower(name.front()) == u'x';
  if (isHexadecimal) name.remove_prefix(1);
  if (name.empty() || name.size() > 7) return std::nullopt;
  char32_t value = 0;
  for (const char16_t unit : name) {
    const char16_t lower = AsciiLower(unit);
    const bool isLetter = isHexadecimal && lower >= u'a' && lower <= u'f';
    if (!IsDigit(unit) && !isLetter) return std::nullopt;
    const int digit = isLetter ? lower - u'a' + 10 : unit - u'0';
    value = value * (isHexadecimal ? 16 : 10) + static_cast<char32_t>(digit);
  }
  return value > 0x10FFFF ? std::nullopt : std::optional(value);
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

  void TakeReference() {
    std::size_t end = 1;
    const auto isPart = [](char16_t unit) { return IsAsciiLetter(unit) || IsDigit(unit) || unit == u'#'; };
    while (end < rest_.size() && isPart(rest_[end])) ++end;
    const std::u16string_view name = rest_.substr(1, end - 1);
    const auto* const named = std::ranges::find(kNamed, name, &NamedCharacter::name);
    const auto numbered = name.starts_with(u'#') ? NumberedCharacter(name) : std::nullopt;
    if (named != std::end(kNamed)) {
      piece_ += named->unit;
    } else if (numbered) {
      AppendCodePoint(piece_, *numbered);
    } else {
      piece_ += rest_.substr(0, end);
    }
    const bool isKnown = named != std::end(kNamed) || numbered;
    rest_.remove_prefix(isKnown && end < rest_.size() && rest_[end] == u';' ? end + 1 : end);
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
