// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextChange.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvantis {

enum class FieldLines { One, Many };

/// A text of the form, and what a field on the screen shows of it.
///
/// A field cannot hold every text: it knows only one kind of line end, and some units have a special meaning
/// to it. So an edit counts as a change of what is shown, and everything outside the change stays in the text
/// unit by unit.
class FieldText {
 public:
  explicit FieldText(FieldLines lines) : lines_(lines) {}

  /// Takes a text that the user has not touched yet.
  void Load(std::u16string text);

  /// Takes a text that an edit or a command has made.
  void Set(std::u16string text);

  const std::u16string& Text() const { return text_; }

  /// What the field must show. With several lines every line end is one U+2029, as in a Qt document.
  const std::u16string& Shown() const { return shown_; }

  /// The text after the user has edited the field to `shown`. New line ends are CR LF; in a field of one line
  /// they are blanks. When all edits are undone, the text is again the loaded one.
  std::u16string Edited(std::u16string_view shown) const;

  /// The place in what is shown of a place in the text, both in UTF-16 units; the end for one beyond it.
  std::size_t ShownPlace(std::size_t offset) const;

  /// The reverse.
  std::size_t OffsetOf(std::size_t shownPlace) const;

 private:
  std::u16string Show(std::u16string_view text) const;
  void AppendTyped(std::u16string& text, std::u16string_view typed) const;

  FieldLines lines_;
  std::u16string text_;
  std::u16string shown_;
  std::u16string loaded_;
  std::u16string loadedShown_;
};

}  // namespace quorvantis
