// SPDX-License-Identifier: MIT
#include "exchange/markup/Markup.h"

#include "exchange/markup/MarkupReader.h"
#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/HtmlEscape.h"
#include "text/LineBreaks.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kExamLineEnd = u"\r\n";

/// Whether a browser would take the "<" at the front of `text` for the begin of a tag.
bool LooksLikeATag(std::u16string_view text) {
  if (text.size() < 2) return false;
  const char16_t next = AsciiLower(text[1]);
  return (next >= u'a' && next <= u'z') || next == u'/' || next == u'!' || next == u'?';
}

std::u16string ExamCharacters(std::u16string_view text) {
  std::u16string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'<' && LooksLikeATag(text.substr(i))) {
      escaped += u"&lt;";
    } else if (text[i] == u'&' && ReadEntity(text.substr(i))) {
      escaped += u"&amp;";
    } else {
      escaped.push_back(text[i]);
    }
  }
  return escaped;
}

std::u16string ExamTextOf(const std::vector<MarkupPiece>& pieces) {
  std::u16string text;
  for (const MarkupPiece& piece : pieces) {
    switch (piece.kind) {
      case MarkupPieceKind::Text:
        text += ExamCharacters(piece.text);
        break;
      case MarkupPieceKind::LineBreak:
        text += kExamLineEnd;
        break;
      case MarkupPieceKind::Open:
        text.append(u"<").append(piece.tag->name).append(u">");
        break;
      case MarkupPieceKind::Close:
        text.append(u"</").append(piece.tag->name).append(u">");
        break;
    }
  }
  return text;
}

ReadMarkup ReadAs(std::u16string_view text, MarkupSource source) {
  MarkupReader reader(text, source);
  ReadMarkup read;
  read.text = ExamTextOf(reader.Read());
  read.losses = reader.Losses();
  read.references = std::move(reader.References());
  return read;
}

std::vector<MarkupPiece> PiecesOf(std::u16string_view examText) {
  return MarkupReader(examText, MarkupSource::ExamText).Read();
}

std::u16string HtmlTag(const MarkupPiece& piece, HtmlDialect dialect) {
  const bool isEnd = piece.kind == MarkupPieceKind::Close;
  const bool isSpan = dialect == HtmlDialect::Xhtml && !piece.tag->isXhtml;
  const std::u16string name(isSpan ? u"span" : piece.tag->name);
  if (isEnd) return u"</" + name + u">";
  if (!isSpan) return u"<" + name + u">";
  return std::u16string(u"<span class=\"").append(kTagClass).append(piece.tag->name).append(u"\">");
}

}  // namespace

ReadMarkup ReadExamText(std::u16string_view text) {
  return ReadAs(text, MarkupSource::ExamText);
}

ReadMarkup ReadHtml(std::u16string_view html) {
  return ReadAs(html, MarkupSource::Html);
}

std::u16string PlainToExamText(std::u16string_view text) {
  return ReadExamText(EscapeHtml(text)).text;
}

std::u16string ExamTextToHtml(std::u16string_view text, HtmlDialect dialect) {
  std::u16string html;
  for (const MarkupPiece& piece : PiecesOf(text)) {
    switch (piece.kind) {
      case MarkupPieceKind::Text:
        html += EscapeHtml(piece.text);
        break;
      case MarkupPieceKind::LineBreak:
        html += dialect == HtmlDialect::Xhtml ? u"<br/>" : u"<br>";
        break;
      case MarkupPieceKind::Open:
      case MarkupPieceKind::Close:
        html += HtmlTag(piece, dialect);
        break;
    }
  }
  return html;
}

std::u16string ExamTextToPlain(std::u16string_view text) {
  std::u16string plain;
  for (const MarkupPiece& piece : PiecesOf(text)) {
    if (piece.kind == MarkupPieceKind::LineBreak) plain.push_back(u'\n');
    plain += piece.text;
  }
  return plain;
}

bool HasTags(std::u16string_view text) {
  const std::vector<MarkupPiece> pieces = PiecesOf(text);
  return std::any_of(pieces.begin(), pieces.end(),
                     [](const MarkupPiece& piece) { return piece.tag != nullptr; });
}

}  // namespace quorvantis
