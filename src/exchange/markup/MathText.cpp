// SPDX-License-Identifier: MIT
#include "exchange/markup/MathText.h"

#include "exchange/markup/ReadTag.h"
#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/HtmlEscape.h"
#include "text/PageTokens.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace quorvantis {
namespace {

constexpr std::size_t kMostNestedMath = 40;

/// How the parts of an element stand to each other.
enum class MathShape {
  Row,
  Hidden,
  Fraction,
  Root,
  RootOfDegree,
  Lowered,
  Raised,
  LoweredAndRaised,
  Fenced,
  Table,
  TableRow,
};

struct MathElement {
  std::u16string_view name;
  MathShape shape;
};

constexpr MathElement kMathElements[] = {
    {u"annotation", MathShape::Hidden},
    {u"annotation-xml", MathShape::Hidden},
    {u"mfenced", MathShape::Fenced},
    {u"mfrac", MathShape::Fraction},
    {u"mover", MathShape::Raised},
    {u"mphantom", MathShape::Hidden},
    {u"mroot", MathShape::RootOfDegree},
    {u"msqrt", MathShape::Root},
    {u"msub", MathShape::Lowered},
    {u"msubsup", MathShape::LoweredAndRaised},
    {u"msup", MathShape::Raised},
    {u"mtable", MathShape::Table},
    {u"mtr", MathShape::TableRow},
    {u"munder", MathShape::Lowered},
    {u"munderover", MathShape::LoweredAndRaised},
};

struct MathPart {
  std::u16string html{};
  bool needsBrackets = false;  ///< before something is raised behind it
};

struct MathFrame {
  std::u16string_view name{};
  MathShape shape = MathShape::Row;
  std::u16string open = u"(";  ///< of a fenced element
  std::u16string close = u")";
  bool hasLine = true;  ///< a fraction without one is no division
  std::vector<MathPart> parts{};
};

std::u16string_view WithoutNamespace(std::u16string_view name) {
  return name.substr(name.rfind(u':') + 1);  // not found: all of it
}

MathShape ShapeOf(std::u16string_view name) {
  const auto* const row = std::ranges::find_if(kMathElements, [name](const MathElement& element) {
    return EqualsIgnoringAsciiCase(element.name, name);
  });
  return row != std::end(kMathElements) ? row->shape : MathShape::Row;
}

std::u16string Joined(const std::vector<MathPart>& parts, std::u16string_view between) {
  std::u16string html;
  for (const MathPart& part : parts) {
    if (&part != &parts.front()) html += between;
    html += part.html;
  }
  return html;
}

std::u16string HtmlAt(const MathFrame& frame, std::size_t index) {
  return index < frame.parts.size() ? frame.parts[index].html : std::u16string();
}

std::u16string InBrackets(const std::u16string& html) {
  return u"(" + html + u")";
}

/// What is raised or lowered, or nothing.
std::u16string Shifted(const std::u16string& html, std::u16string_view tag) {
  std::u16string shifted;
  if (html.empty()) return shifted;
  return shifted.append(u"<").append(tag).append(u">").append(html).append(u"</").append(tag).append(u">");
}

std::u16string BaseOf(const MathFrame& frame) {
  const bool isOne = frame.parts.empty() || !frame.parts[0].needsBrackets;
  return isOne ? HtmlAt(frame, 0) : InBrackets(frame.parts[0].html);
}

MathPart PartOfRow(const MathFrame& frame) {
  return frame.parts.size() == 1 ? frame.parts[0] : MathPart{Joined(frame.parts, u"")};
}

MathPart PartOf(const MathFrame& frame) {
  switch (frame.shape) {
    case MathShape::Row:
      break;
    case MathShape::Hidden:
      return {};
    case MathShape::Fraction:
      if (!frame.hasLine) return {u"binom(" + Joined(frame.parts, u", ") + u")"};
      return {InBrackets(HtmlAt(frame, 0)) + u"/" + InBrackets(HtmlAt(frame, 1)), true};
    case MathShape::Root:
      return {u"\u221A" + InBrackets(Joined(frame.parts, u""))};
    case MathShape::RootOfDegree:
      return {Shifted(HtmlAt(frame, 1), u"sup") + u"\u221A" + InBrackets(HtmlAt(frame, 0))};
    case MathShape::Lowered:
      return {BaseOf(frame) + Shifted(HtmlAt(frame, 1), u"sub")};
    case MathShape::Raised:
      return {BaseOf(frame) + Shifted(HtmlAt(frame, 1), u"sup"), true};
    case MathShape::LoweredAndRaised:
      return {BaseOf(frame) + Shifted(HtmlAt(frame, 1), u"sub") + Shifted(HtmlAt(frame, 2), u"sup"), true};
    case MathShape::Fenced:
      return {frame.open + Joined(frame.parts, u", ") + frame.close};
    case MathShape::Table:
      return {u"[" + Joined(frame.parts, u"; ") + u"]"};
    case MathShape::TableRow:
      return {Joined(frame.parts, u", ")};
  }
  return PartOfRow(frame);
}

/// Characters as they show. Those that only say what is multiplied or applied show nothing.
std::u16string ShownCharacters(std::u16string_view text) {
  std::u16string shown;
  for (const char16_t unit : ResolveEntities(text)) {
    const bool isBlank = unit <= u' ' || unit == u'\u2061';
    if (unit >= u'\u2062' && unit <= u'\u2064') continue;
    if (!isBlank) {
      shown.push_back(unit);
    } else if (!shown.ends_with(u' ')) {
      shown.push_back(u' ');
    }
  }
  return shown;
}

/// Reads one formula.
class MathReading {
 public:
  explicit MathReading(std::u16string_view text) : text_(text), frames_(1) {}

  std::u16string Read() {
    PageTokens tokens(text_);
    while (const auto token = tokens.Next()) {
      if (token->kind == PageTokenKind::Text) {
        AddCharacters(token->span.Of(text_));
      } else if (token->kind == PageTokenKind::BeginTag) {
        Begin(*token);
      } else if (token->kind == PageTokenKind::EndTag) {
        End(WithoutNamespace(token->name.Of(text_)));
      }
    }
    while (frames_.size() > 1) Close();
    return PartOf(frames_[0]).html;
  }

 private:
  /// Blanks between elements only lay out the file.
  void AddCharacters(std::u16string_view text) {
    const std::u16string shown = ShownCharacters(text);
    const bool isLayout = shown == u" " && frames_.back().name != u"mtext" && text != u"\u2061";
    if (!shown.empty() && !isLayout) frames_.back().parts.push_back({EscapeHtml(shown)});
  }

  void Begin(const PageToken& token) {
    const bool isWhole = token.span.Of(text_).ends_with(u"/>");
    if (ignored_ > 0 || frames_.size() >= kMostNestedMath) {
      if (!isWhole) ++ignored_;
      return;
    }
    if (isWhole) return frames_.back().parts.push_back({});
    const std::u16string_view name = WithoutNamespace(token.name.Of(text_));
    MathFrame frame{name, ShapeOf(name)};
    for (const auto& [attribute, value] : ReadTagAt(text_, token).attributes) {
      if (attribute == u"open") frame.open = EscapeHtml(value);
      if (attribute == u"close") frame.close = EscapeHtml(value);
      if (attribute == u"linethickness") frame.hasLine = !value.starts_with(u'0');
    }
    frames_.push_back(std::move(frame));
  }

  void End(std::u16string_view name) {
    if (ignored_ > 0) {
      --ignored_;
      return;
    }
    std::size_t depth = frames_.size() - 1;
    while (depth > 0 && !EqualsIgnoringAsciiCase(frames_[depth].name, name)) --depth;
    while (depth > 0 && frames_.size() > depth) Close();
  }

  void Close() {
    MathPart part = PartOf(frames_.back());
    frames_.pop_back();
    frames_.back().parts.push_back(std::move(part));
  }

  std::u16string_view text_;
  std::vector<MathFrame> frames_;
  std::size_t ignored_ = 0;  ///< open elements that are nested too deeply
};

}  // namespace

std::u16string MathAsHtml(std::u16string_view mathml) {
  return MathReading(mathml).Read();
}

}  // namespace quorvantis
