// SPDX-License-Identifier: MIT
#include "import/paper/PaperRewrite.h"

#include "import/labels/LineText.h"

#include <algorithm>

namespace quorvantis {

PaperText Rewritten(const PaperText& text, TextSpan span, std::u16string_view with) {
  const std::size_t kept = std::min(span.Size(), with.size());
  PaperText rewritten = text.Part({span.begin, span.begin + kept});
  rewritten.characters = with.substr(0, kept);
  rewritten.AppendInserted(with.substr(kept));
  return rewritten;
}

std::u16string_view LineEndNear(std::u16string_view text, std::size_t place) {
  // A line without end must not be searched again and again.
  constexpr std::size_t kFarthest = 4'096;
  constexpr std::u16string_view kParagraphEnds = u"\r\n";
  const std::size_t first = place > kFarthest ? place - kFarthest : 0;
  const std::u16string_view near = text.substr(first, place - first + kFarthest);
  std::size_t at = near.find_first_of(kParagraphEnds, place - first);
  if (at == near.npos) at = near.find_last_of(kParagraphEnds);
  if (at == near.npos) return u"\r";
  const std::size_t begin = near[at] == u'\n' && at > 0 && near[at - 1] == u'\r' ? at - 1 : at;
  if (near[begin] == u'\n') return u"\n";
  return near.substr(begin, 2) == u"\r\n" ? u"\r\n" : u"\r";
}

TextSpan WithLineEnd(std::u16string_view text, TextSpan line) {
  const auto isPair = [text](std::size_t at) { return text.substr(at, 2) == u"\r\n"; };
  if (line.end < text.size()) return {line.begin, line.end + (isPair(line.end) ? 2 : 1)};
  if (line.begin == 0) return line;
  const bool endsInPair = line.begin >= 2 && isPair(line.begin - 2);
  return {line.begin - (endsInPair ? 2 : 1), line.end};
}

}  // namespace quorvantis
