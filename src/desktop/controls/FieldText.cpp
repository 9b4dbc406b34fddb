// SPDX-License-Identifier: MIT
#include "desktop/controls/FieldText.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr char16_t kParagraphEnd = u'\u2029';

bool IsLineEnd(char16_t unit) {
  return unit == u'\r' || unit == u'\n' || unit == kParagraphEnd;
}

/// Two noncharacters that a Qt document treats as the borders of a frame.
bool IsFrameMark(char16_t unit) {
  return unit == 0xFDD0 || unit == 0xFDD1;
}

/// Units of the line end, or of any other character unit, at `position`.
std::size_t StepLength(std::u16string_view text, std::size_t position) {
  return text.substr(position, 2) == u"\r\n" ? 2 : 1;
}

}  // namespace

void FieldText::Load(std::u16string text) {
  Set(std::move(text));
  loaded_ = text_;
  loadedShown_ = shown_;
}

void FieldText::Set(std::u16string text) {
  text_ = std::move(text);
  shown_ = Show(text_);
}

std::u16string FieldText::Edited(std::u16string_view shown) const {
  if (shown == loadedShown_) return loaded_;
  const TextChange change = FindChange(shown_, shown);
  std::u16string text = text_.substr(0, OffsetOf(change.start));
  AppendTyped(text, shown.substr(change.start, change.added));
  const auto rest = std::u16string_view(text_).substr(OffsetOf(change.start + change.removed));
  // A lone CR and a lone LF that come together would become one line end.
  if (lines_ == FieldLines::Many && text.ends_with(u'\r') && rest.starts_with(u'\n')) text.push_back(u'\n');
  return text.append(rest);
}

std::u16string FieldText::Show(std::u16string_view text) const {
  if (lines_ == FieldLines::One) return std::u16string(text);
  std::u16string shown;
  shown.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); i += StepLength(text, i)) {
    shown.push_back(IsLineEnd(text[i]) ? kParagraphEnd : IsFrameMark(text[i]) ? u'\uFFFD' : text[i]);
  }
  return shown;
}

std::size_t FieldText::OffsetOf(std::size_t shownPlace) const {
  shownPlace = std::min(shownPlace, shown_.size());
  if (lines_ == FieldLines::One) return shownPlace;
  std::size_t offset = 0;
  for (; shownPlace > 0; --shownPlace) offset += StepLength(text_, offset);
  return offset;
}

std::size_t FieldText::ShownPlace(std::size_t offset) const {
  offset = std::min(offset, text_.size());
  if (lines_ == FieldLines::One) return offset;
  std::size_t shown = 0;
  for (std::size_t at = 0; at < offset; at += StepLength(text_, at)) ++shown;
  return shown;
}

void FieldText::AppendTyped(std::u16string& text, std::u16string_view typed) const {
  const std::u16string_view lineEnd = lines_ == FieldLines::One ? u" " : u"\r\n";
  for (const char16_t unit : typed) {
    if (IsLineEnd(unit)) {
      text += lineEnd;
    } else {
      text.push_back(unit);
    }
  }
}

}  // namespace quorvantis
