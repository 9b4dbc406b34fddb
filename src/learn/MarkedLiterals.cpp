// SPDX-License-Identifier: MIT
#include "learn/MarkedLiterals.h"

#include "import/labels/LineText.h"
#include "learn/patterns/PatternText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBlanksBefore = u"[ \\t\u00A0\u3000]*";
/// Enough of a text to tell it from others.
constexpr std::size_t kTelling = 16;

TextSpan InPaper(std::u16string_view paper, const PaperMark& mark) {
  const TextSpan span{std::min(mark.span.begin, paper.size()), std::min(mark.span.end, paper.size())};
  return Trimmed(paper, span);
}

std::u16string Ahead(std::u16string_view paper, std::size_t place) {
  const std::size_t end = std::min(LineEndAfter(paper, place), place + kTelling);
  return u"(?=" + LiteralPattern(Trimmed(paper, {place, end}).Of(paper)) + u")";
}

/// What stands before a place in its line, at the beginning of it; nothing but blanks if it is more than a
/// label.
std::u16string LabelBefore(std::u16string_view paper, std::size_t place) {
  constexpr std::size_t kLongestBefore = 16;
  const TextSpan before = Trimmed(paper, {LineBeginBefore(paper, place), place});
  if (before.Size() > kLongestBefore) return std::u16string(kBlanksBefore);
  return u"^" + std::u16string(kBlanksBefore) + LiteralPattern(before.Of(paper)) +
         std::u16string(kBlanksBefore);
}

}  // namespace

std::u16string QuestionBeginPattern(std::u16string_view paper, const PaperMark& mark) {
  const TextSpan span = InPaper(paper, mark);
  const bool isNumber = mark.role == PaperRole::QuestionNumber;
  const std::size_t text = isNumber ? SkipBlanks(paper, span.end, paper.size()) : span.begin;
  return u"(?<!!)\\s*" + LabelBefore(paper, text) + Ahead(paper, text);
}

std::u16string OptionBeginPattern(std::u16string_view paper, const PaperMark& mark) {
  const std::size_t text = InPaper(paper, mark).begin;
  return LabelBefore(paper, text) + Ahead(paper, text);
}

std::optional<std::size_t> OptionIndexOf(const std::vector<RolePart>& roles, const PaperMark& mark) {
  const int question = RoleLookup(roles).QuestionAt(mark.span.begin);
  if (question < 0) return std::nullopt;
  const auto isLabelBefore = [&](const RolePart& part) {
    return part.role == PaperRole::OptionLabel && part.question == question &&
           part.span.begin < mark.span.begin;
  };
  return static_cast<std::size_t>(std::count_if(roles.begin(), roles.end(), isLabelBefore));
}

std::u16string LineBeginPattern(std::u16string_view paper, const PaperMark& mark) {
  const std::size_t begin = LineBeginBefore(paper, InPaper(paper, mark).begin);
  const std::size_t end = std::min(LineEndAfter(paper, begin), begin + kTelling + kTelling);
  return std::u16string(kBlanksBefore) + LiteralPattern(Trimmed(paper, {begin, end}).Of(paper));
}

}  // namespace quorvantis
