// SPDX-License-Identifier: MIT
#include "exchange/markup/MarkupPieces.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostNestedElements = 16;
constexpr std::u16string_view kTrimmed = u" \t\r\n\u00A0";

/// Trims what shows at one end of `pieces`; `begin` to `end` are iterators in either direction.
template <class Iterator, class Trim>
void TrimPieces(Iterator begin, Iterator end, Trim trim) {
  for (Iterator piece = begin; piece != end; ++piece) {
    if (piece->kind == MarkupPieceKind::LineBreak) *piece = MarkupPiece{};
    if (piece->kind != MarkupPieceKind::Text) continue;
    trim(piece->text);
    if (!piece->text.empty()) return;
  }
}

void TrimFront(std::u16string& text) {
  text.erase(0, std::min(text.find_first_not_of(kTrimmed), text.size()));
}

void TrimBack(std::u16string& text) {
  text.resize(text.find_last_not_of(kTrimmed) + 1);  // nothing found: 0
}

/// Without empty texts and elements.
std::vector<MarkupPiece> WithoutEmptyOnes(std::vector<MarkupPiece> pieces) {
  std::vector<MarkupPiece> kept;
  for (MarkupPiece& piece : pieces) {
    if (piece.kind == MarkupPieceKind::Text && piece.text.empty()) continue;
    const bool endsEmpty =
        piece.kind == MarkupPieceKind::Close && !kept.empty() && kept.back().kind == MarkupPieceKind::Open;
    const bool isJoined =
        piece.kind == MarkupPieceKind::Text && !kept.empty() && kept.back().kind == MarkupPieceKind::Text;
    if (endsEmpty) {
      kept.pop_back();
    } else if (isJoined) {
      kept.back().text += piece.text;
    } else {
      kept.push_back(std::move(piece));
    }
  }
  return kept;
}

}  // namespace

void MarkupPieces::Flush() {
  if (std::exchange(lineIsEnded_, false)) AddLineBreak();
  if (!softBlank_) return;
  softBlank_ = false;
  AddText(u" ");
}

void MarkupPieces::AddText(std::u16string_view characters) {
  if (characters.empty()) return;
  Flush();
  if (pieces_.empty() || pieces_.back().kind != MarkupPieceKind::Text) pieces_.push_back({});
  pieces_.back().text += characters;
  lineIsEmpty_ = false;
}

void MarkupPieces::AddLineBreak() {
  if (lineIsEnded_) pieces_.push_back({MarkupPieceKind::LineBreak, {}, nullptr});
  pieces_.push_back({MarkupPieceKind::LineBreak, {}, nullptr});
  lineIsEnded_ = softBlank_ = false;
  lineIsEmpty_ = true;
}

void MarkupPieces::EndLine() {
  softBlank_ = false;
  if (!lineIsEmpty_) lineIsEnded_ = true;
}

bool MarkupPieces::Open(const MarkupTag& tag) {
  if (open_.size() >= kMostNestedElements) return false;
  Flush();
  open_.push_back(&tag);
  pieces_.push_back({MarkupPieceKind::Open, {}, &tag});
  return true;
}

void MarkupPieces::PopOrClose(const MarkupTag& tag) {
  if (!pieces_.empty() && pieces_.back().kind == MarkupPieceKind::Open) {
    pieces_.pop_back();
  } else {
    pieces_.push_back({MarkupPieceKind::Close, {}, &tag});
  }
}

void MarkupPieces::Close(const MarkupTag& tag) {
  std::size_t depth = open_.size();
  while (depth > 0 && open_[depth - 1] != &tag) --depth;
  if (depth == 0) return;
  // Elements that begin inside and end outside are cut in two.
  const std::vector<const MarkupTag*> inside(open_.begin() + static_cast<std::ptrdiff_t>(depth), open_.end());
  for (std::size_t i = inside.size(); i > 0; --i) PopOrClose(*inside[i - 1]);
  PopOrClose(tag);
  open_.resize(depth - 1);
  for (const MarkupTag* inner : inside) {
    open_.push_back(inner);
    pieces_.push_back({MarkupPieceKind::Open, {}, inner});
  }
}

std::size_t MarkupPieces::Mark() {
  pieces_.emplace_back();
  return pieces_.size() - 1;
}

std::u16string MarkupPieces::TextFrom(std::size_t mark) const {
  std::u16string text;
  for (std::size_t i = mark; i < pieces_.size(); ++i) text += pieces_[i].text;
  return text;
}

void MarkupPieces::RemoveTextFrom(std::size_t mark) {
  for (std::size_t i = mark; i < pieces_.size(); ++i) pieces_[i].text.clear();
}

std::size_t MarkupPieces::EndOfShown() const {
  for (std::size_t i = pieces_.size(); i > 0; --i) {
    if (pieces_[i - 1].text.find_first_not_of(kTrimmed) != std::u16string::npos) return i;
  }
  return 0;
}

std::vector<MarkupPiece> MarkupPieces::Finish() {
  while (!open_.empty()) {
    PopOrClose(*open_.back());
    open_.pop_back();
  }
  TrimPieces(pieces_.begin(), pieces_.end(), TrimFront);
  TrimPieces(pieces_.rbegin(), pieces_.rend(), TrimBack);
  return WithoutEmptyOnes(std::move(pieces_));
}

}  // namespace quorvantis
