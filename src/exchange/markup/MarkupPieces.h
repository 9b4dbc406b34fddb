// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/markup/MarkupTags.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

enum class MarkupPieceKind { Text, LineBreak, Open, Close };

/// A part of a text with markup: characters, a line break, or the begin or end of an element that exams have.
struct MarkupPiece {
  MarkupPieceKind kind = MarkupPieceKind::Text;
  std::u16string text{};           ///< of characters
  const MarkupTag* tag = nullptr;  ///< of an element
};

/// Puts a text together from pieces, so that elements are balanced and none is empty, and lines end where
/// blocks do.
class MarkupPieces {
 public:
  void AddText(std::u16string_view characters);

  /// A blank that does not count at the begin or end of a line.
  void AddSoftBlank() { softBlank_ = !lineIsEmpty_; }
  void AddLineBreak();

  /// What follows stands in another line than what precedes, if there is any.
  void EndLine();

  /// False if too many elements lie in each other; it is left out then.
  bool Open(const MarkupTag& tag);
  void Close(const MarkupTag& tag);

  /// A place for the functions below: what is added later stands behind it.
  std::size_t Mark();

  /// The characters behind a mark.
  std::u16string TextFrom(std::size_t mark) const;
  void RemoveTextFrom(std::size_t mark);

  /// The place behind the last piece that shows something. A mark before it is followed by text.
  std::size_t EndOfShown() const;

  /// The pieces, without blanks and line breaks at either end.
  std::vector<MarkupPiece> Finish();

 private:
  void Flush();
  void PopOrClose(const MarkupTag& tag);

  std::vector<MarkupPiece> pieces_;
  std::vector<const MarkupTag*> open_;
  bool softBlank_ = false;
  bool lineIsEmpty_ = true;   ///< since the last line break
  bool lineIsEnded_ = false;  ///< a line break is due before the next text
};

}  // namespace quorvantis
