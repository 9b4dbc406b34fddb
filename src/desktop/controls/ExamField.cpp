// SPDX-License-Identifier: MIT
#include "desktop/controls/ExamField.h"

#include "platform/texts/EditorTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

namespace quorvantis {

void ExamField::Load() {
  text_.Load(editor_.Form().Field(field_));
  ShowAnew(text_.Shown());
}

void ExamField::FollowForm() {
  const std::u16string& text = editor_.Form().Field(field_);
  if (text == text_.Text()) return;
  const std::u16string before = text_.Shown();
  text_.Set(text);
  ShowChange(FindChange(before, text_.Shown()), text_.Shown());
}

void ExamField::Select(std::size_t start, std::size_t length) {
  SelectShown(static_cast<int>(text_.ShownPlace(start)), static_cast<int>(text_.ShownPlace(start + length)));
}

bool ExamField::Edit(std::u16string_view shown, int cursor) {
  std::u16string text = text_.Edited(shown);
  if (text == text_.Text()) return true;
  if (editor_.EditField(field_, text)) {
    text_.Set(std::move(text));
    editor_.NoteCursor({field_, text_.OffsetOf(static_cast<std::size_t>(cursor))});
    return true;
  }
  const auto limit = static_cast<std::int64_t>(MaxLength(field_));
  Tell(FillMessage(strings_.Text(text_id::kTooLong), {FormatInteger(limit)}));
  return false;
}

bool ExamField::Refuses(std::u16string_view shown) {
  const bool tooLong = text_.Edited(shown).size() > MaxLength(field_);
  return tooLong && !Edit(shown, 0);
}

}  // namespace quorvantis
