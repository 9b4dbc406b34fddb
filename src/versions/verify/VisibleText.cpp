// SPDX-License-Identifier: MIT
#include "versions/verify/VisibleText.h"

#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/PageTokens.h"

namespace quorvantis {
namespace {

void AddPiece(std::u16string piece, std::vector<std::u16string>& pieces) {
  if (piece.find_first_not_of(u" \t\r\n\u00A0") != piece.npos) pieces.push_back(std::move(piece));
}

/// Of the elements whose content is no markup, few show it.
void AddPlainContent(std::u16string_view element, std::u16string_view content,
                     std::vector<std::u16string>& pieces) {
  if (EqualsIgnoringAsciiCase(element, u"textarea")) AddPiece(ResolveEntities(content), pieces);
  if (EqualsIgnoringAsciiCase(element, u"xmp") || EqualsIgnoringAsciiCase(element, u"plaintext"))
    AddPiece(std::u16string(content), pieces);
}

}  // namespace

std::vector<std::u16string> VisiblePieces(std::u16string_view markup) {
  std::vector<std::u16string> pieces;
  PageTokens tokens(markup);
  while (const auto token = tokens.Next()) {
    if (token->kind == PageTokenKind::Text) {
      AddPiece(ResolveEntities(token->span.Of(markup)), pieces);
    } else if (const auto content = tokens.TakePlainContent(*token)) {
      AddPlainContent(token->name.Of(markup), content->span.Of(markup), pieces);
    }
  }
  return pieces;
}

}  // namespace quorvantis
