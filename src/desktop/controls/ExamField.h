// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/FieldText.h"
#include "editor/QuestionEditor.h"
#include "platform/StringTable.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// One text field of the window and its text in the form, kept in step: edits in the field go into the form;
/// loading and commands change the form and then the field. The form decides what is too long.
///
/// The widgets derive from this class and know only what they show.
class ExamField {
 public:
  /// `editor` and `strings` must outlive the field.
  ExamField(QuestionEditor& editor, const StringTable& strings, FormField field, FieldLines lines)
      : editor_(editor), strings_(strings), field_(field), text_(lines) {}
  virtual ~ExamField() = default;
  ExamField(const ExamField&) = delete;
  ExamField& operator=(const ExamField&) = delete;

  /// Shows the form's text.
  void Load();

  /// Shows the form's text if a command has changed it. The cursor stays with the text around it.
  void FollowForm();

  /// Selects a part of the form's text, in UTF-16 units. What is beyond its end is left out.
  void Select(std::size_t start, std::size_t length);

 protected:
  /// The user has edited the field to `shown`, with the cursor at `cursor` now. False if refused: the widget
  /// must then show `Shown` again. The user has been told.
  bool Edit(std::u16string_view shown, int cursor);

  /// Called before a change: true if it is refused because the text would be too long.
  bool Refuses(std::u16string_view shown);

  const std::u16string& Shown() const { return text_.Shown(); }

  /// Replaces the content of the widget.
  virtual void ShowAnew(const std::u16string& shown) = 0;

  /// Makes one change to the widget's content, as a user would.
  virtual void ShowChange(const TextChange& change, const std::u16string& shown) = 0;

  /// Selects a part of the widget's content, and scrolls to it.
  virtual void SelectShown(int start, int end) = 0;

  /// Shows `message` beside the cursor.
  virtual void Tell(const std::u16string& message) = 0;

 private:
  QuestionEditor& editor_;
  const StringTable& strings_;
  FormField field_;
  FieldText text_;
};

}  // namespace quorvantis
